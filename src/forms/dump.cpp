#include <algorithm>
#include <array>
#include <optional>

#include "core/base/digits.h"
#include "core/base/image.h"
#include "forms/found.h"
#include "forms/lines.h"

namespace wb::forms {

namespace {

/// How a dump writes its bytes.
enum class Order {
    Pairs,      ///< pairs of hexadecimal digits in their order, grouped or not
    MostFirst,  ///< numbers of so many bytes, the most significant byte first
    LeastFirst, ///< the same, as the machines of today keep them
    Characters, ///< four columns a byte: a character, an escape or an octal number
};

struct UnitForm {
    Order order;
    int base;
    std::size_t fewestDigits;
    std::size_t mostDigits;
    std::size_t bytes;
};

/// From the most usual to the rarest. The header does not tell words of eight bytes from pairs in their order, but the
/// tools that write pairs put a colon behind the offset.
constexpr auto unitForms = std::to_array<UnitForm>({{Order::MostFirst, 16, 2, 2, 1},
                                                    {Order::LeastFirst, 16, 16, 16, 8},
                                                    {Order::Pairs, 16, 4, 64, 0},
                                                    {Order::LeastFirst, 16, 4, 4, 2},
                                                    {Order::LeastFirst, 16, 8, 8, 4},
                                                    {Order::MostFirst, 8, 3, 3, 1},
                                                    {Order::LeastFirst, 8, 6, 6, 2},
                                                    {Order::MostFirst, 10, 1, 3, 1},
                                                    {Order::LeastFirst, 10, 1, 5, 2},
                                                    {Order::Characters, 8, 1, 3, 1}});
constexpr auto offsetBases = std::to_array<int>({16, 8, 10});
/// An offset stands behind at most so many words of a log.
constexpr std::size_t mostPrefixWords = 12;

/// Takes the first word off a line; an empty one where there is none.
std::string_view takeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(" \t"));
    line.remove_prefix(word.size());
    return word;
}

std::optional<std::size_t> offsetOf(std::string_view word, int base) {
    if (word.ends_with(':')) {
        word.remove_suffix(1);
    }
    if (word.starts_with('+')) {
        word.remove_prefix(1);
    }
    if (hasHexPrefix(word)) {
        word.remove_prefix(2);
    }
    if (word.size() < 2 || !areHexDigits(word)) {
        return std::nullopt;
    }
    return wholeNumber<std::size_t>(word, base);
}

/// Appends the bytes of one unit. False where the word is none.
bool appendUnit(std::string_view word, const UnitForm& form, std::string& bytes) {
    if (word.size() < form.fewestDigits || word.size() > form.mostDigits) {
        return false;
    }
    if (form.order == Order::Pairs) {
        if (word.size() % 2 != 0 || !areHexDigits(word)) {
            return false;
        }
        for (std::size_t i = 0; i < word.size(); i += 2) {
            bytes += static_cast<char>(hexPair(word.substr(i, 2)));
        }
        return true;
    }
    const auto number = wholeNumber<std::uint64_t>(word, form.base);
    if (!number || (form.bytes < 8 && *number >> (8 * form.bytes) != 0)) {
        return false;
    }
    for (std::size_t i = 0; i < form.bytes; ++i) {
        const std::size_t shift = 8 * (form.order == Order::LeastFirst ? i : form.bytes - 1 - i);
        bytes += static_cast<char>(*number >> shift & 0xFFU);
    }
    return true;
}

struct Escape {
    std::string_view word;
    char character;
};

constexpr auto escapes = std::to_array<Escape>({{"\\0", '\0'},
                                                {"\\a", '\a'},
                                                {"\\b", '\b'},
                                                {"\\t", '\t'},
                                                {"\\n", '\n'},
                                                {"\\v", '\v'},
                                                {"\\f", '\f'},
                                                {"\\r", '\r'}});

std::optional<char> characterOf(std::string_view cell) {
    cell.remove_prefix(std::min(cell.find_first_not_of(' '), cell.size()));
    if (cell.empty()) {
        return ' ';
    }
    if (cell.size() == 1) {
        return cell.front();
    }
    for (const Escape& escape : escapes) {
        if (escape.word == cell) {
            return escape.character;
        }
    }
    const auto number = wholeNumber<unsigned>(cell, 8);
    return number && *number <= 0xFF ? std::optional(static_cast<char>(*number)) : std::nullopt;
}

/// The characters of a row from behind its offset on.
std::string charactersOf(std::string_view columns) {
    constexpr std::size_t width = 4;
    std::string bytes;
    for (std::size_t place = 0; place + width <= columns.size(); place += width) {
        const std::optional<char> character = characterOf(columns.substr(place, width));
        if (!character) {
            break;
        }
        bytes += *character;
    }
    return bytes;
}

/// Reads dumps of one kind of unit and offset.
class DumpReader {
public:
    DumpReader(std::string_view text, const UnitForm& form, int offsetBase)
        : text_(text), form_(form), offsetBase_(offsetBase) {}

