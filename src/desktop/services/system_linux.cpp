#include "desktop/services/shell.h"
#include "desktop/services/system.h"
#include "platform/linux/device_tool.h"
#include "platform/linux/sysfs_registry.h"

namespace wb::desktop {

namespace {

class LinuxSystem : public System {
public:
    platform::Registry& registry() override { return registry_; }
    platform::Shell& shell() override { return shell_; }

private:
    static constexpr const char* sysfs = "/sys";

    platform::linux_system::SysfsRegistry registry_{sysfs};
    platform::linux_system::DeviceTool deviceTool_{sysfs};
    QtShell shell_{deviceTool_};
};

} // namespace

std::unique_ptr<System> System::make() {
    return std::make_unique<LinuxSystem>();
}

} // namespace wb::desktop
