#include "desktop/tools/dock_places.h"

#include <QEvent>
#include <QTimer>
#include <utility>

#include "core/workbench.h"

namespace wb::desktop {

namespace {

constexpr const char* docksSetting = "MainDocks";

platform::Settings& settingsOf(const MainView& frame) {
    return frame.screen()->workbench().platform.settings;
}

} // namespace

void DockPlaces::watch(QDockWidget& dock) {
    dock.installEventFilter(this);
    QObject::connect(&dock, &QDockWidget::dockLocationChanged, this, [this] { noteSoon(); });
}

void DockPlaces::restore() {
    if (restored_ || !frame_.window().isVisible()) {
        return;
    }
    stored_ = QByteArray::fromStdString(settingsOf(frame_).read(docksSetting).value_or(""));
    frame_.window().restoreState(QByteArray::fromBase64(stored_));
    restored_ = true;
}

bool DockPlaces::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::Resize:
            noteSoon();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

/// When the user has come to a rest: the edge of a dock is drawn pixel by pixel.
void DockPlaces::noteSoon() {
    constexpr int milliseconds = 300;
    if (restored_ && !std::exchange(willNote_, true)) {
        QTimer::singleShot(milliseconds, this, [this] { note(); });
    }
}

void DockPlaces::note() {
    willNote_ = false;
    QMainWindow& window = frame_.window();
    if (frame_.screen() == nullptr || !window.isVisible() || window.isMinimized()) {
        return; // the docks are hidden with it
    }
    const QByteArray now = window.saveState().toBase64();
    if (now != stored_) {
        stored_ = now;
        settingsOf(frame_).write(docksSetting, now.toStdString());
    }
}

} // namespace wb::desktop
