#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// The search for the EDID that the operating system stored when it detected a monitor. Below the base location stand
/// the monitor models, below these their device instances. An instance in use has the sub-keys "Control" and "Device
/// Parameters", the latter with the EDID as a binary value.
namespace wb::acquire {

/// Whether the search passes over a monitor model of that name and all below it, as over entries of display adapters.
bool isVirtualMonitor(std::string_view name);

/// With `walkKeys`: the path of the "Device Parameters" of the first instance below `path`, in the registry's order,
/// that has a sub-key "Control"; for a "Control" in another spelling the path of the instance itself. Without: the raw
/// value stored directly in the key at `path`, one character a byte. Empty where there is none. A key that is there and
/// cannot be opened is told in a box. Depth and size of the tree are not limited.
std::string SearchRegistryForEDID(Workbench& workbench, const std::string& path, bool walkKeys);

/// The data of the first value whose upper-cased name is "EDID" or sorts below it; empty with `walkKeys`, or where
/// there is no such value. Values that cannot be enumerated (above 1,024 bytes) and values without a name do not count.
std::string ReadEDIDValueFromKey(platform::Registry& registry, platform::Registry::Key key, int valueCount,
                                 bool walkKeys);

} // namespace wb::acquire
