#pragma once

/// Where the fields of an image stand, in cells counted from the start of their block; a cell is a byte. What the bits
/// of a field mean is told by headers of their own beside the decoders.
namespace wb {

/// Bytes of a block, be it block 0 or an extension (VESA E-EDID Standard, Release A, section 2.1), and of block 0 with
/// the one extension block that the program holds.
inline constexpr int blockSize = 128;
inline constexpr int imageSize = 2 * blockSize;
/// The last cell of a block makes the sum of all its bytes 0 modulo 256.
inline constexpr int checksumCell = blockSize - 1;
/// Of block 0: how many extension blocks follow (section 3.11).
inline constexpr int extensionCountCell = 126;

/// Detailed timings and monitor descriptors are blocks of 18 bytes (VESA E-EDID Standard, Release A, sections 3.10.2
/// and 3.10.3). Block 0 has four of them.
inline constexpr int detailedBlockSize = 18;
inline constexpr int detailedBlockCount = 4;

/// The first cell of detailed block `number` of block 0, counted from 0.
constexpr int detailedBlockBase(int number) {
    return 54 + detailedBlockSize * number;
}

/// Cells `first` to `last`.
struct CellRange {
    int first;
    int last;

    constexpr bool contains(int cell) const { return cell >= first && cell <= last; }
};
inline constexpr CellRange noCells{0, -1};

constexpr CellRange oneCell(int cell) {
    return {cell, cell};
}

/// The fields of block 0 (VESA E-EDID Standard, Release A, sections 3.3 to 3.10).
namespace cells {
inline constexpr CellRange header{0, 7};
inline constexpr CellRange manufacturer{8, 9};
inline constexpr CellRange productCode{10, 11};
inline constexpr CellRange serialNumber{12, 15};
inline constexpr int week = 16;
inline constexpr int year = 17;
inline constexpr int version = 18;
inline constexpr int revision = 19;
inline constexpr int videoInput = 20;
inline constexpr int maxHorizontalSize = 21;
inline constexpr int maxVerticalSize = 22;
inline constexpr int gamma = 23;
inline constexpr int features = 24;
inline constexpr CellRange chromaticity{25, 34};
inline constexpr int establishedTimings1 = 35;
inline constexpr int establishedTimings2 = 36;
inline constexpr int reservedTimings = 37;
inline constexpr CellRange standardTimings{38, 53};
inline constexpr CellRange detailedBlocks{detailedBlockBase(0), detailedBlockBase(detailedBlockCount) - 1};
} // namespace cells

/// The fields of an extension block that is a CEA timing extension (CEA-861-D, section 7.5).
namespace extensionCells {
inline constexpr int tag = 0;
inline constexpr int version = 1;
inline constexpr int timingOffset = 2;
inline constexpr int support = 3;
inline constexpr int dataBlocks = 4; ///< the first of the data block collection
/// The last cell that counts to the detailed timings.
inline constexpr int lastTiming = 125;
} // namespace extensionCells

} // namespace wb
