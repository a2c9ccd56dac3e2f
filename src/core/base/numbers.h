#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Number rules: checked 16- and 32-bit integers, conversions that round halves to even, number patterns, plain decimal
/// texts. Everything here is independent of the locale.
namespace wb {

/// The number as a 16-bit integer; out of -32768 to 32767 it is an Overflow.
std::int16_t int16From(std::int64_t value);
/// The same for 32 bits with a sign.
std::int32_t int32From(std::int64_t value);

/// To an integer: the nearest whole number, halves to the even neighbour. Out of range is an Overflow.
std::int16_t roundToInt16(double value);
std::int32_t roundToInt32(double value);
/// The rounding alone, halves to even.
double roundHalfEven(double value);

/// The number that the whole text spells: blanks around, a sign, a point and an exponent may stand. A text that is no
/// number is a Type mismatch, a number beyond the range of a double an Overflow.
double strictNumber(std::string_view text);

/// The decimal number at the start of the text. Blanks, tabs and line ends are skipped wherever they stand before and
/// between the characters of the number; reading stops at the first character that cannot continue it; "&H" reads
/// hexadecimal digits. A text without a number gives 0. A number beyond the range of a double is an Overflow.
double leadingNumber(std::string_view text);

/// The number in a pattern of '#', '0' and at most one '.': each '0' before the point is a digit that always stands,
/// the characters behind the point are the decimals. Rounds halves away from zero on the exact value of the double.
/// What rounds to zero has no sign. A number that is not finite is an Overflow, and so is a result of more than 451
/// digits.
std::string formatNumber(double value, std::string_view pattern);
/// The pattern applied to a text: the text must be a number (Type mismatch otherwise).
std::string formatNumber(std::string_view text, std::string_view pattern);

/// A number as plain decimal text: up to 15 significant digits, no exponent, no trailing zeros. A number that is not
/// finite is an Overflow.
std::string plainDecimal(double value);

/// Upper-case hexadecimal without leading zeros; negative numbers in two's complement (four digits for 16, eight for 32
/// bits).
std::string hexadecimal16(std::int16_t value);
std::string hexadecimal32(std::int32_t value);

/// The code of the first character, 0 to 255. An empty text is an InvalidCall failure.
int characterCode(std::string_view text);

} // namespace wb
