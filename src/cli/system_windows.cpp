#include <utility>

#include "acquire/registry_search.h"
#include "cli/cli_error.h"
#include "cli/system.h"
#include "platform/open_key.h"
#include "platform/windows/win32_registry.h"

namespace wb::cli {

namespace {

using platform::RegistryCode;

constexpr const char* displayKey = "SYSTEM\\CurrentControlSet\\Enum\\Display";

std::vector<std::string> subKeys(platform::Registry& registry, const std::string& path) {
    const platform::OpenKey key(registry, path);
    std::vector<std::string> names;
    std::string name;
    while (key.isOpen() && registry.enumerateKey(key.key(), static_cast<int>(names.size()), name) == RegistryCode::Ok) {
        names.push_back(name);
    }
    return names;
}

void readEdid(platform::Registry& registry, const std::string& parameters, Monitor& monitor) {
    const platform::OpenKey key(registry, parameters);
    platform::RegistryValue value;
    const RegistryCode code = key.isOpen() ? registry.readValue(key.key(), "EDID", value) : key.code();
    if (code == RegistryCode::Ok) {
        monitor.edid = std::move(value.data);
    } else if (code != RegistryCode::NotFound) {
        monitor.error =
            std::make_error_code(code == RegistryCode::Refused ? std::errc::permission_denied : std::errc::io_error);
    }
}

} // namespace

void addSystemOptions(Syntax&, SystemOptions&) {}

std::unique_ptr<platform::Registry> systemRegistry(const SystemOptions&) {
    return std::make_unique<platform::windows::Win32Registry>();
}

std::vector<Monitor> monitorPlaces(const SystemOptions&) {
    platform::windows::Win32Registry registry;
    std::vector<Monitor> monitors;
    for (const std::string& model : subKeys(registry, displayKey)) {
        for (const std::string& instance : subKeys(registry, std::string(displayKey) + '\\' + model)) {
            const std::string name = model + '\\' + instance;
            const std::string path = std::string(displayKey) + '\\' + name;
            const std::string parameters = path + "\\Device Parameters";
            Monitor monitor{.name = name, .source = "HKEY_LOCAL_MACHINE\\" + parameters + "\\EDID"};
            monitor.attached = platform::OpenKey(registry, path + "\\Control").isOpen();
            monitor.isVirtual = acquire::isVirtualMonitor(model);
            readEdid(registry, parameters, monitor);
            monitors.push_back(std::move(monitor));
        }
    }
    return monitors;
}

std::vector<std::string> obstaclesOf(const SystemOptions&) {
    platform::windows::Win32Registry registry;
    const platform::OpenKey key(registry, displayKey);
    if (key.isOpen()) {
        return {};
    }
    return {std::string("HKEY_LOCAL_MACHINE\\") + displayKey +
            (key.code() == RegistryCode::NotFound ? ": is not there" : ": cannot be read")};
}

std::string helpWithoutEdid(const SystemOptions&, bool) {
    return {};
}

std::unique_ptr<platform::DdcBus> openBus(const std::string&) {
    throw CliError("only Linux has such buses");
}

} // namespace wb::cli
