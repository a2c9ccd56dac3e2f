#pragma once

#include "desktop/windows/screen_page.h"

namespace wb::desktop {

/// The inside of the report window: it tells the model its size when the events at hand are through, and the model
/// places the report.
class DocumentPage : public ScreenPage {
public:
    using ScreenPage::ScreenPage;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void tellSize();

    bool willTell_ = false;
};

} // namespace wb::desktop
