#include "desktop/windows/splash_view.h"

#include <QPainter>
#include <QScreen>

#include "desktop/drawing/pictures.h"

namespace wb::desktop {

namespace {

class SplashWindow : public QWidget {
public:
    SplashWindow() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
        resize(splashSize(*this));
        move(screen()->availableGeometry().center() - rect().center());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintSplash(painter, rect());
    }
};

} // namespace

SplashView::SplashView(Screen& screen, UserActions& actions)
    : ScreenView(screen, actions), window_(std::make_unique<SplashWindow>()) {
    window_->setObjectName("frmSplash");
    window_->setAccessibleName("EDID / DDC Field Workbench");
}

SplashView::~SplashView() = default;

void SplashView::refresh() {
    window_->setVisible(screen()->shown());
}

} // namespace wb::desktop
