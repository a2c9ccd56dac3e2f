#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The plain reading of an image by the standards: what every byte means. Nothing here knows of screens, or of how the
/// report reads the same bytes.
namespace wb::fields {

/// Bits `high` to `low` (7 to 0) of `count` bytes of the image from number `byte` on.
struct BitRange {
    std::size_t byte = 0;
    std::uint8_t high = 7;
    std::uint8_t low = 0;
    std::size_t count = 1;

    bool covers(std::size_t number) const { return number >= byte && number < byte + count; }
};

/// Where a field stands: at most four ranges of bits, the highest part of its value first.
class Where {
public:
    void add(BitRange range) { ranges_[size_++] = range; }
    const BitRange* begin() const { return ranges_.data(); }
    const BitRange* end() const { return ranges_.data() + size_; }
    const BitRange& front() const { return ranges_.front(); }

    /// Whether it has bits in the byte of that number.
    bool covers(std::size_t byte) const;
    /// The first byte of the image that it has bits in. There must be one.
    std::size_t firstByte() const;

    /// How many bits the ranges of single bytes have together, and the number that these make up.
    int bits() const;
    std::uint64_t value(std::span<const std::uint8_t> image) const;

private:
    std::array<BitRange, 4> ranges_{};
    std::size_t size_ = 0;
};

/// A number, a text (in UTF-8), a truth, a list of them, or nothing: a field without a meaning of its own, or whose
/// bits stand for "not told".
using Scalar = std::variant<std::int64_t, double, std::string>;
using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, std::vector<Scalar>>;

struct Field {
    std::string path{};     ///< stable name, such as "base.detailed[2].pixel_clock"
    std::string_view label; ///< in words
    Where where{};
    Value value{};
    double scale = 1; ///< of a number: value = raw bits * scale + bias
    double bias = 0;
    std::string_view unit;   ///< "px", "mm", "cm", "Hz", "kHz", "MHz", "ms", "bit", "%", or empty
    std::string text{};      ///< one line for people, in UTF-8
    std::string_view clause; ///< of the standard that says so
    /// Whether it tells one unit from the others of its model, as a serial number or a container ID does: what an image
    /// must not have that is to be shared.
    bool identifies = false;
};

enum class Severity {
    Note,    ///< odd, and in order
    Warning, ///< breaks a rule of a standard
    Error,   ///< software will misread or refuse the image
};

struct Finding {
    Severity severity;
    std::string_view code; ///< stable name, such as "base.checksum"
    std::size_t block;
    std::size_t byte;   ///< number in the image of the first byte that it is about
    std::string path{}; ///< of the field that it is about; empty where it is about no single one
    std::string text{}; ///< one sentence: what is wrong, why it matters and what to do
    std::string_view clause;
};

/// "error", "warning" or "note".
std::string_view severityName(Severity severity);

} // namespace wb::fields
