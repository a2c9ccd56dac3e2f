#include "core/input.h"

#include <utility>

#include "core/base/text.h"
#include "core/keys.h"

namespace wb::input {

namespace {

bool holdsText(const Control& control) {
    return control.kind() == ControlKind::Text;
}

/// Replaces the selection, and puts the cursor behind what was put there.
void replaceSelection(Control& control, std::string_view by) {
    std::string text = control.text();
    const int start = control.selStart();
    text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(control.selLength()), by);
    control.setText(std::move(text));
    control.setSelection(start + static_cast<int>(by.size()), 0);
}

void insertCharacter(Control& control, int key) {
    const int length = static_cast<int>(control.text().size()) - control.selLength() + 1;
    if (!control.locked() && (control.maxLength() == 0 || length <= control.maxLength())) {
        replaceSelection(control, std::string(1, static_cast<char>(key)));
    }
}

void takeBackCharacter(Control& control) {
    if (control.locked()) {
        return;
    }
    if (control.selLength() == 0 && control.selStart() > 0) {
        control.setSelection(control.selStart() - 1, 1);
    }
    replaceSelection(control, {});
}

void keyUp(Workbench& workbench, Control& control, int code) {
    Screen& screen = control.screen();
    if (control.handlers().keyUp != nullptr) {
        control.handlers().keyUp(workbench, control.index(), code);
    }
    if (screen.keyUp != nullptr) {
        screen.keyUp(workbench, code);
    }
}

/// The whole of one key on a control: KeyPress, which may replace or drop it, the change of the text, KeyUp.
void runKey(Workbench& workbench, Control& control, char character, int code) {
    int key = static_cast<unsigned char>(character);
    if (control.handlers().keyPress != nullptr) {
        control.handlers().keyPress(workbench, control.index(), key);
    }
    if (holdsText(control)) {
        if (key == backspaceKey) {
            takeBackCharacter(control);
        } else if (key != 0 && key != enterKey) {
            insertCharacter(control, key);
        }
    }
    keyUp(workbench, control, code);
}

/// Runs an action of the user on a control.
template <class Action>
void act(Control& control, Deed deed, Action&& action) {
    control.screen().workbench().runUserAction(deed, &control, std::forward<Action>(action));
}

Control* focused(Workbench& workbench) {
    Control* control = workbench.focus.current();
    return control != nullptr && reachable(*control) ? control : nullptr;
}

} // namespace

bool reachable(const Screen& screen) {
    const Workbench& workbench = screen.workbench();
    const Screen* modal = workbench.windows.modal();
    return !workbench.ended && screen.shown() && (modal == nullptr || modal == &screen);
}

bool reachable(const Control& control) {
    return control.usable() && reachable(control.screen());
}

bool click(Control& control) {
    if (!reachable(control)) {
        return false;
    }
    act(control, Deed::Other, [&] {
        if (control.takesFocus()) {
            control.screen().workbench().focus.moveTo(control);
        }
        if (control.kind() == ControlKind::Option) {
            control.changeValue(-1);
        } else if (control.kind() == ControlKind::Check) {
            control.changeValue(control.value() == 0 ? 1 : 0);
        } else if (control.kind() == ControlKind::Combo) {
            return;
        }
        control.raiseClick();
    });
    return true;
}

bool doubleClick(Control& control) {
    if (!reachable(control)) {
        return false;
    }
    act(control, Deed::DoubleClick, [&] {
        if (control.handlers().dblClick != nullptr) {
            control.handlers().dblClick(control.screen().workbench(), control.index());
        }
    });
    return true;
}

bool moveFocus(Control& control) {
    if (!reachable(control) || !control.takesFocus()) {
        return false;
    }
    act(control, Deed::Other, [&] { control.screen().workbench().focus.moveTo(control); });
    return true;
}

bool pick(Control& combo, int row) {
    if (!reachable(combo)) {
        return false;
    }
    act(combo, Deed::Other, [&] {
        combo.screen().workbench().focus.moveTo(combo);
        combo.changeValue(row);
        combo.raiseClick();
    });
    return true;
}

bool typeCharacter(Workbench& workbench, char character) {
    return typeCharacter(workbench, character, keyCodeOf(character));
}

bool typeCharacter(Workbench& workbench, char character, int code) {
    Control* control = focused(workbench);
    if (control == nullptr) {
        return false;
    }
    act(*control, Deed::Key, [&] { runKey(workbench, *control, character, code); });
    return true;
}

bool enter(Workbench& workbench) {
    return typeCharacter(workbench, static_cast<char>(enterKey));
}

bool keyCode(Workbench& workbench, int code) {
    Screen* active = workbench.windows.active();
    if (active == nullptr || !reachable(*active)) {
        return false;
    }
    Control* control = focused(workbench);
    workbench.runUserAction(Deed::Key, control, [&] {
        if (control != nullptr && &control->screen() == active) {
            keyUp(workbench, *control, code);
        } else if (active->keyUp != nullptr) {
            active->keyUp(workbench, code);
        }
    });
    return true;
}

bool edit(Control& control, const std::string& text, int selectionStart, int selectionLength, int code) {
    if (!reachable(control) || !holdsText(control)) {
        return false;
    }
    Workbench& workbench = control.screen().workbench();
    act(control, Deed::Key, [&] {
        if (!control.locked()) {
            control.setText(text);
        }
        control.setSelection(selectionStart, selectionLength);
        if (code != 0) {
            keyUp(workbench, control, code);
        }
    });
    return true;
}

void select(Control& control, int start, int length) {
    control.setSelection(start, length);
}

bool choose(Control& entry) {
    if (!reachable(entry)) {
        return false;
    }
    act(entry, Deed::Other, [&] { entry.raiseClick(); });
    return true;
}

bool toolBar(Workbench& workbench, const std::string& key) {
    if (workbench.ended) {
        return false; // the frame is gone, and a touch would bring it back
    }
    ControlArray& buttons = workbench.frmMain().tbToolBar;
    for (int i = buttons.first(); i <= buttons.last(); ++i) {
        if (buttons(i).caption() == key) {
            return choose(buttons(i));
        }
    }
    return true;
}

bool close(Screen& screen) {
    if (!reachable(screen)) {
        return false;
    }
    Workbench& workbench = screen.workbench();
    workbench.runUserAction(Deed::Other, nullptr, [&] { workbench.close(screen); });
    return true;
}

bool activate(Screen& screen) {
    if (!reachable(screen)) {
        return false;
    }
    screen.workbench().runUserAction(Deed::Other, nullptr, [&] { screen.workbench().focus.moveTo(screen); });
    return true;
}

void placed(FrmMain& frame, float left, float top, float width, float height) {
    frame.Left = left;
    frame.Top = top;
    frame.Width = width;
    frame.Height = height;
}

void minimised(FrmMain& frame, bool isMinimised) {
    frame.minimised = isMinimised;
}

void resized(FrmDocument& document, int width, int height) {
    document.innerWidth = width;
    document.innerHeight = height;
    if (document.resize != nullptr) {
        Workbench& workbench = document.workbench();
        workbench.runUserAction(Deed::Other, nullptr, [&] { document.resize(workbench); });
    }
}

int keyCodeOf(char character) {
    constexpr int graveKey = 192; // its character code is that of a digit key of the number pad
    if (character == '`') {
        return graveKey;
    }
    return static_cast<unsigned char>(upperCase(character));
}

} // namespace wb::input
