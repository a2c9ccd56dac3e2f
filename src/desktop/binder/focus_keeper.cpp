#include "desktop/binder/focus_keeper.h"

#include <QApplication>

#include "core/input.h"
#include "core/workbench.h"
#include "desktop/windows/visibility.h"

namespace wb::desktop {

FocusKeeper::FocusKeeper(Workbench& workbench, ModelGate& gate, Find find)
    : workbench_(workbench), gate_(gate), find_(std::move(find)) {}

void FocusKeeper::queue(void (FocusKeeper::*step)()) {
    QMetaObject::invokeMethod(
        this, [this, step] { (this->*step)(); }, Qt::QueuedConnection);
}

void FocusKeeper::focusArrived(ControlView& view, Qt::FocusReason reason) {
    if (gate_.running()) {
        return; // Qt moves the focus by itself when a panel hides or a box closes
    }
    switch (reason) {
        case Qt::MouseFocusReason:
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            control_ = &view;
            screen_.clear();
            queue(&FocusKeeper::settle);
            break;
        default:
            // Activation of a window, the end of a pop-up: no wish of the user.
            queue(&FocusKeeper::align);
            break;
    }
}

void FocusKeeper::activationArrived(ScreenView& view) {
    if (gate_.running() || view.screen() == nullptr || workbench_.windows.activeChild() == view.screen()) {
        return;
    }
    const bool clickedInside =
        control_ != nullptr && control_->control() != nullptr && &control_->control()->screen() == view.screen();
    if (!clickedInside) {
        control_.clear();
        screen_ = &view;
        queue(&FocusKeeper::settle);
    }
}

void FocusKeeper::settle() {
    const QPointer<ControlView> control = control_;
    const QPointer<ScreenView> screen = screen_;
    control_.clear();
    screen_.clear();
    if (control != nullptr) {
        control->tell([](Control& c) { input::moveFocus(c); });
    } else if (screen != nullptr) {
        screen->act([](Screen& s) { input::activate(s); });
    }
}

void FocusKeeper::align() {
    if (moveWaits() || workbench_.ended || QApplication::activePopupWidget() != nullptr) {
        return;
    }
    const Control* current = workbench_.focus.current();
    ControlView* view = current != nullptr ? find_(*current) : nullptr;
    QWidget* target = view != nullptr ? view->widget() : nullptr;
    if (target != nullptr && target->isVisible() && target->isEnabled()) {
        if (!target->hasFocus()) {
            target->setFocus(Qt::OtherFocusReason);
            bringIntoSight(*target);
        }
        view->focusShown();
    } else if (QWidget* holder = QApplication::focusWidget()) {
        holder->clearFocus();
    }
}

} // namespace wb::desktop
