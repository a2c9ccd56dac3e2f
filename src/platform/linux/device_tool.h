#pragma once

#include "platform/linux/drm_connectors.h"
#include "platform/services.h"

namespace wb::platform::linux_system {

/// Stands in for the device console tool: where that would remove a monitor or scan for hardware, the kernel is asked
/// to detect its connectors anew, as far as permitted. Other programs are not started.
class DeviceTool : public Shell {
public:
    /// `sysfs` is the root of sysfs, normally "/sys".
    explicit DeviceTool(const std::filesystem::path& sysfs) : connectors_(sysfs) {}

    bool start(const ShellCommand& command) override;

private:
    DrmConnectors connectors_;
};

} // namespace wb::platform::linux_system
