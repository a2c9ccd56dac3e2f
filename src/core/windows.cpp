#include "core/windows.h"

#include <algorithm>

#include "core/view.h"
#include "core/workbench.h"

namespace wb {

void Windows::show(Screen& screen) {
    workbench_->focus.moveTo(screen);
}

void Windows::showModal(Screen& screen) {
    modals_.push_back({&screen, workbench_->focus.current()});
    workbench_->focus.moveTo(screen);
    changed();
}

void Windows::hide(Screen& screen) {
    const bool followed = activeChild() == &screen || hasFocus(screen);
    screen.setShown(false);
    removeFrom(screen);
    if (followed) {
        activateNext();
    }
    if (hasFocus(screen) && !screen.shown()) {
        workbench_->focus.clear();
    }
    changed();
}

bool Windows::unload(ScreenId id) {
    Screen* screen = workbench_->loaded(id);
    if (screen == nullptr) {
        return true;
    }
    if (!workbench_->runUnload(*screen)) {
        return false;
    }
    const bool followed = activeChild() == screen || (screen->isChild() && hasFocus(*screen));
    const bool wasModal = modal() == screen;
    Control* const focusBefore = wasModal ? modals_.back().focusBefore : nullptr;
    workbench_->focus.forget(*screen);
    screen->setShown(false);
    removeFrom(*screen);
    for (Modal& entry : modals_) {
        if (entry.focusBefore != nullptr && &entry.focusBefore->screen() == screen) {
            entry.focusBefore = nullptr;
        }
    }
    workbench_->discard(id);
    changed();
    if (wasModal && focusBefore != nullptr && focusBefore->canTakeFocus() && focusBefore->screen().shown()) {
        workbench_->focus.moveTo(*focusBefore);
    } else if (followed) {
        activateNext();
    }
    return true;
}

void Windows::raise(Screen& screen) {
    const auto place = std::find(children_.begin(), children_.end(), &screen);
    if (place != children_.end() && place != children_.begin()) {
        std::rotate(children_.begin(), place, place + 1);
        changed();
    }
}

void Windows::reveal(Screen& screen) {
    if (screen.shown()) {
        return;
    }
    screen.setShown(true);
    if (screen.isChild()) {
        children_.push_back(&screen);
    }
    changed();
}

bool Windows::hasFocus(const Screen& screen) const {
    const Control* holder = workbench_->focus.current();
    return holder != nullptr && &holder->screen() == &screen;
}

void Windows::removeFrom(Screen& screen) {
    children_.erase(std::remove(children_.begin(), children_.end(), &screen), children_.end());
    modals_.erase(
        std::remove_if(modals_.begin(), modals_.end(), [&](const Modal& entry) { return entry.screen == &screen; }),
        modals_.end());
}

void Windows::activateNext() {
    if (Screen* next = activeChild(); next != nullptr) {
        workbench_->focus.moveTo(*next);
    }
}

void Windows::changed() {
    if (workbench_->view != nullptr) {
        workbench_->view->windowsChanged();
    }
}

} // namespace wb
