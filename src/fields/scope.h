#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "fields/reading.h"
#include "fields/words.h"

namespace wb::fields {

class Scope;

/// A part of a row's bits, counted from the start of its structure.
struct Part {
    std::size_t offset = 0;
    std::uint8_t high = 7;
    std::uint8_t low = 0;
};

/// The parts of a row, the highest part of its value first.
class Parts {
public:
    constexpr Parts(std::initializer_list<Part> parts) {
        for (const Part& part : parts) {
            list_[size_++] = part;
        }
    }
    constexpr const Part* begin() const { return list_.data(); }
    constexpr const Part* end() const { return list_.data() + size_; }

private:
    std::array<Part, 4> list_{};
    std::size_t size_ = 0;
};

/// What a raw value stands for in words.
struct Choice {
    std::uint64_t raw;
    std::string_view text;
    bool isReserved = false; ///< whether no standard gave it a meaning
};

/// A value among those of a Number to which no standard gave a meaning.
constexpr Choice reservedChoice(std::uint64_t raw) {
    return {raw, "reserved", true};
}

enum class Kind {
    Number,   ///< raw * scale + bias; a raw value that `choices` names has that text instead, and no value, and is
              ///< told as a finding where it is reserved
    Signed,   ///< the same, the raw value in two's complement
    Flag,     ///< one bit, "yes" or "no"
    Choice,   ///< one of `choices`; any other raw value is reserved, which is told as a finding
    Text,     ///< `length` characters from the offset of its one part on, ended by a line feed and padded with blanks
    Bytes,    ///< `length` bytes from there on, without a meaning of their own
    Reserved, ///< the same, or the bits of the parts, that the standard wants to be 0; any other value is a finding
};

/// One field of a structure.
struct Row {
    std::string_view name; ///< last part of its path
    std::string_view label;
    Parts parts;
    Kind kind = Kind::Number;
    std::string_view unit = {};
    double scale = 1;
    double bias = 0;
    int decimals = 0; ///< of a number's text; where there are none, the value is a whole number
    std::span<const Choice> choices = {};
    std::size_t length = 1; ///< bytes of a Text, of Bytes, of whole reserved bytes
    std::string_view clause = {};
    bool identifies = false; ///< tells one unit from the others of its model
    /// Sets value and text itself where the kinds above do not tell enough; gets the raw value.
    void (*read)(const Scope& scope, std::uint64_t raw, Field& field) = nullptr;
};

/// Bit `bit` of the byte at `offset` as "yes" or "no".
constexpr Row flagAt(std::size_t offset, std::uint8_t bit, std::string_view name, std::string_view label) {
    return {.name = name, .label = label, .parts = {{offset, bit, bit}}, .kind = Kind::Flag};
}

/// Bits that the standard wants to be 0.
constexpr Row reservedAt(std::size_t offset, std::uint8_t high, std::uint8_t low, std::string_view name) {
    return {.name = name, .label = "Reserved", .parts = {{offset, high, low}}, .kind = Kind::Reserved};
}

/// Bits that stand for one of `choices`.
constexpr Row choiceAt(Part part, std::string_view name, std::string_view label, std::span<const Choice> choices) {
    return {.name = name, .label = label, .parts = {part}, .kind = Kind::Choice, .choices = choices};
}

/// The first byte of its structure that a row has bits in, and the one behind the last.
constexpr std::size_t firstByteOf(const Row& row) {
    return std::min_element(row.parts.begin(), row.parts.end(),
                            [](const Part& a, const Part& b) { return a.offset < b.offset; })
        ->offset;
}
constexpr std::size_t endOf(const Row& row) {
    std::size_t end = 0;
    for (const Part& part : row.parts) {
        end = std::max(end, part.offset + row.length);
    }
    return end;
}

/// Whether the rows cover whole bytes without gaps, each bit once, and stand in the order of their first bytes.
constexpr bool coverWholeBytes(std::span<const Row> rows) {
    std::array<unsigned, Image::blockSize> covered{};
    const std::size_t first = firstByteOf(rows.front());
    std::size_t end = first;
    std::size_t bits = 0;
    for (const Row& row : rows) {
        for (const Part& part : row.parts) {
            for (std::size_t byte = part.offset; byte < part.offset + row.length; ++byte) {
                covered.at(byte) |= (2U << part.high) - (1U << part.low);
                bits += part.high - part.low + 1U;
            }
        }
        end = std::max(end, endOf(row));
    }
    const auto isWhole = [](unsigned byte) { return byte == 0xFF; };
    return bits == 8 * (end - first) && std::all_of(covered.data() + first, covered.data() + end, isWhole) &&
           std::is_sorted(rows.begin(), rows.end(),
                          [](const Row& a, const Row& b) { return firstByteOf(a) < firstByteOf(b); });
}

/// A table of rows that coverWholeBytes; another does not compile.
class WholeRows {
public:
    template <std::size_t size>
    consteval WholeRows(const std::array<Row, size>& rows) : rows_(rows) {
        if (!coverWholeBytes(rows)) {
            throw std::logic_error("The rows leave gaps, overlap or are out of order.");
        }
    }
    std::span<const Row> rows() const { return rows_; }

private:
    std::span<const Row> rows_;
};

/// Writes the fields of one structure of the image, in a table or one by one. Paths are put behind the structure's own.
class Scope {
public:
    /// `clause` is that of rows and findings that name none.
    Scope(Reading& reading, std::size_t start, std::string path, std::string_view clause)
        : reading_(&reading), start_(start), path_(std::move(path)), clause_(clause) {}

