#include <algorithm>
#include <optional>

#include "core/base/digits.h"
#include "core/base/image.h"
#include "forms/found.h"
#include "forms/lines.h"

namespace wb::forms {

namespace {

/// What may stand in a line between two rows.
constexpr std::string_view fillers = " \t>{}[](),;\\\"'";

/// The hexadecimal bytes of a line, as far as they stand together at its end.
struct HexRun {
    std::string bytes;
    bool wholeLine = false; ///< nothing but marks stands before them
    bool marked = false;    ///< each had a mark such as "0x"
    bool filler = false;    ///< the line has nothing but comments and brackets
};

/// One word of a line, which is a number where its digits are hexadecimal.
struct Word {
    std::string_view digits; ///< without a mark such as "0x"
    bool marked = false;
    std::size_t end = 0; ///< its place in the line
};

bool isHexWord(std::string_view word) {
    return !word.empty() && areHexDigits(word);
}

/// Splits a line into words and reads those that are hexadecimal. It looks at them twice, as a list of the words of a
/// long line would be many times as large as the line.
class LineReader {
public:
    explicit LineReader(std::string_view line) : line_(withoutComments(line)) {}

    HexRun read() {
        for (std::size_t place = 0; place < line_.size();) {
            if (isWordCharacter(line_[place])) {
                place = takeWord(place);
                continue;
            }
            // With words behind them, these end the head of a log's line, or the name and size of an array.
            endsHead_ = endsHead_ || std::string_view("[](=).").find(line_[place]) != std::string_view::npos;
            ++place;
        }
        return run();
    }

private:
    /// Comments of C and of shells; what a quoted mail has in front.
    static std::string_view withoutComments(std::string_view line) {
        while (!line.empty() && (isBlank(line.front()) || line.front() == '>')) {
            line.remove_prefix(1);
        }
        for (const std::string_view mark : {"//", "/*", "#"}) {
            line = line.substr(0, line.find(mark));
        }
        const std::size_t semicolon = line.find(';');
        return semicolon != std::string_view::npos && beginsWithWords(line.substr(semicolon + 1))
                   ? line.substr(0, semicolon)
                   : line;
    }

    /// A semicolon begins a comment where a word follows it that is no byte; elsewhere it stands between bytes.
    static bool beginsWithWords(std::string_view text) {
        std::size_t place = 0;
        while (place < text.size() && !isWordCharacter(text[place])) {
            ++place;
        }
        std::size_t end = place;
        while (end < text.size() && isWordCharacter(text[end])) {
            ++end;
        }
        const std::string_view word = text.substr(place, end - place);
        return !word.empty() && !isHexWord(word) && !hasHexPrefix(word);
    }

    void forget() {
        other_ = other_ || first_ != line_.size();
        first_ = line_.size();
        marked_ = false;
    }

    std::size_t takeWord(std::size_t place) {
        if (endsHead_) {
            forget();
            endsHead_ = false;
        }
        const Word word = wordAt(place);
        if (!isHexWord(word.digits)) {
            forget();
            other_ = true;
        } else {
            first_ = std::min(first_, place);
            last_ = place;
            marked_ = marked_ || word.marked;
        }
        return word.end;
    }

    Word wordAt(std::size_t place) const {
        std::size_t end = place;
        while (end < line_.size() && isWordCharacter(line_[end])) {
            ++end;
        }
        const std::string_view word = line_.substr(place, end - place);
        const bool escaped = place > 0 && line_[place - 1] == '\\' && word.starts_with('x');
        const bool prefixed = hasHexPrefix(word);
        return {.digits = word.substr(escaped ? 1 : prefixed ? 2 : 0), .marked = escaped || prefixed, .end = end};
    }

