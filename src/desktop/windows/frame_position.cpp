#include "desktop/windows/frame_position.h"

#include <QGuiApplication>
#include <QScreen>
#include <utility>

#include "core/input.h"
#include "core/workbench.h"
#include "desktop/drawing/twips.h"

namespace wb::desktop {

namespace {

constexpr const char* maximisedSetting = "MainMaximised";

/// The screen that most of the rectangle is on, or null.
const QScreen* screenOf(const QRect& rectangle) {
    const QScreen* found = nullptr;
    int most = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect shared = screen->availableGeometry().intersected(rectangle);
        if (shared.width() * shared.height() > most) {
            most = shared.width() * shared.height();
            found = screen;
        }
    }
    return found;
}

} // namespace

void FramePosition::begin(QSize whole) {
    size_ = FrameSize(whole);
    maximised_ = model().workbench().platform.settings.read(maximisedSetting) == "1";
}

void FramePosition::showWindow() {
    if (maximised_) {
        window_.setWindowState(Qt::WindowMaximized);
    }
    window_.show();
}

void FramePosition::apply() {
    const FrmMain& frame = model();
    const Position asked{frame.Left, frame.Top, frame.Width, frame.Height};
    if (asked == shownPosition_) {
        return;
    }
    shownPosition_ = asked;
    const QRect geometry = geometryOf(asked);
    placing_ = true;
    window_.move(geometry.topLeft());
    window_.resize(geometry.size());
    placing_ = false;
    shownGeometry_ = QRect(window_.pos(), window_.size());
}

/// Where the window goes for that position: on a screen, and no larger than the free area there.
QRect FramePosition::geometryOf(const Position& asked) const {
    const QMargins decoration = likelyDecoration(window_);
    const QPoint corner(toPixels(window_, asked.left), toPixels(window_, asked.top));
    const QSize size = size_.toPixels(asked.width, asked.height);
    const QRect outside(corner, size.grownBy(decoration));
    const QScreen* screen = screenOf(outside);
    const QRect room = (screen != nullptr ? screen : window_.screen())->availableGeometry();
    const QRect place = movedInside(outside, room);
    return {place.topLeft(), place.size().shrunkBy(decoration)};
}

void FramePosition::noteSoon() {
    if (placing_ || std::exchange(willNote_, true)) {
        return;
    }
    // A window manager may tell of the size of a maximised window before it tells of the state.
    QMetaObject::invokeMethod(
        this, [this] { note(); }, Qt::QueuedConnection);
}

void FramePosition::note() {
    willNote_ = false;
    if (frame_.screen() == nullptr) {
        return;
    }
    FrmMain& frame = model();
    input::minimised(frame, window_.isMinimized());
    noteMaximised();
    const QRect now(window_.pos(), window_.size());
    if (frame.minimised || maximised_ || !window_.isVisible() || now == shownGeometry_) {
        return;
    }
    shownGeometry_ = now;
    input::placed(frame, toTwips(window_, now.left()), toTwips(window_, now.top()), size_.widthInTwips(now.width()),
                  size_.heightInTwips(now.height()));
    shownPosition_ = {frame.Left, frame.Top, frame.Width, frame.Height};
}

/// Keeps in the settings whether the next start is to maximise the window; the place that goes with them is that of the
/// normal window.
void FramePosition::noteMaximised() {
    if (window_.isMinimized() || !window_.isVisible() || window_.isMaximized() == maximised_) {
        return;
    }
    maximised_ = !maximised_;
    model().workbench().platform.settings.write(maximisedSetting, maximised_ ? "1" : "0");
}

} // namespace wb::desktop
