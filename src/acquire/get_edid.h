#pragma once

#include <optional>
#include <string>

#include "core/workbench.h"

/// The command that puts the EDID of the attached monitor into the block screens as a new, unnamed image.
namespace wb::acquire {

/// Reads what the operating system stored (major version 5) or asks the monitor itself (any other), and loads it. Asks
/// for unsaved changes first. Has a trap of its own.
void GetEDIDData(Workbench& workbench);

/// The raw EDID that the operating system stored for the first monitor in use, one character a byte. Where there is
/// none a box says so.
std::optional<std::string> readStoredEdid(Workbench& workbench);

/// Loads the raw EDID, one character a byte; what stands behind the first 256 is kept in LoadedBytes alone. Where bytes
/// are missing, the load ends with a box at the first of them and the cells filled so far stay.
void LoadStoredEdid(Workbench& workbench, std::string data);

} // namespace wb::acquire
