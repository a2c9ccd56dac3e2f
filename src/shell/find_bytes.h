#pragma once

#include <string_view>

#include "core/workbench.h"

namespace wb::shell {

enum class Direction { Forward, Backward };

/// Looks through the cells of both blocks for what a text stands for: its characters, in any letter case, and where it
/// is nothing but pairs of hexadecimal digits, with or without blanks, those bytes too. Begins behind the cell that has
/// the focus, or in front of it, else at the end of the image; goes round there, and gives the focus to the first cell
/// of the place. False, and nothing is done, where there is no such place or its cell is out of reach.
bool findBytes(Workbench& workbench, std::string_view text, Direction direction);

} // namespace wb::shell
