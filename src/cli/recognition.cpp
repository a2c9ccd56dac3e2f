#include "cli/recognition.h"

#include <algorithm>
#include <optional>

#include "core/base/digits.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "files/data_file.h"

namespace wb::cli {

namespace {

bool holdsMarker(std::string_view bytes) {
    const auto sameLetter = [](char a, char b) { return upperCase(a) == b; };
    return std::search(bytes.begin(), bytes.end(), files::dataFileMarker.begin(), files::dataFileMarker.end(),
                       sameLetter) != bytes.end();
}

bool separates(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ',';
}

bool isPrefix(std::string_view text) {
    return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

/// Takes the digits of one word. False where it holds anything else, or half a byte after a prefix.
bool takeDigits(std::string_view word, std::string& digits) {
    if (isPrefix(word)) {
        word.remove_prefix(2);
        if (word.empty() || word.size() % 2 != 0 || digits.size() % 2 != 0) {
            return false;
        }
    }
    digits += word;
    return std::all_of(word.begin(), word.end(), [](char c) { return hexDigit(c) >= 0; });
}

std::optional<std::string> hexDigits(std::string_view bytes) {
    std::string digits;
    for (std::size_t place = 0; place < bytes.size();) {
        if (separates(bytes[place])) {
            ++place;
            continue;
        }
        const std::size_t start = place;
        while (place < bytes.size() && !separates(bytes[place])) {
            ++place;
        }
        if (!takeDigits(bytes.substr(start, place - start), digits)) {
            return std::nullopt;
        }
    }
    return digits;
}

std::string bytesOf(std::string_view digits) {
    std::string bytes;
    bytes.reserve(digits.size() / 2);
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes += static_cast<char>(hexDigit(digits[i]) * 16 + hexDigit(digits[i + 1]));
    }
    return bytes;
}

bool isTextCharacter(char c) {
    return (c >= ' ' && c <= '~') || (c >= '\t' && c <= '\r');
}

bool isBinaryImage(std::string_view bytes) {
    if (bytes.size() < blockSize) {
        return false;
    }
    return IsEDIDHeaderValid(bytes) ||
           (bytes.size() % blockSize == 0 && !std::all_of(bytes.begin(), bytes.end(), isTextCharacter));
}

} // namespace

Content recognise(std::string_view bytes) {
    if (holdsMarker(bytes)) {
        return {ContentKind::DataFile, {}};
    }
    const std::optional<std::string> digits = hexDigits(bytes);
    if (digits && digits->size() % 2 == 0 && digits->size() / 2 >= blockSize) {
        return {ContentKind::HexText, bytesOf(*digits)};
    }
    if (isBinaryImage(bytes)) {
        return {ContentKind::Binary, std::string(bytes)};
    }
    return {};
}

} // namespace wb::cli
