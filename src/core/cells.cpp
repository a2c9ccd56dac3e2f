#include "core/cells.h"

#include <algorithm>

#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb {

namespace {

/// 16 * first digit + second digit; a missing digit counts as 0.
int codeOf(std::string_view text) {
    const std::string_view rest = text.substr(std::min<std::size_t>(text.size(), 1));
    return HexDigitValue(text.substr(0, 1)) * 16 + HexDigitValue(rest.substr(0, 1));
}

bool isByte(int code) {
    return code >= 0 && code <= 255;
}

} // namespace

std::string HexTextToChar(Workbench& workbench, std::string_view text) {
    return trappedOr(workbench, std::string(), [&] {
        const int code = codeOf(text);
        if (!isByte(code)) {
            throw Failure(FailureKind::InvalidCall);
        }
        return std::string(1, static_cast<char>(code));
    });
}

std::string BinaryTextToDecimal(Workbench& workbench, std::string_view text) {
    return trappedOr(workbench, std::string(), [&] {
        std::uint32_t sum = 0;
        for (std::size_t distance = 0; distance < text.size(); ++distance) {
            if (text[text.size() - 1 - distance] == '1') {
                if (distance > 31) {
                    throw Failure(FailureKind::Overflow);
                }
                sum |= std::uint32_t{1} << distance;
            }
        }
        return std::to_string(sum);
    });
}

double Value(Workbench& workbench, std::string_view text) {
    return trappedOr(workbench, 0.0, [&] { return leadingNumber(text); });
}

int byteOf(Workbench& workbench, std::string_view cellText) {
    const int code = codeOf(cellText);
    if (isByte(code)) {
        return code; // the usual case, which needs no text of one character
    }
    return characterCode(HexTextToChar(workbench, cellText));
}

std::string hexToDecimalText(Workbench& workbench, std::string_view hexText) {
    return BinaryTextToDecimal(workbench, HexToBinaryText(hexText));
}

} // namespace wb
