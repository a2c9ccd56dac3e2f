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
    if (gate_.running() || view.screen() == nullptr) {
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

/// The widget of the control that has the focus in the model, or null.
QWidget* FocusKeeper::target() const {
    const Control* current = workbench_.focus.current();
    const ControlView* view = current != nullptr ? find_(*current) : nullptr;
    return view != nullptr ? view->widget() : nullptr;
}

void FocusKeeper::align() {
    if (moveWaits() || workbench_.ended || QApplication::activePopupWidget() != nullptr) {
        return;
    }
    QWidget* widget = target();
    if (widget != nullptr && widget->isVisible() && widget->isEnabled()) {
        if (!widget->hasFocus()) {
            widget->setFocus(Qt::OtherFocusReason);
            bringIntoSight(*widget);
        }
        find_(*workbench_.focus.current())->focusShown();
    } else if (QWidget* holder = QApplication::focusWidget()) {
        holder->clearFocus();
    }
}

void FocusKeeper::follow() {
    if (QWidget* widget = target()) {
        restoreWindowOf(*widget);
    }
    align();
}

} // namespace wb::desktop
