#pragma once

#include <string_view>

#include "core/workbench.h"

namespace wb::shell {

/// How far a text could be pasted.
struct Pasted {
    int pairs = 0;    ///< that were typed
    bool all = false; ///< there was one, and nothing of the text is left
};

/// Types the pairs of hexadecimal digits of a text into the cells from the one that has the focus on, as a user would:
/// for each pair the focus moves to the cell, and its two characters are typed. All of it is one step of the history.
/// What stands between pairs may be blanks, line ends, commas, semicolons and "0x". Ends with the grid, at anything
/// else, and at a cell that is locked or out of reach; does nothing where no cell has the focus.
Pasted pasteBytes(Workbench& workbench, std::string_view text);

} // namespace wb::shell
