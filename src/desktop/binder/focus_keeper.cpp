#include "desktop/binder/focus_keeper.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QScopedValueRollback>

#include "core/input.h"
#include "core/workbench.h"
#include "desktop/base/own_focus.h"
#include "desktop/windows/visibility.h"

namespace wb::desktop {

namespace {

/// Whether the widget has been hidden or disabled, by itself or with what contains it inside its window. Qt then steps
/// on from it, and calls that a step of the Tab key.
bool isTakenAway(const QWidget* widget) {
    return widget != nullptr && !(widget->isVisibleTo(widget->window()) && widget->isEnabledTo(widget->window()));
}

} // namespace

FocusKeeper::FocusKeeper(Workbench& workbench, ModelGate& gate, Find find)
    : workbench_(workbench), gate_(gate), find_(std::move(find)) {
    QObject::connect(qApp, &QApplication::focusChanged, this, &FocusKeeper::focusChanged);
}

void FocusKeeper::focusChanged(QWidget* from, QWidget* to) {
    holder_ = to;
    if (isTakenAway(from) && !gate_.running()) {
        alignSoon();
    }
}

void FocusKeeper::queue(void (FocusKeeper::*step)()) {
    QMetaObject::invokeMethod(
        this, [this, step] { (this->*step)(); }, Qt::QueuedConnection);
}

void FocusKeeper::focusArrived(ControlView& view, Qt::FocusReason reason) {
    if (gate_.running()) {
        return; // Qt moves the focus by itself when a panel hides or a box closes
    }
    switch (reason) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
            if (isTakenAway(holder_)) { // Qt tells of the widget that had the focus afterwards
                break;
            }
            [[fallthrough]];
        case Qt::MouseFocusReason:
        case Qt::ShortcutFocusReason:
            control_ = &view;
            screen_.clear();
            queue(&FocusKeeper::settle);
            break;
        default:
            // Activation of a window, the end of a pop-up: no wish of the user.
            alignSoon();
            break;
    }
}

void FocusKeeper::activationArrived(ScreenView& view, Qt::FocusReason reason) {
    if (gate_.running() || view.screen() == nullptr) {
        return;
    }
    const bool clickedInside =
        control_ != nullptr && control_->control() != nullptr && &control_->control()->screen() == view.screen();
    if (!clickedInside) {
        control_.clear();
        // Qt may tell of the activation again after the press that has caused it.
        pressed_ = reason == Qt::MouseFocusReason || (screen_ == &view && pressed_);
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
        // A press on an icon may be meant to move it; one on a window, to make it an icon.
        const QScopedValueRollback<bool> untilDone(keepsIcons_, pressed_);
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
    if (!keepsOwnFocus(QApplication::focusWidget())) {
        giveToTarget();
    }
}

void FocusKeeper::giveToTarget() {
    if (moveWaits() || workbench_.ended || QApplication::activePopupWidget() != nullptr) {
        return;
    }
    QWidget* widget = target();
    if (QMdiSubWindow* icon = widget != nullptr ? minimisedWindowOf(*widget) : nullptr) {
        icon->setFocus(Qt::OtherFocusReason); // which has the keys for changing to another window
    } else if (widget != nullptr && widget->isVisible() && widget->isEnabled()) {
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
    if (QWidget* widget = target(); widget != nullptr && !keepsIcons_) {
        restoreWindowOf(*widget);
    }
    giveToTarget();
}

} // namespace wb::desktop
