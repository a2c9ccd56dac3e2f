#pragma once

#include <string>
#include <vector>

namespace wb::cli {

/// The name that stands for standard input and output.
inline constexpr const char* standardStream = "-";

/// A file as it was read.
struct Input {
    std::string name; ///< as the user gave it; "-" is standard input
    std::string content;
};

/// Reads a file whole, in binary. One that cannot be read, a folder, and one above files::largestInput are a CliError.
Input readInput(const std::string& name);

/// Standard input can be read once only: naming it twice is a UsageError.
void requireOneStandardInput(const std::vector<std::string>& names);

} // namespace wb::cli
