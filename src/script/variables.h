#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "script/control_names.h"
#include "script/session.h"

/// The shared variables of the program, and those of a screen, by name.
namespace wb::script {

/// A variable found by its name.
using Variable = std::variant<std::string*, std::int16_t*, float*, bool*, TextArray*>;

/// The variable of a name such as "EDIDModified" or "frmEDID.CurrentBlockBase", without an index. A screen's own
/// touches the screen. An unknown name is a ScriptError.
Variable variableNamed(Workbench& workbench, const std::vector<NamePart>& parts);

/// Prints the variable as "NAME = VALUE", an array without an index as one line an element.
void printVariable(const Session& session, const std::string& name);

/// Sets a variable, or one element of an array. A value of the wrong kind is a ScriptError.
void setVariable(const Session& session, const std::string& name, const std::string& value);

} // namespace wb::script
