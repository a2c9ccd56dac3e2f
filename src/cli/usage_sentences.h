#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What is told of wrong usage, in plain sentences.
namespace wb::cli {

/// "there is no command 'chek'; did you mean 'check'?"
std::string unknownCommand(std::string_view name, const std::vector<std::string>& known);
/// The same for an option, whose name has its dashes.
std::string unknownOption(std::string_view name, const std::vector<std::string>& known);

/// The known name that a mistyped one may stand for, up to a third of its letters wrong, left out, too many or swapped
/// with their neighbour, or the end missing; empty where none is near.
std::string nearestName(std::string_view name, const std::vector<std::string>& known);

} // namespace wb::cli