    /// A structure inside this one. `name` is "vendor", or "[3]" for a place in a list.
    Scope inner(std::size_t offset, std::string_view name, std::string_view clause = {}) const;

    /// The same structure by another clause.
    Scope withClause(std::string_view clause) const { return {*reading_, start_, path_, clause}; }

    /// The same path, offsets counted from another byte.
    Scope from(std::size_t offset) const { return {*reading_, start_ + offset, path_, clause_}; }

    /// Number in the image of a byte of the structure.
    std::size_t place(std::size_t offset) const { return start_ + offset; }
    std::size_t block() const { return start_ / Image::blockSize; }
    const std::string& path() const { return path_; }
    std::string_view clause() const { return clause_; }
    std::uint8_t byte(std::size_t offset) const { return reading_->image.byte(start_ + offset); }
    /// Two bytes, the least significant first.
    unsigned word(std::size_t offset) const { return byte(offset) | static_cast<unsigned>(byte(offset + 1)) << 8U; }
    std::span<const std::uint8_t> bytes(std::size_t offset, std::size_t count) const {
        return reading_->image.bytes().subspan(start_ + offset, count);
    }
    std::uint64_t raw(const Parts& parts) const;

    /// Adds a field for every row. Rows whose bytes reach past `end` (an offset) are left out.
    void add(std::span<const Row> rows, std::size_t end = Image::blockSize) const;
    /// Adds a field for every row that stands before `end`, and the bytes that are then left over before it as one
    /// named "rest".
    void fill(WholeRows table, std::size_t end) const;
    /// Adds one; it may be changed until the next is added.
    Field& add(const Row& row) const;
    /// Bytes from `offset` up to `end` as one field; none where there are none.
    void addBytes(std::size_t offset, std::size_t end, std::string_view name, std::string_view label,
                  Kind kind = Kind::Bytes) const;

    /// A finding about the byte at `offset`, and about the field `name` of this structure (empty: about none).
    void tell(Severity severity, std::string_view code, std::size_t offset, std::string_view name, std::string text,
              std::string_view clause = {}) const;
    /// The finding that the raw value of a row is one to which no standard gave a meaning.
    void tellReservedValue(const Row& row) const;

    Reading& reading() const { return *reading_; }
    Summary& summary() const { return reading_->summary; }

private:
    std::string pathOf(std::string_view name) const;
    Where whereOf(const Parts& parts, std::size_t length) const;
    void checkReserved(const Row& row) const;

    Reading* reading_;
    std::size_t start_;
    std::string path_;
    std::string_view clause_;
};

/// The text of a raw value, empty where there is none.
std::string_view choiceText(std::span<const Choice> choices, std::uint64_t raw);
/// Whether there are none but zeros.
bool allZero(std::span<const std::uint8_t> bytes);

} // namespace wb::fields
