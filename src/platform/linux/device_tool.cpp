#include "platform/linux/device_tool.h"

namespace wb::platform::linux_system {

bool DeviceTool::start(const ShellCommand& command) {
    if (command.program != deviceToolName ||
        !(command.arguments.starts_with("remove ") || command.arguments == "rescan")) {
        return false;
    }
    connectors_.detect();
    return true;
}

} // namespace wb::platform::linux_system
