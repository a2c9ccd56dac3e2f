#pragma once

/// Bits of a number by their place, counted from 0 for the lowest, as the standards number them: "bits 7 to 4". The
/// highest place is 30; negative numbers count as their two's complement.
namespace wb {

/// The places `high` down to `low`.
struct BitRange {
    int high;
    int low;

    constexpr int width() const { return high - low + 1; }
};
inline constexpr BitRange wholeByte{7, 0};

/// The number with all its bits from `high` down to `low` set, and no other.
constexpr int maskOf(BitRange range) {
    return static_cast<int>((1U << range.width()) - 1U) << range.low;
}

/// The number that the bits from `high` down to `low` make up.
constexpr int bits(int value, BitRange range) {
    return (value & maskOf(range)) >> range.low;
}
constexpr int bits(int value, int high, int low) {
    return bits(value, BitRange{high, low});
}

/// The value with `field` in its bits from `high` down to `low`; what of the field has no room there is dropped.
constexpr int withBits(int value, BitRange range, int field) {
    return (value & ~maskOf(range)) | ((field << range.low) & maskOf(range));
}
constexpr int withBits(int value, int high, int low, int field) {
    return withBits(value, BitRange{high, low}, field);
}

/// Whether bit `place` is set.
constexpr bool bit(int value, int place) {
    return bits(value, place, place) != 0;
}
constexpr int withBit(int value, int place, bool set) {
    return withBits(value, place, place, set ? 1 : 0);
}

/// Bits of one cell.
struct CellBits {
    int cell;
    BitRange range;
};

/// A number of which the upper bits stand in another cell than the lower ones.
struct SplitField {
    CellBits upper;
    CellBits lower;

    /// The number, by the bytes of the two cells.
    constexpr int join(int upperByte, int lowerByte) const {
        return (bits(upperByte, upper.range) << lower.range.width()) | bits(lowerByte, lower.range);
    }
};

} // namespace wb
