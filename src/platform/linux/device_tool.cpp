#include "platform/linux/device_tool.h"

namespace wb::platform::linux_system {

void DeviceTool::start(const ShellCommand& command) {
    if (command.program == "devcon.exe" &&
        (command.arguments.starts_with("remove ") || command.arguments == "rescan")) {
        connectors_.detect();
    }
}

} // namespace wb::platform::linux_system
