#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/system.h"
#include "core/base/image.h"

/// From the monitors of the running system to the images that it stored of them.
namespace wb::cli {

/// The name of a connector without the graphics adapter in front of it, as the kernel's parameters and "xrandr" have
/// it: "DP-1" of "card0-DP-1". Any other name as it stands.
std::string_view withoutAdapter(std::string_view connector);

/// The place of that name in any letter case, with or without the adapter; null where there is none. Several are a
/// CliError, which tells their names.
const Monitor* findMonitor(const std::vector<Monitor>& places, std::string_view name);

/// The same, but none is a CliError too, which tells the names there are.
const Monitor& monitorNamed(const std::vector<Monitor>& places, std::string_view name);

/// The image that is stored of a monitor; a CliError tells why there is none.
Image storedImageOf(const Monitor& monitor);

/// Tells what keeps the system's monitors from being known. Whether nothing does.
bool complainOfObstacles(const SystemOptions& options);

} // namespace wb::cli
