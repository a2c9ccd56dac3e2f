#pragma once

#include <string>
#include <vector>

namespace wb::cli {

/// Reads the arguments of the program and runs the command that they name; gives the exit status. Help and version are
/// printed, wrong usage is told with the status of its own.
int runCommandLine(const std::vector<std::string>& arguments);

/// The exit status where something that nothing took care of, such as a full disk below standard output, stops what the
/// arguments ask for: never one that tells a result.
int statusWhenStopped(const std::vector<std::string>& arguments);

} // namespace wb::cli
