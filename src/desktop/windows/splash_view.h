#pragma once

#include "desktop/windows/screen_view.h"

namespace wb::desktop {

/// The picture that is shown while the program starts.
class SplashView : public ScreenView {
public:
    SplashView(Screen& screen, UserActions& actions);
    ~SplashView() override;

    QWidget& window() override { return *window_; }
    void refresh() override;

private:
    std::unique_ptr<QWidget> window_;
};

} // namespace wb::desktop
