#pragma once

#include <string>
#include <vector>

namespace wb::cli {

/// Runs the program with its arguments, without its name, and gives the exit status. What nothing else took care of is
/// told.
int runProgram(const std::vector<std::string>& arguments);

} // namespace wb::cli
