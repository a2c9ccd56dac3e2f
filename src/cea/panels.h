#pragma once

/// The panels of frmCEA_EXT by their number in Hints, besides those of a detailed timing.
namespace wb::cea::panels {

inline constexpr int audioChannels = 0;
inline constexpr int reservedSpeakers = 1;
inline constexpr int version = 2;
inline constexpr int offset = 3;
inline constexpr int speakers = 4;
inline constexpr int frequencies = 5;
inline constexpr int bitRate = 6;
inline constexpr int vendorData = 7;
inline constexpr int vendorExtension = 8;
inline constexpr int vendorID = 13;
inline constexpr int support = 14;
inline constexpr int tag = 15; ///< of a block's header; the dispatch shows it before it looks for a row
inline constexpr int videoDescriptor = 16;

} // namespace wb::cea::panels
