#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// Fields of a byte as the binary digits of a cell's text. A character that is no upper-case hexadecimal digit
/// contributes no digits.
namespace wb::cea {

/// The four binary digits of the first and of the second character of a cell.
std::string_view upperDigits(std::string_view cellText);
std::string_view lowerDigits(std::string_view cellText);
/// Digits in front and behind, as far as there are that many.
std::string_view firstDigits(std::string_view digits, std::size_t count);
std::string_view lastDigits(std::string_view digits, std::size_t count);

/// The number that binary digits spell; no digits are 0.
int binaryNumber(Workbench& workbench, std::string_view digits);
/// `count` binary digits of a number.
std::string binaryDigits(int number, int count);

/// The number of the first row of a combo box that equals its shown text, or -1.
int shownRow(const Control& combo);

} // namespace wb::cea
