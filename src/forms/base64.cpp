#include <array>

#include "core/base/image.h"
#include "forms/found.h"

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

/// Decodes from the front of the text up to what is no base64; `length` becomes how much of it that took.
std::string decode(std::string_view text, std::size_t& length) {
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (length = 0; length < text.size(); ++length) {
        const int value = sextet(text[length]);
        if (value < 0) {
            if (separates(text[length])) {
                continue;
            }
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
