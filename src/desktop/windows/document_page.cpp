#include "desktop/windows/document_page.h"

#include "core/workbench.h"
#include "desktop/drawing/twips.h"
#include "shell/lifecycle.h"

namespace wb::desktop {

namespace {

constexpr int marginTwips = 100;

} // namespace

QSize DocumentPage::sizeHint() const {
    const int margins = 2 * toPixels(*this, marginTwips);
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
        auto& screen = static_cast<FrmDocument&>(report.screen());
        screen.innerWidth = width;
        screen.innerHeight = height;
        screen.workbench().runAction([&] { shell::frmDocument_Resize(screen.workbench()); });
    });
}

} // namespace wb::desktop
