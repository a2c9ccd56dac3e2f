#include "fields/field.h"

#include <algorithm>

#include "fields/reading.h"
#include "fields/words.h"

namespace wb::fields {

bool Where::covers(std::size_t byte) const {
    return std::any_of(begin(), end(), [byte](const BitRange& range) { return range.covers(byte); });
}

std::size_t Where::firstByte() const {
    return std::min_element(begin(), end(), [](const auto& a, const auto& b) { return a.byte < b.byte; })->byte;
}

int Where::bits() const {
    int count = 0;
    for (const BitRange& range : *this) {
        count += range.high - range.low + 1;
    }
    return count;
}

std::uint64_t Where::value(std::span<const std::uint8_t> image) const {
    std::uint64_t value = 0;
    for (const BitRange& range : *this) {
        const auto bits = static_cast<unsigned>(range.high - range.low + 1);
        value = value << bits | (image[range.byte] >> range.low & ((1U << bits) - 1));
    }
    return value;
}

std::string rawText(const Image& image, const Field& field) {
    const BitRange& first = field.where.front();
    if (first.count == 1) {
        return hexNumber(field.where.value(image.bytes()), field.where.bits());
    }
    std::string text;
    for (const unsigned byte : image.bytes().subspan(first.byte, first.count)) {
        text += hexNumber(byte, 8);
    }
    return text;
}

std::string_view severityName(Severity severity) {
    switch (severity) {
        case Severity::Note:
            return "note";
        case Severity::Warning:
            return "warning";
        case Severity::Error:
            break;
    }
    return "error";
}

} // namespace wb::fields
