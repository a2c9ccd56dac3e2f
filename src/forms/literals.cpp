#include <array>
#include <optional>

#include "core/base/digits.h"
#include "core/base/image.h"
#include "forms/found.h"
#include "forms/lines.h"

namespace wb::forms {

namespace {

/// Decimal bytes with commas or blanks between them.
class DecimalReader {
public:
    explicit DecimalReader(std::string_view text) : text_(text) {}

    /// The images among the runs of numbers: a number above 255, or anything else between two of them, ends a run.
    std::vector<Found> read() {
        while (place_ < text_.size()) {
            takeOne();
        }
        endRun();
        return std::move(found_);
    }

private:
    void takeOne() {
        const char c = text_[place_];
        if (isDecimalDigit(c)) {
            takeNumber();
        } else if (c == ',' || isBlank(c)) {
            ++place_;
        } else if (c == '\r' || c == '\n') {
            run_.noteEdge(++place_);
        } else if (c == '*') {
            run_ = {}; // rows of a dump were left out, and nothing says how many
            ++place_;
        } else {
            endRun();
            takeOther();
        }
    }

    void takeNumber() {
        const std::size_t start = place_;
        unsigned number = 0;
        for (; place_ < text_.size() && isDecimalDigit(text_[place_]); ++place_) {
            number = std::min(number * 10 + static_cast<unsigned>(text_[place_] - '0'), 1000U);
        }
        const bool endsWord = place_ == text_.size() || !isWordCharacter(text_[place_]);
        if (number > 255 || !endsWord || place_ - start > 3) {
            endRun();
            return;
        }
        if (run_.bytes.empty()) {
            run_.place = start;
        }
        run_.bytes += static_cast<char>(number);
        if (run_.bytes.size() <= imageHeader.size() && !imageHeader.starts_with(run_.bytes)) {
            restart(start, static_cast<char>(number));
        }
    }

    /// The number that broke off a header may begin one.
    void restart(std::size_t start, char number) {
        run_ = {};
        if (number == '\0') {
            run_.bytes += number;
            run_.place = start;
        }
    }

    /// A word is passed over whole, so that the digits at its end count for nothing.
    void takeOther() {
        const bool word = isWordCharacter(text_[place_]);
        ++place_;
        while (word && place_ < text_.size() && isWordCharacter(text_[place_])) {
            ++place_;
        }
    }

    void endRun() {
        run_.moveImagesTo(found_);
        run_ = {};
    }

    std::string_view text_;
    std::size_t place_ = 0;
    FoundRun run_;
    std::vector<Found> found_;
};

struct Escape {
    char letter;
    char character;
};

constexpr auto escapes = std::to_array<Escape>({{'n', '\n'},
                                                {'r', '\r'},
                                                {'t', '\t'},
                                                {'a', '\a'},
                                                {'b', '\b'},
                                                {'f', '\f'},
                                                {'v', '\v'},
                                                {'\\', '\\'},
                                                {'"', '"'},
                                                {'\'', '\''},
                                                {'?', '?'}});

/// String literals of C, Python and shells, one after the other.
class LiteralReader {
public:
    explicit LiteralReader(std::string_view text) : text_(text) {}

    std::vector<Found> read() {
        std::size_t place = 0;
        while ((place = text_.find_first_of("\"'", place)) != std::string_view::npos) {
            place = takeGroup(place);
        }
        return std::move(found_);
    }

private:
    /// Literals with nothing but blanks and line ends between them are one. Gives the place behind the last.
    std::size_t takeGroup(std::size_t start) {
        FoundRun group{.bytes = {}, .place = start};
        std::size_t end = start;
        std::size_t place = start;
        while (place < text_.size() && (text_[place] == '"' || text_[place] == '\'')) {
            group.noteEdge(place);
            const std::optional<std::size_t> behind = takeLiteral(place, group.bytes);
            if (!behind) {
                return end == start ? start + 1 : end;
            }
            end = *behind;
            place = text_.find_first_not_of(" \t\r\n\\bB", end);
            place = place == std::string_view::npos ? text_.size() : place;
        }
        group.moveImagesTo(found_);
        return end;
    }

    /// Appends the bytes of a literal. Gives the place behind it, or nothing where it does not end in its line.
    std::optional<std::size_t> takeLiteral(std::size_t start, std::string& bytes) const {
        std::size_t place = start + 1;
        while (place < text_.size() && text_[place] != '\n' && text_[place] != '\r') {
            if (text_[place] == text_[start]) {
                return place + 1;
            }
            if (text_[place] == '\\') {
                place = takeEscape(place + 1, bytes);
            } else {
                bytes += text_[place++];
            }
        }
        return std::nullopt;
    }

    std::size_t takeEscape(std::size_t place, std::string& bytes) const {
        if (place >= text_.size()) {
            return place;
        }
        if (text_[place] == 'x') {
            return takeDigits(place + 1, 16, 2, bytes);
        }
        if (text_[place] >= '0' && text_[place] <= '7') {
            return takeDigits(place, 8, 3, bytes);
        }
        for (const Escape& escape : escapes) {
            if (escape.letter == text_[place]) {
                bytes += escape.character;
            }
        }
        return place + 1;
    }

    std::size_t takeDigits(std::size_t place, int base, std::size_t most, std::string& bytes) const {
        int value = 0;
        for (std::size_t count = 0; count < most && place < text_.size(); ++count, ++place) {
            const int digit = hexDigit(text_[place]);
            if (digit < 0 || digit >= base) {
                break;
            }
            value = value * base + digit;
        }
        bytes += static_cast<char>(value);
        return place;
    }

    std::string_view text_;
    std::vector<Found> found_;
};

} // namespace

std::vector<Found> readDecimalLists(std::string_view text) {
    return DecimalReader(text).read();
}

std::vector<Found> readStringLiterals(std::string_view text) {
    return LiteralReader(text).read();
}

} // namespace wb::forms
