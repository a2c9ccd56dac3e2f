#include "block0/cell_writing.h"

#include <algorithm>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"

namespace wb::block0 {

void writeByte(BlockScreen& screen, int cell, int value) {
    screen.txtEdit(cell).setText(ByteToHex2(value));
}

void writeBits(BlockScreen& screen, int cell, BitRange range, int number) {
    writeByte(screen, cell, withBits(byteAt(screen, cell), range, number));
}

void mixBits(BlockScreen& screen, int cell, int kept, int number) {
    writeByte(screen, cell, (byteAt(screen, cell) & kept) | number);
}

std::string zeroFilled(std::string_view digits, std::size_t count) {
    return std::string(count - std::min(count, digits.size()), '0').append(digits);
}

std::int16_t patternInt16(double entry) {
    return roundToInt16(strictNumber(formatNumber(entry, "0")));
}

} // namespace wb::block0
