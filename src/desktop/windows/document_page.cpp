#include "desktop/windows/document_page.h"

#include <utility>

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
    // Qt may be in the middle of changing from one maximised window to another, which a call into the model, and the
    // focus that follows it, would begin anew.
    if (!std::exchange(willTell_, true)) {
        QMetaObject::invokeMethod(
            this, [this] { tellSize(); }, Qt::QueuedConnection);
    }
}

void DocumentPage::tellSize() {
    willTell_ = false;
    const int width = static_cast<int>(toTwips(*this, this->width()));
    const int height = static_cast<int>(toTwips(*this, this->height()));
    views().front()->tell([width, height](Control& report) {
        input::resized(static_cast<FrmDocument&>(report.screen()), width, height);
    });
}

} // namespace wb::desktop
