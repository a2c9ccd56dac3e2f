#pragma once

namespace wb {

struct Workbench;
class Control;
class Screen;

/// The one focus of the program. A move runs LostFocus of the old control and GotFocus of the new one. Asked for while
/// one of these handlers runs it waits until the handler has returned, and the latest request wins.
class Focus {
public:
    explicit Focus(Workbench& workbench) : workbench_(&workbench) {}

    Control* current() const { return current_; }

    /// Moves the focus. A control that cannot take it is an InvalidCall failure; a screen that is not shown is shown.
    void moveTo(Control& control);
    /// Gives the focus to a screen (which shows it): to the control that last had it there, or the first in tab order.
    void moveTo(Screen& screen);
    /// Takes the focus from a screen that is going away, without LostFocus.
    void forget(Screen& screen);
    /// Leaves the control that has the focus, with its LostFocus, for nothing.
    void clear();

private:
    void run(Control* target);
    bool runLostFocus();
    void runGotFocus(bool calledBack);
    void enter(Control& control);

    Workbench* workbench_;
    Control* current_ = nullptr;
    Control* target_ = nullptr; ///< where a move under way goes
    Control* waiting_ = nullptr;
    bool inHandler_ = false;
};

} // namespace wb
