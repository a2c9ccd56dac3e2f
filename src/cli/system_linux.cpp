#include <CLI/CLI.hpp>
#include <filesystem>

#include "cli/cli_error.h"
#include "cli/system.h"
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

void addSystemOptions(CLI::App& command, SystemOptions& options) {
    command.add_option("--sysfs", options.sysfs, "Look for monitors below DIR instead of /sys")
        ->type_name("DIR")
        ->take_last();
}

std::unique_ptr<platform::Registry> systemRegistry(const SystemOptions& options) {
    requireFolder(options.sysfs);
    return std::make_unique<platform::linux_system::SysfsRegistry>(options.sysfs);
}

std::vector<Monitor> attachedMonitors(const SystemOptions& options) {
    requireFolder(options.sysfs);
    const platform::linux_system::DrmConnectors connectors(options.sysfs);
    std::vector<Monitor> monitors;
    for (const std::string& name : connectors.names()) {
        if (connectors.connected(name)) {
            const std::string edid = connectors.edid(name, connectors.longestEdid).value_or("");
            monitors.push_back({name, connectors.edidPath(name).string(), edid.size()});
        }
    }
    return monitors;
}

} // namespace wb::cli
