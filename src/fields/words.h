#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// How values are worded.
namespace wb::fields {

/// A number of that many bits in hexadecimal, in as many digits as they need.
std::string hexNumber(std::uint64_t number, int bits);
/// A number with as many decimals as are asked for.
std::string decimalText(double value, int decimals);
/// "number unit".
std::string withUnit(std::string number, std::string_view unit);
/// "name[number]": the place in a list.
std::string numbered(std::string_view name, std::size_t number);
/// "A3 0F": bytes in hexadecimal.
std::string hexText(std::span<const std::uint8_t> bytes);
/// A text of 8-bit characters in UTF-8 without control characters, which stand as "\x0D".
std::string printable(std::string_view characters);

} // namespace wb::fields
