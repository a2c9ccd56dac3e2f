#include "fields/place_text.h"

#include "core/base/text.h"

namespace wb::fields {

namespace {

std::string byteNumber(std::size_t number) {
    return ByteToHex2(static_cast<long long>(number));
}

} // namespace

std::string placeText(const Where& where) {
    std::string text;
    for (const BitRange& range : where) {
        text += text.empty() ? "" : "+";
        text += byteNumber(range.byte);
        if (range.count > 1) {
            text += '-' + byteNumber(range.byte + range.count - 1);
        } else if (range.high == range.low) {
            text += '[' + std::to_string(range.high) + ']';
        } else if (range.high != 7 || range.low != 0) {
            text += '[' + std::to_string(range.high) + ':' + std::to_string(range.low) + ']';
        }
    }
    return text;
}

} // namespace wb::fields
