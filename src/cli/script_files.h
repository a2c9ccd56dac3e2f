#pragma once

#include <span>

#include "script/driver.h"

namespace wb::cli {

/// The commands of a script that read and write image files in every form. What goes wrong with a file is a failure of
/// the script.
std::span<const script::CommandRow> fileCommands();

} // namespace wb::cli
