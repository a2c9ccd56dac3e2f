#pragma once

#include "script/control_names.h"
#include "script/session.h"

namespace wb::script {

/// Prints a property of a control as "NAME.PROPERTY = VALUE"; the rows of a combo are printed one a line, or only the
/// one whose index is given. An unknown property is a ScriptError.
void printProperty(const Session& session, const Control& control, const NamePart& property);

/// The same for a screen's own property: its caption, or whether it is shown.
void printProperty(const Session& session, const Screen& screen, const NamePart& property);

} // namespace wb::script
