#include <filesystem>

#include "cli/cli_error.h"
#include "cli/syntax.h"
#include "cli/system.h"
#include "platform/linux/i2c_bus.h"
#include "platform/linux/sysfs_registry.h"

namespace wb::cli {

namespace {

void requireFolder(const std::string& sysfs) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(sysfs, ignored)) {
        throw CliError(sysfs + ": no such directory");
    }
}

} // namespace

void addSystemOptions(Syntax& syntax, SystemOptions& options) {
    syntax.option("--sysfs", "DIR", "Look for monitors below DIR instead of /sys", &options.sysfs);
}

std::unique_ptr<platform::Registry> systemRegistry(const SystemOptions& options) {
    requireFolder(options.sysfs);
    return std::make_unique<platform::linux_system::SysfsRegistry>(options.sysfs);
}

std::vector<Monitor> monitorPlaces(const SystemOptions& options) {
    requireFolder(options.sysfs);
    const platform::linux_system::DrmConnectors connectors(options.sysfs);
    std::vector<Monitor> monitors;
    for (const std::string& name : connectors.names()) {
        Monitor monitor{
            .name = name, .source = connectors.edidPath(name).string(), .attached = connectors.connected(name)};
        monitor.edid = connectors.edid(name, connectors.longestEdid, monitor.error).value_or("");
        monitors.push_back(std::move(monitor));
    }
    return monitors;
}

std::vector<std::string> obstaclesOf(const SystemOptions& options) {
    std::vector<std::string> sentences;
    for (const auto& [path, error] : platform::linux_system::DrmConnectors(options.sysfs).obstacles()) {
        std::string sentence = path.string();
        sentence += ": ";
        sentence += error.message();
        sentences.push_back(std::move(sentence));
    }
    return sentences;
}

std::string helpWithoutEdid(const SystemOptions& options, bool anyAttached) {
    const std::vector<std::string> obstacles = obstaclesOf(options);
    if (!obstacles.empty()) {
        return "On Linux the kernel stores the EDID, and where it does so cannot be read: " + obstacles.front();
    }
    if (anyAttached) {
        return "On Linux the kernel stores the EDID when a monitor is attached: plug it out and in again, and check "
               "cable and adapters";
    }
    return "On Linux the kernel stores the EDID, and it knows of no attached monitor below " + options.sysfs +
           "/class/drm: check cable and power of the monitor, and the driver of the graphics adapter";
}

std::unique_ptr<platform::DdcBus> openBus(const std::string& device) {
    return std::make_unique<platform::linux_system::I2cBus>(device);
}

} // namespace wb::cli
