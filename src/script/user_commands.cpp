#include "core/base/digits.h"
#include "core/base/text.h"
#include "script/commands.h"
#include "script/control_names.h"
#include "script/script_error.h"

namespace wb::script::commands {

namespace {

void refuse(const Session& session, const std::string& name) {
    session.print("[refused] " + name);
    if (session.strict) {
        throw ScriptError("refused: " + name, ScriptError::Kind::Failure);
    }
}

/// Carries out an action on a control, if that exists.
template <class Action>
void act(const Session& session, const ControlName& name, Action&& action) {
    Control* control = name.find(session.workbench);
    if (control == nullptr || !action(*control)) {
        refuse(session, name.full());
    }
}

int numberIn(const Argument& argument) {
    const auto number = wholeNumber<int>(argument.text);
    if (!number) {
        throw ScriptError("'" + argument.text + "' is no number");
    }
    return *number;
}

/// What a key would have reached.
std::string keyTarget(const Workbench& workbench) {
    const Control* control = workbench.focus.current();
    return control == nullptr ? "none" : control->fullName();
}

} // namespace

void menu(Session& session, const Arguments& arguments) {
    act(session, menuEntryNamed(session.workbench, arguments[0].text),
        [&](Control& entry) { return session.frontEnd.chooseMenu(entry); });
}

void modify(Session& session, const Arguments& arguments) {
    const std::string& state = arguments[0].text;
    if (state != "on" && state != "off") {
        throw ScriptError("editing is 'on' or 'off', not '" + state + "'");
    }
    if ((session.workbench.ModifyEDIDOn != flagFalse) != (state == "on")) {
        act(session, controlNamed(session.workbench, "frmMain.Command2"),
            [&](Control& button) { return session.frontEnd.click(button); });
    }
}

void toolbar(Session& session, const Arguments& arguments) {
    const std::string& key = arguments[0].text;
    if (const std::optional<ControlName> button = findToolBarButton(key)) {
        act(session, *button, [&](const Control&) { return session.frontEnd.pressToolBar(key); });
    }
}

void click(Session& session, const Arguments& arguments) {
    act(session, controlNamed(session.workbench, arguments[0].text),
        [&](Control& control) { return session.frontEnd.click(control); });
}

void dblclick(Session& session, const Arguments& arguments) {
    act(session, controlNamed(session.workbench, arguments[0].text),
        [&](Control& control) { return session.frontEnd.doubleClick(control); });
}

void focus(Session& session, const Arguments& arguments) {
    act(session, controlNamed(session.workbench, arguments[0].text),
        [&](Control& control) { return session.frontEnd.moveFocus(control); });
}

void type(Session& session, const Arguments& arguments) {
    for (const char character : arguments[0].text) {
        const std::string target = keyTarget(session.workbench);
        if (!session.frontEnd.typeCharacter(character)) {
            refuse(session, target);
            return;
        }
    }
}

void enter(Session& session, const Arguments&) {
    const std::string target = keyTarget(session.workbench);
    if (!session.frontEnd.enter()) {
        refuse(session, target);
    }
}

void keyup(Session& session, const Arguments& arguments) {
    const int code = numberIn(arguments[0]);
    const Screen* active = session.workbench.windows.active();
    const std::string target(active == nullptr ? "none" : active->name());
    if (!session.frontEnd.keyCode(code)) {
        refuse(session, target);
    }
}

void pick(Session& session, const Arguments& arguments) {
    const ControlName name = controlNamed(session.workbench, arguments[0].text);
    if (name.kind != ControlKind::Combo) {
        throw ScriptError("'" + name.full() + "' has no rows");
    }
    const int row = numberIn(arguments[1]);
    act(session, name, [&](Control& combo) {
        if (row < 0 || row >= static_cast<int>(combo.rows().size())) {
            throw ScriptError("'" + name.full() + "' has no row " + arguments[1].text);
        }
        return session.frontEnd.pick(combo, row);
    });
}

void close(Session& session, const Arguments& arguments) {
    Screen* screen = session.workbench.loaded(screenNamed(arguments[0].text));
    if (screen == nullptr || !session.frontEnd.close(*screen)) {
        refuse(session, arguments[0].text);
    }
}

void drop(Session& session, const Arguments& arguments) {
    if (!session.frontEnd.drop(arguments[0].text)) {
        refuse(session, "frmMain");
    }
}

void goToByte(Session& session, const Arguments& arguments) {
    const int byte = numberIn(arguments[0]);
    if (!session.frontEnd.goToByte(byte)) {
        refuse(session, "byte " + std::to_string(byte));
    }
}

void undo(Session& session, const Arguments&) {
    if (!session.frontEnd.undo()) {
        refuse(session, "undo");
    }
}

void redo(Session& session, const Arguments&) {
    if (!session.frontEnd.redo()) {
        refuse(session, "redo");
    }
}

void paste(Session& session, const Arguments& arguments) {
    if (!session.frontEnd.paste(arguments[0].text)) {
        refuse(session, "paste at " + keyTarget(session.workbench));
    }
}

void find(Session& session, const Arguments& arguments) {
    const bool forward = arguments.size() == 1;
    if (!forward && arguments[1].text != "back") {
        throw ScriptError("a search goes on or 'back', not '" + arguments[1].text + "'");
    }
    if (!session.frontEnd.find(arguments[0].text, forward)) {
        refuse(session, "find " + quoted(arguments[0].text));
    }
}

void timing(Session& session, const Arguments& arguments) {
    const int byte = numberIn(arguments[0]);
    try {
        if (!session.frontEnd.enterTiming(byte, fields::readModeline(arguments[1].text))) {
            refuse(session, "timing at byte " + std::to_string(byte));
        }
    } catch (const fields::ModelineError& error) {
        throw ScriptError(error.what());
    }
}

} // namespace wb::script::commands
