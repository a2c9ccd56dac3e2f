#pragma once

#include <string>
#include <string_view>

#include "core/base/digits.h"
#include "core/workbench.h"

/// Reading cells: conversions of texts that trap their own failures, and the value of a cell.
namespace wb {

/// One character of code 16 * first digit + second digit. A missing digit counts as 0. A code out of 0 to 255 is an
/// InvalidCall, shown here, and the result is empty.
std::string HexTextToChar(Workbench& workbench, std::string_view text);

/// The decimal text of a text of binary digits; every character but "1" counts as 0. A sum beyond 32 bits without a
/// sign is an Overflow, shown here, and the result is empty.
std::string BinaryTextToDecimal(Workbench& workbench, std::string_view text);

/// The decimal number at the start of the text (see leadingNumber). A failure is shown here, and the result is 0.
double Value(Workbench& workbench, std::string_view text);

/// The value of a cell text: its HexTextToChar, then the code of that character, 0 to 255. A text that cannot be
/// converted gives the helper's box and is an InvalidCall failure of the caller.
int byteOf(Workbench& workbench, std::string_view cellText);

/// byteOf of cell `index` of a block screen, box and all; an index outside the grid is a ControlElementMissing failure.
inline int byteAt(BlockScreen& screen, int index) {
    const std::string& text = screen.txtEdit(index).text();
    const int pair = hexPair(text);
    return pair >= 0 ? pair : byteOf(screen.workbench(), text); // which gives the same for a pair, but slowly
}

/// The number that the binary form of hexadecimal digits gives, as decimal text.
std::string hexToDecimalText(Workbench& workbench, std::string_view hexText);

} // namespace wb
