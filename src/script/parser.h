#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The lines of a script: one command a line, arguments separated by blanks, `#` for comment lines.
namespace wb::script {

struct Argument {
    std::string text;
    bool quoted = false; ///< stood in double quotes, so that it is no keyword
};

using Arguments = std::vector<Argument>;

struct Command {
    std::string name;
    Arguments arguments;
};

/// The command of one line (without its line end), or nothing for a comment or a blank line. A double-quoted argument
/// may hold \", \\, \n, \r, \t and \xHH. A line that breaks these rules is a ScriptError.
std::optional<Command> parseLine(std::string_view line);

} // namespace wb::script
