#pragma once

#include <string>

#include "core/workbench.h"

/// The shared file dialog of the frame. It keeps its filter and file name between calls; a cancel is no failure and
/// gives an empty name.
namespace wb::files {

std::string askOpenName(Workbench& workbench, const std::string& title, const std::string& filter);
std::string askSaveName(Workbench& workbench, const std::string& title, const std::string& filter);

} // namespace wb::files