    /// Reads from the line on that begins there.
    std::vector<Found> readFrom(std::size_t place) {
        place_ = place;
        while (place_ < text_.size()) {
            takeDump();
        }
        return std::move(found_);
    }

private:
    struct Row {
        std::size_t offset = 0;
        std::string bytes; ///< all that could be units, the text column included where it looks like some
    };

    /// The row of a line whose offset is from `least` to `most`.
    std::optional<Row> rowOf(std::string_view line, std::size_t least, std::size_t most) const {
        for (std::size_t k = 0; k < mostPrefixWords; ++k) {
            const std::string_view word = takeWord(line);
            if (word.empty()) {
                break;
            }
            const std::optional<std::size_t> offset = offsetOf(word, offsetBase_);
            if (offset && *offset >= least && *offset <= most) {
                Row row{*offset, {}};
                if (form_.order == Order::Characters) {
                    row.bytes = charactersOf(line);
                    return row;
                }
                if (form_.bytes == 8 && word.ends_with(':')) {
                    return std::nullopt;
                }
                while (appendUnit(takeWord(line), form_, row.bytes)) {
                }
                return row;
            }
        }
        return std::nullopt;
    }

    /// The place of the first line from `place` on that is not empty; the end of the text where there is none.
    std::size_t nextLine(std::size_t place) const {
        while (place < text_.size()) {
            const Line line = lineAt(text_, place);
            if (line.text.find_first_not_of(" \t") != std::string_view::npos) {
                break;
            }
            place = line.next;
        }
        return place;
    }

    /// What stands behind a row.
    struct Following {
        std::optional<Row> row; ///< nothing where the dump ends
        bool repeats = false;   ///< a line "*" stands in front of it
        std::size_t end = 0;    ///< where the line behind it begins
    };

    /// Looks for the row behind one of the dump, which begins at that offset. Its own offset tells the length of the
    /// one in front, as the text column of that may look like units too.
    Following behind(const Row& row, std::size_t offset) {
        place_ = nextLine(place_);
        Line line = lineAt(text_, place_);
        const bool repeats = line.text == "*";
        if (repeats) {
            place_ = nextLine(line.next);
            line = lineAt(text_, place_);
        }
        const std::size_t most = repeats ? farthestRepeat : offset + row.bytes.size();
        return {.row = rowOf(line.text, offset + 1, most), .repeats = repeats, .end = line.next};
    }

    /// Appends what a row of the dump shows, as often as a line "*" behind it repeats it. Gives the row behind it;
    /// nothing where it is the last, with the offset of the end behind it or not. `rowLength` is that of the rows in
    /// front and becomes its own.
    std::optional<Row> takeRow(const Row& row, std::size_t& rowLength, std::string& bytes) {
        Following following = behind(row, bytes.size());
        if (following.row && !following.repeats) {
            rowLength = following.row->offset - bytes.size();
        }
        const std::string shown = row.bytes.substr(0, rowLength);
        bytes += shown;
        if (!following.row) {
            return std::nullopt;
        }
        while (bytes.size() < following.row->offset) {
            bytes += shown.substr(0, following.row->offset - bytes.size());
        }
        place_ = following.end;
        return following.row->bytes.empty() ? std::nullopt : std::move(following.row);
    }

    /// Takes the dump that begins in this line, or the line alone where none does.
    void takeDump() {
        const Line first = lineAt(text_, place_);
        std::optional<Row> row = rowOf(first.text, 0, 0);
        const bool begins = row && row->bytes.starts_with(imageHeader);
        Found dump{.bytes = {}, .place = place_};
        place_ = first.next;
        if (!begins) {
            return;
        }
        std::size_t rowLength = row->bytes.size();
        while (row) {
            row = takeRow(*row, rowLength, dump.bytes);
        }
        if (dump.bytes.size() >= Image::blockSize) {
            found_.push_back(std::move(dump));
        }
    }

    /// The offset to which lines "*" may lead: an image has no more bytes.
    static constexpr std::size_t farthestRepeat = Image::blockSize * Image::mostBlocks;

    std::string_view text_;
    const UnitForm& form_;
    int offsetBase_;
    std::size_t place_ = 0; ///< of the line that is looked at next
    std::vector<Found> found_;
};

/// The first line in which a dump may begin, whatever its units: one with the offset 0, which is zeros in every base.
/// The end of the text where there is none.
std::size_t firstBeginning(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        Line line = lineAt(text, place);
        for (std::size_t k = 0; k < mostPrefixWords && !line.text.empty(); ++k) {
            if (offsetOf(takeWord(line.text), offsetBases.front()) == std::size_t{0}) {
                return place;
            }
        }
        place = line.next;
    }
    return text.size();
}

} // namespace

std::vector<Found> readDumps(std::string_view text) {
    const std::size_t beginning = firstBeginning(text);
    for (const UnitForm& form : unitForms) {
        for (const int base : offsetBases) {
            std::vector<Found> found = DumpReader(text, form, base).readFrom(beginning);
            if (!found.empty()) {
                return found;
            }
        }
    }
    return {};
}

} // namespace wb::forms