    /// Where any number has a mark, those without one are none of the image's.
    HexRun run() const {
        HexRun result{.bytes = {}, .wholeLine = !other_, .marked = marked_, .filler = isFiller()};
        const std::size_t width = wordAt(first_).digits.size();
        for (std::size_t place = first_; place < line_.size();) {
            if (!isWordCharacter(line_[place])) {
                ++place;
                continue;
            }
            const Word word = wordAt(place);
            const bool last = place == last_;
            place = word.end;
            if (marked_ && !word.marked) {
                continue;
            }
            const bool single = marked_ && word.digits.size() == 1;
            if (!single && (word.digits.size() % 2 != 0 || (!marked_ && !last && word.digits.size() != width))) {
                return {};
            }
            appendPairs(single ? 1 : 2, word.digits, result.bytes);
        }
        return result;
    }

    bool isFiller() const { return line_.find_first_not_of(fillers) == std::string_view::npos; }

    static void appendPairs(std::size_t digits, std::string_view word, std::string& bytes) {
        for (std::size_t i = 0; i < word.size(); i += digits) {
            int value = 0;
            for (const char digit : word.substr(i, digits)) {
                value = value * 16 + hexDigit(digit);
            }
            bytes += static_cast<char>(value);
        }
    }

    std::string_view line_;
    std::size_t first_ = line_.size(); ///< the number from which on they count; the end of the line where there is none
    std::size_t last_ = 0;             ///< the last one
    bool marked_ = false;              ///< one of those that count has a mark
    bool other_ = false;               ///< something that is no byte stands in front
    bool endsHead_ = false;            ///< one of the marks that end the head of a line came last
};

/// Collects the lines of images.
class HexLinesReader {
public:
    explicit HexLinesReader(std::string_view text) : text_(text) {}

    std::vector<Found> read() {
        while (place_ < text_.size()) {
            const Line line = lineAt(text_, place_);
            takeLine(line);
            place_ = behind(line);
        }
        end();
        return std::move(found_);
    }

private:
    /// Where to go on behind a line: behind the end of the C comment that it leaves open; one that does not end is
    /// none.
    std::size_t behind(const Line& line) {
        const std::size_t begin = line.text.rfind("/*");
        const bool open = begin != std::string_view::npos && line.text.find("*/", begin) == std::string_view::npos;
        if (!open || !commentsEnd_) {
            return line.next;
        }
        const std::size_t end = text_.find("*/", line.next);
        commentsEnd_ = end != std::string_view::npos;
        return commentsEnd_ ? end + 2 : line.next;
    }

    void takeLine(const Line& line) {
        const HexRun run = LineReader(line.text).read();
        if (image_ && line.text == "*") {
            image_.reset(); // rows were left out, and nothing says how many
        }
        if (image_ && continues(line, run)) {
            return;
        }
        if (image_) {
            end();
        }
        begin(line, run);
    }

    void begin(const Line& line, const HexRun& run) {
        const std::size_t start = run.bytes.find(imageHeader.substr(0, std::min(imageHeader.size(), run.bytes.size())));
        if (run.bytes.empty() || start == std::string::npos || (run.bytes.size() == 1 && !run.wholeLine)) {
            return;
        }
        image_ = Found{run.bytes.substr(start), place_};
        lead_ = start;
        rowLength_ = image_->bytes.size();
        anyLength_ = start == 0 && run.wholeLine;
        open_ = leavesOpen(line.text);
        afterWords_ = false;
    }

    /// Whether a line says itself that the next one goes on with it.
    static bool leavesOpen(std::string_view line) {
        const std::size_t last = line.find_last_not_of(" \t");
        return last != std::string_view::npos && (line[last] == ',' || line[last] == '\\');
    }

