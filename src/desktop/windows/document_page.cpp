#include "desktop/windows/document_page.h"

#include "core/input.h"
#include "desktop/drawing/twips.h"

namespace wb::desktop {

QSize DocumentPage::sizeHint() const {
    const int margins = 2 * toPixels(*this, FrmDocument::margin);
    return views().front()->widget()->sizeHint() + QSize(margins, margins);
}

QSize DocumentPage::minimumSizeHint() const {
    return views().front()->widget()->minimumSizeHint();
}

void DocumentPage::resizeEvent(QResizeEvent* event) {
    ScreenPage::resizeEvent(event);
    const int width = static_cast<int>(toTwips(*this, this->width()));
    const int height = static_cast<int>(toTwips(*this, this->height()));
    views().front()->tell([width, height](Control& report) {
        input::resized(static_cast<FrmDocument&>(report.screen()), width, height);
    });
}

} // namespace wb::desktop
