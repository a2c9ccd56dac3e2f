#include "desktop/tools/dock_places.h"

#include <QCryptographicHash>
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

/// A state for the settings, with its hash before it: the toolkit takes a state at its word, and a damaged one would
/// end the program at every start.
QByteArray sealed(const QByteArray& state) {
    return QCryptographicHash::hash(state, QCryptographicHash::Sha256).toBase64() + ' ' + state.toBase64();
}

/// The state in such a text; empty where the text is none.
QByteArray unsealed(const QByteArray& text) {
    const QByteArray state = QByteArray::fromBase64(text.mid(text.indexOf(' ') + 1));
    return sealed(state) == text ? state : QByteArray();
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
    frame_.window().restoreState(unsealed(stored_));
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
    const QByteArray now = sealed(window.saveState());
    if (now != stored_) {
        stored_ = now;
        settingsOf(frame_).write(docksSetting, now.toStdString());
    }
}

} // namespace wb::desktop
