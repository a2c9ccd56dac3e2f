#include "core/base/json_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/base/code_page.h"

namespace wb {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

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
    put(bracket);
    owesComma_ = false;
    return *this;
}

JsonWriter& JsonWriter::end(char bracket) {
    put(bracket);
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
    separate();
    put('"');
    put(name);
    put('"');
    put(':');
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
    put(truth ? "true" : "false");
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::value(std::int64_t number) {
    separate();
    putNumber(number);
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::value(double number) {
    if (!std::isfinite(number)) {
        return null();
    }
    separate();
    putNumber(number);
    owesComma_ = true;
    return *this;
}

JsonWriter& JsonWriter::null() {
    separate();
    put("null");
    owesComma_ = true;
    return *this;
}

void JsonWriter::separate() {
    if (owesComma_) {
        put(',');
    }
}

void JsonWriter::writeText(std::string_view text) {
    put('"');
    while (!text.empty()) {
        const std::size_t run = plainLength(text);
        put(text.substr(0, run));
        text.remove_prefix(run);
        if (text.empty()) {
            break;
        }
        const std::size_t length = utf8SequenceLength(text);
        if (length == 0) {
            put(replacement);
        } else if (length == 1) {
            writeEscape(text.front());
        } else {
            put(text.substr(0, length));
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    put('"');
}

void JsonWriter::writeEscape(char control) {
    constexpr std::string_view digits = "0123456789abcdef";
    switch (control) {
        case '"':
        case '\\':
            put('\\');
            put(control);
            break;
        case '\n':
            put("\\n");
            break;
        case '\t':
            put("\\t");
            break;
        default:
            put("\\u00");
            put(digits[static_cast<unsigned char>(control) >> 4U]);
            put(digits[static_cast<unsigned char>(control) & 15U]);
            break;
    }
}

void JsonWriter::putBeyondRoom(std::string_view text) {
    flush();
    if (text.size() > room_.size()) {
        text_ += text;
    } else {
        put(text);
    }
}

template <class Number>
void JsonWriter::putNumber(Number number) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    put(std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.data())));
}

void JsonWriter::flush() {
    text_.append(room_.data(), size_);
    size_ = 0;
}

} // namespace wb
