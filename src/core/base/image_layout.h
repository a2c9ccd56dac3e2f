#pragma once

/// The layout that the blocks of an image share, and where block 0 has its blocks of 18 bytes. The bytes of a block are
/// counted from 0.
namespace wb {

/// Bytes of a block, be it block 0 or an extension (VESA E-EDID Standard, Release A, section 2.1).
inline constexpr int blockSize = 128;
/// The last byte of a block makes the sum of all its bytes 0 modulo 256.
inline constexpr int checksumCell = blockSize - 1;
/// Of block 0: how many extension blocks follow (section 3.11).
inline constexpr int extensionCountCell = 126;

/// Detailed timings and monitor descriptors are blocks of 18 bytes (VESA E-EDID Standard, Release A, sections 3.10.2
/// and 3.10.3). Block 0 has four of them.
inline constexpr int detailedBlockSize = 18;
inline constexpr int detailedBlockCount = 4;

/// The first byte of detailed block `number` of block 0, counted from 0.
constexpr int detailedBlockBase(int number) {
    return 54 + detailedBlockSize * number;
}

} // namespace wb
