#include "cea/digits.h"

#include <algorithm>

#include "core/base/bits.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"

namespace wb::cea {

std::string_view upperDigits(std::string_view cellText) {
    return cellText.empty() ? std::string_view() : binaryDigitsOf(cellText.front());
}

std::string_view lowerDigits(std::string_view cellText) {
    return cellText.size() < 2 ? std::string_view() : binaryDigitsOf(cellText[1]);
}

std::string_view firstDigits(std::string_view digits, std::size_t count) {
    return digits.substr(0, count);
}

std::string_view lastDigits(std::string_view digits, std::size_t count) {
    return digits.substr(digits.size() - std::min(count, digits.size()));
}

int binaryNumber(Workbench& workbench, std::string_view digits) {
    constexpr std::size_t whole = 15; // digits that no 16-bit number is too small for
    if (digits.size() <= whole) {
        int number = 0;
        for (const char digit : digits) {
            number = 2 * number + (digit == '1' ? 1 : 0);
        }
        return number;
    }
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
