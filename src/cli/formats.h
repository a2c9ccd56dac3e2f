#pragma once

#include <string>
#include <vector>

namespace wb::cli {

class Program;

/// The names of the formats in which an image can be written: "dat", "hex", "bin" and "report".
std::vector<std::string> formatNames();
/// What the option that takes one of them says.
inline constexpr const char* formatHelp = "dat (data file), hex (hexadecimal export), bin (binary) or report";

/// The loaded image in the format of that name. What cannot be written so is a CliError.
std::string contentAs(const std::string& format, Program& program);

} // namespace wb::cli
