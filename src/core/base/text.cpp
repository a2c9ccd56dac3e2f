#include "core/base/text.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "core/base/numbers.h"

namespace wb {

namespace {

/// Two pieces of that size, which may overlap, make up the text.
template <std::size_t pieceSize>
void copyEnds(char* place, std::string_view text) {
    std::array<char, pieceSize> front;
    std::array<char, pieceSize> back;
    std::memcpy(front.data(), text.data(), pieceSize);
    std::memcpy(back.data(), text.data() + text.size() - pieceSize, pieceSize);
    std::memcpy(place, front.data(), pieceSize);
    std::memcpy(place + text.size() - pieceSize, back.data(), pieceSize);
}

/// Most texts have a few characters, for which a call costs more than the copying.
void copyTo(char* place, std::string_view text) {
    if (text.size() > 16) {
        std::memcpy(place, text.data(), text.size());
    } else if (text.size() >= 8) {
        copyEnds<8>(place, text);
    } else if (text.size() >= 4) {
        copyEnds<4>(place, text);
    } else if (text.size() >= 2) {
        copyEnds<2>(place, text);
    } else if (text.size() == 1) {
        *place = text.front();
    }
}

} // namespace

char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        c = upperCase(c);
    }
    return result;
}

std::string joined(Texts texts) {
    std::string result;
    join(result, texts);
    return result;
}

void join(std::string& target, Texts texts) {
    target.clear();
    append(target, texts);
}

void append(std::string& target, std::span<const std::string_view> texts) {
    std::array<char, 1024> room; // each growth of a text has its price, so that they come to it together
    std::size_t size = 0;
    for (const std::string_view text : texts) {
        if (text.size() > room.size() - size) {
            target.append(room.data(), size);
            size = 0;
        }
        if (text.size() > room.size()) {
            target += text;
        } else {
            copyTo(room.data() + size, text);
            size += text.size();
        }
    }
    target.append(room.data(), size);
}

std::string_view blanks(int count) {
    static constexpr auto room = [] {
        std::array<char, 128> filled{};
        filled.fill(' ');
        return filled;
    }();
    return {room.data(), static_cast<std::size_t>(std::clamp(count, 0, static_cast<int>(room.size())))};
}

std::string_view padding(std::string_view text, int width) {
    return blanks(width - static_cast<int>(text.size()));
}

std::string PadRight(std::string_view text, int width) {
    std::string result(text);
    if (static_cast<int>(text.size()) < width) {
        result.resize(static_cast<std::size_t>(width), ' ');
    }
    return result;
}

std::string PadLeft(std::string_view text, int width) {
    const int missing = width - static_cast<int>(text.size());
    return IndentText(text, missing);
}

std::string RepeatText(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

std::string IndentText(std::string_view text, int count) {
    std::string result(static_cast<std::size_t>(count > 0 ? count : 0), ' ');
    result += text;
    return result;
}

std::string CenterText(std::string_view text, int width) {
    std::string_view counted = text;
    if (text.find(crLf) != std::string_view::npos) {
        counted.remove_suffix(2);
    }
    const int length = static_cast<int>(counted.size());
    if (length == 0 || length >= width) {
        return {};
    }
    const double indent = roundHalfEven(width / 2.0 - length / 2.0);
    return IndentText(text, static_cast<int>(indent));
}

std::string StripTrailingCrLf(std::string_view text) {
    if (text.size() >= crLf.size() && text.substr(text.size() - crLf.size()) == crLf) {
        text.remove_suffix(crLf.size());
    }
    return std::string(text);
}

int HexDigitValue(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    const char first = upperCase(text.front());
    if (text.size() == 1 && first >= 'A' && first <= 'F') {
        return first - 'A' + 10;
    }
    return static_cast<unsigned char>(text.front()) - '0';
}

std::string ByteToHex2(long long value) {
    if (value >= 0 && value <= 255) {
        return std::string(byteText(static_cast<int>(value)));
    }
    return hexadecimal16(int16From(value));
}

std::string_view byteText(int byte) {
    static constexpr auto texts = [] {
        constexpr std::string_view digits = "0123456789ABCDEF";
        std::array<char, 512> all{};
        for (std::size_t value = 0; value < 256; ++value) {
            all[2 * value] = digits[value / 16];
            all[2 * value + 1] = digits[value % 16];
        }
        return all;
    }();
    return {texts.data() + 2 * static_cast<std::size_t>(byte), 2};
}

std::string HexToBinaryText(std::string_view text) {
    std::string result;
    result.reserve(text.size() * 4);
    for (const char c : text) {
        result += binaryDigitsOf(c);
    }
    return result;
}

std::string_view binaryDigitsOf(char c) {
    static constexpr std::string_view nibbles = "0000000100100011010001010110011110001001101010111100110111101111";
    if (c >= '0' && c <= '9') {
        return nibbles.substr(static_cast<std::size_t>(c - '0') * 4, 4);
    }
    if (c >= 'A' && c <= 'F') {
        return nibbles.substr(static_cast<std::size_t>(c - 'A' + 10) * 4, 4);
    }
    return {};
}

std::string leftPart(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, count));
}

std::string rightPart(std::string_view text, std::size_t count) {
    return std::string(text.size() > count ? text.substr(text.size() - count) : text);
}

std::string middlePart(std::string_view text, std::size_t position, std::size_t count) {
    return position > text.size() ? std::string() : std::string(text.substr(position - 1, count));
}

std::string inQuotes(std::string_view text) {
    return joined({"'", text, "'"});
}

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
            case '"':
                result += "\\\"";
                break;
            case '\\':
                result += "\\\\";
                break;
            case '\r':
                result += "\\r";
                break;
            case '\n':
                result += "\\n";
                break;
            case '\t':
                result += "\\t";
                break;
            default:
                if (c >= ' ' && c <= '~') {
                    result += c;
                } else {
                    const auto code = static_cast<unsigned char>(c);
                    result += "\\x";
                    result += "0123456789ABCDEF"[code >> 4U];
                    result += "0123456789ABCDEF"[code & 15U];
                }
        }
    }
    return result + '"';
}

} // namespace wb
