#include <algorithm>

#include "core/base/image.h"
#include "forms/found.h"
#include "forms/lines.h"

namespace wb::forms {

namespace {

/// The header of an image in base64 (RFC 4648, section 4), as far as the bytes behind it do not show.
constexpr std::string_view encodedHeader = "AP///////w";

int sextet(char c) {
    if (c >= 'A' && c <= 'Z') {
        return c - 'A';
    }
    if (c >= 'a' && c <= 'z') {
        return c - 'a' + 26;
    }
    if (c >= '0' && c <= '9') {
        return c - '0' + 52;
    }
    return c == '+' ? 62 : c == '/' ? 63 : -1;
}

/// Blanks, line ends, the quotes and marks between the lines of literals and quoted mails.
bool separates(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '"' || c == '\\' || c == '>';
}

bool isBareSeparator(std::string_view text, std::size_t place) {
    return place >= text.size() || separates(text[place]);
}

/// How many characters at a place separate digits though their letters are digits of base64 themselves: an escape for
/// a blank or a line end, and the plus that joins literals.
std::size_t wrappingLength(std::string_view text, std::size_t place) {
    const std::string_view escape = text.substr(place, 2);
    if (escape == "\\n" || escape == "\\r" || escape == "\\t") {
        return escape.size();
    }
    const bool alone = place > 0 && separates(text[place - 1]) && isBareSeparator(text, place + 1);
    return text[place] == '+' && alone ? 1 : 0;
}

/// The place behind all that separates digits from `place` on. No escape of another letter or digit is read: what it
/// stands for is not what it shows.
std::size_t behindGap(std::string_view text, std::size_t place) {
    while (place < text.size()) {
        const std::size_t wrapping = wrappingLength(text, place);
        const bool separator = separates(text[place]) &&
                               (text[place] != '\\' || place + 1 >= text.size() || !isWordCharacter(text[place + 1]));
        if (wrapping == 0 && !separator) {
            break;
        }
        place += std::max<std::size_t>(wrapping, 1);
    }
    return place;
}

/// Decodes from the front of the text up to what is no base64; `length` becomes how much of it that took.
std::string decode(std::string_view text, std::size_t& length) {
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (length = 0; (length = behindGap(text, length)) < text.size(); ++length) {
        const int value = sextet(text[length]);
        if (value < 0) {
            break;
        }
        bits = bits << 6U | static_cast<unsigned>(value);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> static_cast<unsigned>(count) & 0xFFU);
        }
    }
    return bytes;
}

} // namespace

std::vector<Found> readBase64(std::string_view text) {
    std::vector<Found> found;
    std::size_t place = text.find(encodedHeader);
    while (place != std::string_view::npos) {
        std::size_t length = 0;
        std::string bytes = decode(text.substr(place), length);
        if (bytes.size() >= Image::blockSize && bytes.starts_with(imageHeader)) {
            found.push_back({std::move(bytes), place});
        }
        place = text.find(encodedHeader, place + std::max<std::size_t>(length, 1));
    }
    return found;
}

} // namespace wb::forms
