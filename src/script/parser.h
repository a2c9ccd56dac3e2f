#pragma once

#include <map>
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

/// Texts by the names under which lines call for them.
using Substitutions = std::map<std::string, std::string, std::less<>>;

/// Whether a text can be such a name: letters of ASCII, digits and underscores, and no digit at first.
bool isSubstitutionName(std::string_view text);

/// The command of one line (without its line end), or nothing for a comment or a blank line. A double-quoted argument
/// may hold \", \\, \n, \r, \t and \xHH. `$NAME` in a command or an argument, quoted or not, stands for the text of
/// that name, which is taken as it is: its blanks, quotes and backslashes mean nothing. Where there is no text of that
/// name the characters stand for themselves. A line that breaks these rules is a ScriptError.
std::optional<Command> parseLine(std::string_view line, const Substitutions& substitutions = {});

} // namespace wb::script
