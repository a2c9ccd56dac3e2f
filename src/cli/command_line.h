#pragma once

#include <string>
#include <vector>

namespace wb::cli {

/// Reads the arguments of the program and runs the command that they name; gives the exit status. Help and version are
/// printed, wrong usage is told with the status of its own.
int runCommandLine(std::vector<std::string> arguments);

} // namespace wb::cli
