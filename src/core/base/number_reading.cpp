#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "core/base/digits.h"
#include "core/base/failure.h"
#include "core/base/numbers.h"

namespace wb {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isSkipped(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Whether a decimal text that no double holds spells a number too close to zero, rather than one too large.
bool isTooSmall(std::string_view number) {
    const auto mark = std::min(number.find('e'), number.size());
    const std::string_view digits = number.substr(0, mark);
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    const std::string_view tail = number.substr(std::min(mark + 1, number.size()));
    std::int64_t exponent = 0;
    if (std::from_chars(tail.data(), tail.data() + tail.size(), exponent).ec == std::errc::result_out_of_range) {
        return tail.starts_with('-');
    }
    // The place of the first digit that counts, against the point, tells small from large.
    return exponent < first - point;
}

/// The double that a well-formed decimal text spells; what is too small for one becomes 0.
double parseDecimal(std::string_view number) {
    double value = 0;
    const auto [end, code] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (code != std::errc::result_out_of_range) {
        return value;
    }
    if (!isTooSmall(number)) {
        throw Failure(FailureKind::Overflow);
    }
    return 0;
}

/// Takes one decimal number from the start of a text.
class DecimalReader {
public:
    explicit DecimalReader(std::string_view text) : text_(text) {}

    /// The longest prefix that is a number, as from_chars takes it, or an empty text.
    std::string read() {
        std::string number;
        if (next('-')) {
            number += '-';
        } else {
            next('+');
        }
        const bool whole = digits(number);
        bool fraction = false;
        if (next('.')) {
            number += '.';
            fraction = digits(number);
        }
        if (!whole && !fraction) {
            return {};
        }
        exponent(number);
        return number;
    }

    bool atEnd() const { return at_ == text_.size(); }

private:
    /// Steps over that character, if it comes next.
    bool next(char c) {
        const bool here = at_ < text_.size() && text_[at_] == c;
        at_ += here ? 1 : 0;
        return here;
    }

    bool digits(std::string& number) {
        const auto from = at_;
        while (at_ < text_.size() && isDigit(text_[at_])) {
            number += text_[at_++];
        }
        return at_ > from;
    }

    void exponent(std::string& number) {
        const auto back = at_;
        if (!next('E') && !next('e')) {
            return;
        }
        std::string tail = "e";
        if (next('-')) {
            tail += '-';
        } else {
            next('+');
        }
        if (digits(tail)) {
            number += tail;
        } else {
            at_ = back;
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

/// The number that the hexadecimal digits at the start of the text spell, without a sign.
double leadingHexadecimal(std::string_view text) {
    double value = 0;
    for (const char c : text) {
        const int digit = hexDigit(c);
        if (digit < 0) {
            break;
        }
        value = value * 16 + digit;
    }
    if (std::isinf(value)) {
        throw Failure(FailureKind::Overflow);
    }
    return value;
}

/// The number of a text of up to 15 decimal digits and nothing else, which a double holds exactly, or nothing.
std::optional<double> plainWhole(std::string_view text) {
    constexpr std::size_t mostDigits = 15;
    if (text.empty() || text.size() > mostDigits) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    for (const char c : text) {
        if (!isDigit(c)) {
            return std::nullopt;
        }
        number = number * 10 + (c - '0');
    }
    return static_cast<double>(number);
}

} // namespace

double strictNumber(std::string_view text) {
    if (const std::optional<double> number = plainWhole(text)) {
        return *number;
    }
    while (!text.empty() && isSkipped(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isSkipped(text.back())) {
        text.remove_suffix(1);
    }
    DecimalReader reader(text);
    const std::string number = reader.read();
    if (number.empty() || !reader.atEnd()) {
        throw Failure(FailureKind::TypeMismatch);
    }
    return parseDecimal(number);
}

double leadingNumber(std::string_view text) {
    if (const std::optional<double> number = plainWhole(text)) {
        return *number;
    }
    std::string characters(text);
    characters.erase(std::remove_if(characters.begin(), characters.end(), &isSkipped), characters.end());
    if (characters.starts_with("&H") || characters.starts_with("&h")) {
        return leadingHexadecimal(std::string_view(characters).substr(2));
    }
    const std::string number = DecimalReader(characters).read();
    return number.empty() ? 0 : parseDecimal(number);
}

} // namespace wb
