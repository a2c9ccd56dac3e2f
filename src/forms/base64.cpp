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

/// How many characters at a place separate digits though their letters are digits of base64 themselves: an escape for
/// a blank or a line end, and the plus that joins literals.
std::size_t wrappingLength(std::string_view text, std::size_t place) {
    const std::string_view escape = text.substr(place, 2);
    if (escape == "\\n" || escape == "\\r" || escape == "\\t") {
        return escape.size();
    }
    const bool alone =
        place > 0 && separates(text[place - 1]) && (place + 1 == text.size() || separates(text[place + 1]));
    return text[place] == '+' && alone ? 1 : 0;
}

/// What stands between two digits.
struct Gap {
    std::size_t end = 0;   ///< the place behind it
    bool endsLine = false; ///< or may, as an escape stands in it
};

/// No escape of another letter or digit is passed over: what it stands for is not what it shows.
Gap gapAt(std::string_view text, std::size_t place) {
    Gap gap{.end = place};
    while (gap.end < text.size()) {
        const char c = text[gap.end];
        const std::size_t wrapping = wrappingLength(text, gap.end);
        const bool escapes = c == '\\' && gap.end + 1 < text.size() && isWordCharacter(text[gap.end + 1]);
        if (wrapping == 0 && (escapes || !separates(c))) {
            break;
        }
        gap.endsLine = gap.endsLine || c == '\r' || c == '\n' || wrapping == 2;
        gap.end += std::max<std::size_t>(wrapping, 1);
    }
    return gap;
}

/// Decodes from a header up to what is no base64.
class Decoder {
public:
    Decoder(std::string_view text, std::size_t place) : text_(text), place_(place), run_{.bytes = {}, .place = place} {}

    FoundRun run() {
        while (takeDigit()) {
            const Gap gap = gapAt(text_, place_);
            if (gap.end != place_ && !goesOnBehind(gap)) {
                break;
            }
            place_ = gap.end;
        }
        return std::move(run_);
    }

    /// Where it ended.
    std::size_t place() const { return place_; }

private:
    bool takeDigit() {
        const int value = place_ < text_.size() ? sextet(text_[place_]) : -1;
        if (value < 0) {
            return false;
        }
        ++place_;
        ++digits_;
        bits_ = bits_ << 6U | static_cast<unsigned>(value);
        pending_ += 6;
        if (pending_ >= 8) {
            pending_ -= 8;
            run_.bytes += static_cast<char>(bits_ >> pending_ & 0xFFU);
        }
        return true;
    }

    bool goesOnBehind(const Gap& gap) {
        if (gap.endsLine && !isRow(gap.end)) {
            return false;
        }
        // A header begins another text behind a complete image and where no byte begins. At an edge it may begin
        // another block, and inside an image its bytes may be any.
        const bool atEdge = pending_ == 0 && run_.noteEdge(gap.end);
        const bool mayEnd = pending_ != 0 || isComplete(run_.bytes);
        return atEdge || !mayEnd || !text_.substr(gap.end).starts_with(encodedHeader);
    }

    /// Whether the line that goes on at a place is one word of base64, and neither words nor the name of something.
    bool isRow(std::size_t place) const {
        std::size_t end = place;
        while (end < text_.size() && sextet(text_[end]) >= 0) {
            ++end;
        }
        std::size_t padded = end;
        while (padded < text_.size() && text_[padded] == '=') {
            ++padded;
        }
        if (padded != end) {
            const bool inFours = (digits_ + padded - place) % 4 == 0;
            return inFours && (padded == text_.size() || !isWordCharacter(text_[padded]));
        }
        while (end < text_.size() && isBlank(text_[end])) {
            ++end;
        }
        return end == text_.size() || wrappingLength(text_, end) != 0 ||
               (!isWordCharacter(text_[end]) && std::string_view("+/-.:(=").find(text_[end]) == std::string_view::npos);
    }

    std::string_view text_;
    std::size_t place_;
    std::size_t digits_ = 0;
    unsigned bits_ = 0;
    unsigned pending_ = 0; ///< of the bits, how many are none of a byte yet
    FoundRun run_;
};

} // namespace

std::vector<Found> readBase64(std::string_view text) {
    std::vector<Found> found;
    std::size_t place = text.find(encodedHeader);
    while (place != std::string_view::npos) {
        Decoder decoder(text, place);
        decoder.run().moveImagesTo(found);
        place = text.find(encodedHeader, decoder.place());
    }
    return found;
}

} // namespace wb::forms
