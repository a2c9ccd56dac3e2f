#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// Fields of a byte as the binary digits of a cell's text. A character that is no upper-case hexadecimal digit
/// contributes no digits.
namespace wb::cea {

/// The four binary digits of the first and of the second character of a cell.
std::string upperDigits(std::string_view cellText);
std::string lowerDigits(std::string_view cellText);

/// The number that binary digits spell; no digits are 0.
int binaryNumber(Workbench& workbench, std::string_view digits);
/// `count` binary digits of a number.
std::string binaryDigits(int number, int count);

/// The number of the first row of a combo box that equals its shown text, or -1.
int shownRow(const Control& combo);

} // namespace wb::cea
