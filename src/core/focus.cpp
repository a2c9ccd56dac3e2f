#include "core/focus.h"

#include <utility>

#include "core/control.h"
#include "core/screen.h"
#include "core/view.h"
#include "core/windows.h"
#include "core/workbench.h"

namespace wb {

namespace {

/// Marks the time in which a focus handler runs, also when the handler is left by a failure.
class HandlerMark {
public:
    explicit HandlerMark(bool& mark) : mark_(mark) { mark_ = true; }
    HandlerMark(const HandlerMark&) = delete;
    HandlerMark& operator=(const HandlerMark&) = delete;
    ~HandlerMark() { mark_ = false; }

private:
    bool& mark_;
};

} // namespace

void Focus::moveTo(Control& control) {
    if (!control.canTakeFocus()) {
        throw Failure(FailureKind::InvalidCall);
    }
    workbench_->windows.reveal(control.screen());
    if (inHandler_) {
        waiting_ = &control;
        return;
    }
    if (&control != current_) {
        run(&control);
    } else {
        workbench_->windows.raise(control.screen());
    }
}

void Focus::moveTo(Screen& screen) {
    workbench_->windows.reveal(screen);
    Control* target = screen.focusTarget();
    if (target != nullptr) {
        moveTo(*target);
    } else {
        workbench_->windows.raise(screen);
    }
}

void Focus::forget(Screen& screen) {
    if (current_ != nullptr && &current_->screen() == &screen) {
        current_ = nullptr;
    }
    if (waiting_ != nullptr && &waiting_->screen() == &screen) {
        waiting_ = nullptr;
    }
    if (target_ != nullptr && &target_->screen() == &screen) {
        target_ = nullptr;
    }
}

void Focus::clear() {
    if (inHandler_ || current_ == nullptr) {
        return;
    }
    run(nullptr);
}

void Focus::run(Control* target) {
    target_ = target;
    do {
        const bool calledBack = runLostFocus();
        if (target_ == nullptr) {
            current_ = nullptr;
            break;
        }
        enter(*std::exchange(target_, nullptr));
        runGotFocus(calledBack);
        target_ = std::exchange(waiting_, nullptr);
    } while (target_ != nullptr && target_ != current_ && target_->canTakeFocus());
    if (workbench_->view != nullptr) {
        workbench_->view->focusChanged();
    }
}

/// Runs LostFocus of the control that has the focus. What it asks for replaces the target. Tells whether it called
/// itself back.
bool Focus::runLostFocus() {
    waiting_ = nullptr;
    if (current_ == nullptr) {
        return false;
    }
    Control* const old = current_;
    if (old->handlers().lostFocus != nullptr) {
        const HandlerMark mark(inHandler_);
        old->handlers().lostFocus(*workbench_, old->index());
    }
    Control* const asked = std::exchange(waiting_, nullptr);
    if (asked == nullptr || !asked->canTakeFocus()) {
        return false;
    }
    target_ = asked;
    return asked == old;
}

void Focus::runGotFocus(bool calledBack) {
    Control* const control = current_;
    if (control->handlers().gotFocus != nullptr) {
        const HandlerMark mark(inHandler_);
        control->handlers().gotFocus(*workbench_, control->index());
    }
    if (calledBack) {
        waiting_ = nullptr;
    }
}

void Focus::enter(Control& control) {
    current_ = &control;
    control.screen().setLastFocus(&control);
    if (workbench_->history != nullptr) {
        workbench_->history->focusEntered(control);
    }
    workbench_->windows.reveal(control.screen()); // a handler may have hidden it since it was asked for
    workbench_->windows.raise(control.screen());
}

} // namespace wb