    /// Adds a line to the image. False where it is none of its lines.
    bool continues(const Line& line, HexRun run) {
        if (line.text.find_first_not_of(" \t>") == std::string_view::npos) {
            return true;
        }
        const bool betweenBlocks = image_->bytes.size() % Image::blockSize == 0;
        const bool complete = betweenBlocks && isComplete(image_->bytes);
        if (betweenBlocks && !run.wholeLine && run.bytes.size() > lead_) {
            run.bytes.erase(0, lead_); // the line that begins a block is made like the first
        }
        if (betweenBlocks && beginsList(line.text, run)) {
            open_ = true;
            afterWords_ = true;
            return !complete;
        }
        if (run.bytes.empty()) {
            return passesOver(line.text, run, complete);
        }
        if (betweenBlocks && (complete || afterWords_) && run.bytes.starts_with(imageHeader)) {
            return false; // another image, whose rows may be made otherwise
        }
        return takeRow(line.text, run);
    }

    /// Whether a line is the head of a list, such as HKR,EDID_OVERRIDE,"1",0x01,\ in front of the rows of a block.
    static bool beginsList(std::string_view line, const HexRun& run) {
        return !run.wholeLine && run.bytes.size() < 2 && leavesOpen(line);
    }

    /// Whether a line without bytes may stand between two rows of a list: comments and brackets do, words do not, and
    /// no comment does behind a complete image.
    bool passesOver(std::string_view line, const HexRun& run, bool complete) {
        const bool comment = line.find_first_not_of(fillers) != std::string_view::npos;
        afterWords_ = afterWords_ || comment;
        return run.filler && !(comment && complete);
    }

    /// Adds a row to the image. False where its length is not that of a row, or the bytes begin with no header.
    bool takeRow(std::string_view line, const HexRun& run) {
        afterWords_ = false;
        if (!fits(run)) {
            return false;
        }
        image_->bytes += run.bytes;
        open_ = leavesOpen(line);
        return image_->bytes.substr(0, imageHeader.size()) == imageHeader.substr(0, image_->bytes.size());
    }

    /// Whether a row has the length of the first, or ends a block and is shorter; some lists have rows of any length.
    bool fits(const HexRun& run) const {
        return open_ || (anyLength_ && run.wholeLine) || run.bytes.size() == rowLength_ ||
               (run.bytes.size() < rowLength_ && (image_->bytes.size() + run.bytes.size()) % Image::blockSize == 0);
    }

    void end() {
        if (image_ && image_->bytes.size() >= Image::blockSize && image_->bytes.starts_with(imageHeader)) {
            found_.push_back(std::move(*image_));
        }
        image_.reset();
    }

    std::string_view text_;
    std::size_t place_ = 0;   ///< of the line
    bool commentsEnd_ = true; ///< no comment was met whose end does not come any more
    std::optional<Found> image_;
    std::size_t lead_ = 0;      ///< bytes in front of the header in the first line
    std::size_t rowLength_ = 0; ///< bytes of the first line
    bool open_ = false;         ///< the last line taken leaves its list open
    bool afterWords_ = false;   ///< a comment, or the head of a list, stands behind the last row
    bool anyLength_ = false;    ///< nothing but hexadecimal stands in the first line, so that rows may be of any length
    std::vector<Found> found_;
};

bool separates(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ',';
}

} // namespace

std::vector<Found> readHexLines(std::string_view text) {
    return HexLinesReader(text).read();
}

std::vector<Found> readBareHex(std::string_view text) {
    std::string bytes;
    int high = -1;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool prefix =
            text[place] == '0' && place + 1 < text.size() && (text[place + 1] == 'x' || text[place + 1] == 'X');
        if (prefix && high < 0) {
            ++place;
            continue;
        }
        if (separates(text[place])) {
            continue;
        }
        const int digit = hexDigit(text[place]);
        if (digit < 0) {
            return {};
        }
        if (high < 0) {
            high = digit;
        } else {
            bytes += static_cast<char>(high * 16 + digit);
            high = -1;
        }
    }
    if (high >= 0 || bytes.size() < Image::blockSize) {
        return {};
    }
    return {{std::move(bytes), 0}};
}

} // namespace wb::forms
