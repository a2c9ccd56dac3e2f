#include "core/base/code_page.h"

#include <array>
#include <cstdint>
#include <optional>

namespace wb {

namespace {

/// Windows code page 1252, codes 128 to 159; the five holes keep their code. All other codes are those of Unicode.
constexpr std::array<std::uint16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char32_t firstUpperControl = 128;

bool isUpperControl(char32_t code) {
    return code >= firstUpperControl && code < firstUpperControl + upperControls.size();
}

char toCodePage(char32_t character) {
    return unicodeToCodePage(character).value_or('?');
}

enum class ByteOrder { LeastFirst, MostFirst };

std::string decodeUtf16(std::string_view bytes, ByteOrder order) {
    const auto unitAt = [&](std::size_t place) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[place]);
        const auto second = static_cast<unsigned char>(bytes[place + 1]);
        return order == ByteOrder::LeastFirst ? first | (second << 8U) : second | (first << 8U);
    };
    std::string text;
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2) {
        const char32_t unit = unitAt(place);
        const bool leads = unit >= 0xD800 && unit <= 0xDBFF;
        if (leads && place + 3 < bytes.size() && (unitAt(place + 2) & 0xFC00U) == 0xDC00) {
            place += 2; // no character beyond the first 65,536 is in the code page
        }
        text += toCodePage(unit);
    }
    return text;
}

/// Length of the UTF-8 sequence that a byte begins, 0 if it begins none.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// The character whose sequence stands at the front of `bytes`, which is as long as the sequence.
std::optional<char32_t> decodeSequence(std::string_view bytes) {
    static constexpr auto leadBits = std::to_array<char32_t>({0, 0x7F, 0x1F, 0x0F, 0x07});
    static constexpr auto least = std::to_array<char32_t>({0, 0, 0x80, 0x800, 0x10000});
    char32_t character = static_cast<unsigned char>(bytes[0]) & leadBits[bytes.size()];
    for (const char c : bytes.substr(1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        character = (character << 6U) | (byte & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < least[bytes.size()] || character > 0x10FFFF || surrogate) {
        return std::nullopt;
    }
    return character;
}

std::optional<std::string> decodeUtf8(std::string_view bytes) {
    std::string text;
    for (std::size_t place = 0; place < bytes.size();) {
        const std::size_t length = sequenceLength(static_cast<unsigned char>(bytes[place]));
        if (length == 0 || place + length > bytes.size()) {
            return std::nullopt;
        }
        const std::optional<char32_t> character = decodeSequence(bytes.substr(place, length));
        if (!character) {
            return std::nullopt;
        }
        text += toCodePage(*character);
        place += length;
    }
    return text;
}

} // namespace

char16_t codePageToUnicode(char character) {
    const auto code = static_cast<unsigned char>(character);
    return isUpperControl(code) ? upperControls[code - firstUpperControl] : char16_t{code};
}

std::optional<char> unicodeToCodePage(char32_t character) {
    for (std::size_t i = 0; i < upperControls.size(); ++i) {
        if (upperControls[i] == character) {
            return static_cast<char>(firstUpperControl + i);
        }
    }
    if (character > 0xFF || isUpperControl(character)) {
        return std::nullopt;
    }
    return static_cast<char>(character);
}

std::size_t utf8SequenceLength(std::string_view text) {
    const std::size_t length = text.empty() ? 0 : sequenceLength(static_cast<unsigned char>(text[0]));
    const bool whole = length != 0 && length <= text.size() && decodeSequence(text.substr(0, length)).has_value();
    return whole ? length : 0;
}

std::string codePageToUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char character : text) {
        const unsigned code = codePageToUnicode(character);
        if (code < 0x80) {
            utf8 += character;
            continue;
        }
        if (code < 0x800) {
            utf8 += static_cast<char>(0xC0U | code >> 6U);
        } else {
            utf8 += static_cast<char>(0xE0U | code >> 12U);
            utf8 += static_cast<char>(0x80U | (code >> 6U & 0x3FU));
        }
        utf8 += static_cast<char>(0x80U | (code & 0x3FU));
    }
    return utf8;
}

std::string decodeTextFile(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) {
        return decodeUtf16(bytes.substr(2), ByteOrder::LeastFirst);
    }
    if (bytes.starts_with("\xFE\xFF")) {
        return decodeUtf16(bytes.substr(2), ByteOrder::MostFirst);
    }
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    return decodeUtf8(bytes).value_or(std::string(bytes));
}

std::string fromUtf16(std::string_view bytes) {
    return decodeUtf16(bytes, ByteOrder::LeastFirst);
}

} // namespace wb
