#include "cea/digits.h"

#include <algorithm>

#include "core/base/bits.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"

namespace wb::cea {

std::string upperDigits(std::string_view cellText) {
    return HexToBinaryText(leftPart(cellText, 1));
}

std::string lowerDigits(std::string_view cellText) {
    return HexToBinaryText(middlePart(cellText, 2, 1));
}

int binaryNumber(Workbench& workbench, std::string_view digits) {
    return roundToInt16(strictNumber(BinaryTextToDecimal(workbench, digits)));
}

std::string binaryDigits(int number, int count) {
    std::string digits;
    for (int place = count - 1; place >= 0; --place) {
        digits += bit(number, place) ? '1' : '0';
    }
    return digits;
}

int shownRow(const Control& combo) {
    const auto& rows = combo.rows();
    const auto row = std::find(rows.begin(), rows.end(), combo.text());
    return row == rows.end() ? -1 : static_cast<int>(row - rows.begin());
}

} // namespace wb::cea
