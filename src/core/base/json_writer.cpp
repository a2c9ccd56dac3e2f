#include "core/base/json_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/base/code_page.h"

namespace wb {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

template <class Number>
void appendNumber(std::string& text, Number number) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    text.append(buffer.data(), end);
}

void appendEscape(std::string& text, char control) {
    switch (control) {
        case '"':
        case '\\':
            text += '\\';
            text += control;
            break;
        case '\n':
            text += "\\n";
            break;
        case '\t':
            text += "\\t";
            break;
        default:
            text += "\\u00";
            text += "0123456789abcdef"[static_cast<unsigned char>(control) >> 4U];
            text += "0123456789abcdef"[static_cast<unsigned char>(control) & 15U];
            break;
    }
}

/// ASCII that stands for itself, by its code: nearly every character of a text, so that a look into a table is worth
/// it.
constexpr std::array<bool, 256> plain = [] {
    std::array<bool, 256> result{};
    for (std::size_t code = ' '; code < 0x7F; ++code) {
        result[code] = code != '"' && code != '\\';
    }
    return result;
}();

std::size_t plainLength(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() && plain[static_cast<unsigned char>(text[length])]) {
        ++length;
    }
    return length;
}

} // namespace

JsonWriter& JsonWriter::begin(char bracket) {
    separate();
    text_ += bracket;
    owesComma_ = false;
    return *this;
}

JsonWriter& JsonWriter::end(char bracket) {
    text_ += bracket;
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
    separate();
    text_ += '"';
    text_ += name;
    text_ += "\":";
    owesComma_ = false;
    return *this;
}

JsonWriter& JsonWriter::value(std::string_view text) {
    separate();
    writeText(text);
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::value(bool truth) {
    separate();
    text_ += truth ? "true" : "false";
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::value(std::int64_t number) {
    separate();
    appendNumber(text_, number);
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::value(double number) {
    if (!std::isfinite(number)) {
        return null();
    }
    separate();
    appendNumber(text_, number);
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::null() {
    separate();
    text_ += "null";
    owesComma_ = true;
    return *this;
}

void JsonWriter::separate() {
    if (owesComma_) {
        text_ += ',';
    }
}

void JsonWriter::writeText(std::string_view text) {
    text_ += '"';
    while (!text.empty()) {
        const std::size_t run = plainLength(text);
        text_ += text.substr(0, run);
        text.remove_prefix(run);
        if (text.empty()) {
            break;
        }
        const std::size_t length = utf8SequenceLength(text);
        if (length == 0) {
            text_ += replacement;
        } else if (length == 1) {
            appendEscape(text_, text.front());
        } else {
            text_ += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    text_ += '"';
}

} // namespace wb
