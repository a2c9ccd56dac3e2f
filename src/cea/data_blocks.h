#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// The data block collection (CEA-861-D, section 7.5): where each kind of block starts. There is no list; the program
/// knows one block of each kind.
namespace wb::cea {

/// Reads the offset of the detailed timings, moves their area from where the loaded image had it, and looks for the
/// headers of the data blocks in every cell before it. Locations that it does not find keep their values, also from an
/// earlier image.
void LocateDataBlocks(Workbench& workbench);

/// Fields of a data block header, from the text of its cell: three binary digits of tag (bits 7 to 5), and the number
/// of data bytes that follow (bits 4 to 0). A character that is no hexadecimal digit contributes nothing.
std::string_view tagDigits(std::string_view cellText);
int dataLength(Workbench& workbench, std::string_view cellText);

/// The tags of the known kinds (CEA-861-D, section 7.5).
namespace tag {
inline constexpr std::string_view reserved = "000";
inline constexpr std::string_view audio = "001";
inline constexpr std::string_view video = "010";
inline constexpr std::string_view vendor = "011";
inline constexpr std::string_view speaker = "100";
} // namespace tag

} // namespace wb::cea
