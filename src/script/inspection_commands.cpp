#include "core/base/text.h"
#include "script/callable.h"
#include "script/commands.h"
#include "script/control_names.h"
#include "script/properties.h"
#include "script/script_error.h"
#include "script/variables.h"

namespace wb::script::commands {

namespace {

constexpr int cellsPerLine = 16;

/// A cell as it stands if it is two visible characters, else quoted.
std::string cellText(const std::string& text) {
    const auto visible = [](char c) { return c >= '!' && c <= '~'; };
    return text.size() == 2 && visible(text[0]) && visible(text[1]) ? text : quoted(text);
}

void runAndPrint(const Session& session, std::string_view name, const Callable& callable, const Arguments& arguments) {
    if (const ResultText result = callable.run(session.workbench, arguments)) {
        printValue(session, name, *result);
    }
}

} // namespace

void poke(Session& session, const Arguments& arguments) {
    const ControlName name = controlNamed(session.workbench, arguments[0].text);
    name.touch(session.workbench).setText(arguments[1].text);
}

void get(Session& session, const Arguments& arguments) {
    for (const PropertyValue& property : propertiesNamed(session.workbench, arguments[0].text)) {
        printValue(session, property.name, property.value);
    }
}

void expect(Session& session, const Arguments& arguments) {
    const std::vector<PropertyValue> properties = propertiesNamed(session.workbench, arguments[0].text);
    if (properties.size() != 1) {
        throw ScriptError("'" + arguments[0].text + "' has " + std::to_string(properties.size()) + " values, not one");
    }
    const auto& [name, value] = properties.front();
    const std::string expected = value.starts_with('"') ? quoted(arguments[1].text) : arguments[1].text;
    if (value != expected) {
        throw ScriptError("expected " + name + " = " + expected + ", but it is " + value, ScriptError::Kind::Failure);
    }
}

void var(Session& session, const Arguments& arguments) {
    printVariable(session, arguments[0].text);
}

void let(Session& session, const Arguments& arguments) {
    setVariable(session, arguments[0].text, arguments[1].text);
}

void cells(Session& session, const Arguments& arguments) {
    auto& screen = static_cast<BlockScreen&>(session.workbench.touch(blockScreenNamed(arguments[0].text)));
    for (int first = 0; first < BlockScreen::cellCount; first += cellsPerLine) {
        std::string line = ByteToHex2(first) + ':';
        for (int index = first; index < first + cellsPerLine; ++index) {
            line += ' ' + cellText(screen.txtEdit(index).text());
        }
        session.print(line);
    }
}

void focused(Session& session, const Arguments&) {
    const Control* control = session.workbench.focus.current();
    printValue(session, "focus", control == nullptr ? "none" : control->fullName());
}

void windows(Session& session, const Arguments&) {
    std::string names;
    for (const Screen* child : session.workbench.windows.children()) {
        names += (names.empty() ? "" : " ") + std::string(child->name());
    }
    printValue(session, "windows", names.empty() ? "none" : names);
}

void report(Session& session, const Arguments&) {
    const auto* document = static_cast<const FrmDocument*>(session.workbench.loaded(ScreenId::Document));
    printBlock(session, "report", document == nullptr ? std::string() : document->rtftext.text());
}

void history(Session& session, const Arguments&) {
    const auto words = [](const std::string& name) { return name.empty() ? "none" : quoted(name); };
    printValue(session, "undo", words(session.workbench.history->undoName()));
    printValue(session, "redo", words(session.workbench.history->redoName()));
}

void call(Session& session, const Arguments& arguments) {
    const std::string& name = arguments[0].text;
    const Callable& helper = helperNamed(name);
    if (arguments.size() - 1 != helper.argumentCount) {
        throw ScriptError("'" + name + "' takes another number of arguments: " + std::to_string(helper.argumentCount));
    }
    runAndPrint(session, name, helper, Arguments(arguments.begin() + 1, arguments.end()));
}

void run(Session& session, const Arguments& arguments) {
    const std::string& name = arguments[0].text;
    runAndPrint(session, name, procedureNamed(name), {});
}

} // namespace wb::script::commands
