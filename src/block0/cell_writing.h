#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/base/bits.h"
#include "core/workbench.h"

/// How the panels write numbers and bits into cells.
namespace wb::block0 {

/// Replaces the text of a cell by the number in hexadecimal: at least two digits, more where it does not fit a byte. A
/// number that does not fit 16 bits is an Overflow.
void writeByte(BlockScreen& screen, int cell, int value);

/// Reads a cell as a byte and puts a number into its bits of a range; what of the number has no room there is dropped.
void writeBits(BlockScreen& screen, int cell, BitRange range, int number);
/// Reads a cell as a byte, leaves the bits of `kept` and adds those of a number, wherever they lie.
void mixBits(BlockScreen& screen, int cell, int kept, int number);

/// Hexadecimal digits with as many zeros in front as they need to be `count`; more digits stay whole.
std::string zeroFilled(std::string_view digits, std::size_t count);

/// An entry as it is written: rounded by the pattern "0" (halves away from zero) and read back as a 16-bit number.
std::int16_t patternInt16(double entry);

} // namespace wb::block0
