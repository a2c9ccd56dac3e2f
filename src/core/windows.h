#pragma once

#include <vector>

#include "core/screen.h"

namespace wb {

/// Which screens are on view: the child windows of the frame, the active one first, and the modal screens.
class Windows {
public:
    explicit Windows(Workbench& workbench) : workbench_(&workbench) {}

    /// The shown child windows, the active one first.
    const std::vector<Screen*>& children() const { return children_; }
    Screen* activeChild() const { return children_.empty() ? nullptr : children_.front(); }
    /// The modal screen that is up, or null.
    Screen* modal() const { return modals_.empty() ? nullptr : modals_.back().screen; }
    /// Where bare keys go: the modal screen, else the active child, or null.
    Screen* active() const { return modal() != nullptr ? modal() : activeChild(); }

    /// Shows a screen and gives it the focus.
    void show(Screen& screen);
    /// Shows a screen modally; returns at once, its handlers do the rest.
    void showModal(Screen& screen);
    /// Hides a screen; the focus moves to the next child at once, with its events.
    void hide(Screen& screen);
    /// Runs the unload step of a loaded screen and, unless that refused, discards it. False when it refused.
    bool unload(ScreenId id);
    /// Puts a shown child in front of the others, without moving the focus.
    void raise(Screen& screen);
    /// Puts a screen on view behind the others.
    void reveal(Screen& screen);

private:
    struct Modal {
        Screen* screen;
        Control* focusBefore;
    };

    bool hasFocus(const Screen& screen) const;
    void removeFrom(Screen& screen);
    void activateNext();
    void changed();

    Workbench* workbench_;
    std::vector<Screen*> children_;
    std::vector<Modal> modals_;
};

} // namespace wb
