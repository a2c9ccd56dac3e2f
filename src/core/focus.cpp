#include "core/focus.h"

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
}

void Focus::clear() {
    if (inHandler_ || current_ == nullptr) {
        return;
    }
    run(nullptr);
}

void Focus::run(Control* next) {
    do {
        const bool calledBack = runLostFocus(next);
        if (next == nullptr) {
            current_ = nullptr;
            break;
        }
        enter(*next);
        runGotFocus(calledBack);
        next = waiting_;
        waiting_ = nullptr;
        if (next == current_ || (next != nullptr && !next->canTakeFocus())) {
            next = nullptr;
        }
    } while (next != nullptr);
    if (workbench_->view != nullptr) {
        workbench_->view->focusChanged();
    }
}

/// Runs LostFocus of the control that has the focus. What it asks for replaces `next`. Tells whether it called itself
/// back.
bool Focus::runLostFocus(Control*& next) {
    waiting_ = nullptr;
    if (current_ == nullptr) {
        return false;
    }
    Control* const old = current_;
    if (old->handlers().lostFocus != nullptr) {
        const HandlerMark mark(inHandler_);
        old->handlers().lostFocus(*workbench_, old->index());
    }
    Control* const asked = waiting_;
    waiting_ = nullptr;
    if (asked == nullptr || !asked->canTakeFocus()) {
        return false;
    }
    next = asked;
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
    workbench_->windows.raise(control.screen());
}

} // namespace wb
