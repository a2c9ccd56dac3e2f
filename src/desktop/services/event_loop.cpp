#include "desktop/services/event_loop.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QThread>
#include <QTimer>

namespace wb::desktop {

void QtEventLoop::processPending() {
    gate_.announceEventLoop();
    QAbstractEventDispatcher* dispatcher = QThread::currentThread()->eventDispatcher();
    const bool any = dispatcher->processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!any && timers_ > 0) {
        // Whoever calls this over and over waits for a timer: that need not take the whole processor.
        constexpr int milliseconds = 5;
        QThread::msleep(milliseconds);
    }
}

void QtEventLoop::setPointer(platform::Pointer pointer) {
    const bool wanted = pointer == platform::Pointer::Hourglass;
    if (wanted == hourglass_) {
        return;
    }
    hourglass_ = wanted;
    if (wanted) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtEventLoop::startTimer(int milliseconds, std::function<void()> fire) {
    ++timers_;
    QTimer::singleShot(milliseconds, qApp, [this, fire = std::move(fire)] {
        --timers_;
        // Among the pending events of a call the timer belongs to that call; a call of its own would wait for its end.
        if (gate_.running()) {
            fire();
        } else {
            gate_.run(fire);
        }
    });
}

} // namespace wb::desktop
