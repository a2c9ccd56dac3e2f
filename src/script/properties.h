#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/workbench.h"

namespace wb::script {

/// A property as scripts print it.
struct PropertyValue {
    std::string name;  ///< such as "frmEDID.txtEdit(8).Text"
    std::string value; ///< a text in quotes
};

/// The property of a name "SCREEN.CONTROL(i).PROPERTY", or "SCREEN.PROPERTY" for a screen's caption and whether it is
/// shown; the rows of a combo without an index are one value each. Touches the screen. An unknown name is a
/// ScriptError.
std::vector<PropertyValue> propertiesNamed(Workbench& workbench, std::string_view name);

} // namespace wb::script
