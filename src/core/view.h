#pragma once

namespace wb {

class Control;
class Screen;

/// What a view learns of the model. All calls come from inside the statement that causes them; none may call back into
/// the model.
class View {
public:
    virtual ~View() = default;
    virtual void controlChanged(Control& control) = 0;
    virtual void screenChanged(Screen& screen) = 0; ///< caption, or shown or hidden
    virtual void screenLoaded(Screen& screen) = 0;  ///< after its load step
    virtual void screenUnloaded(
        Screen& screen) = 0;           ///< its controls go when the outermost call into the model has returned
    virtual void windowsChanged() = 0; ///< order of the child windows, modal screens, end of the program
    virtual void focusChanged() = 0;
};

} // namespace wb
