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

std::size_t edidLength(platform::Registry& registry, const std::string& parameters) {
    const platform::OpenKey key(registry, parameters);
    platform::RegistryValue value;
    return key.isOpen() && registry.readValue(key.key(), "EDID", value) == RegistryCode::Ok ? value.data.size() : 0;
}

} // namespace

void addSystemOptions(CLI::App&, SystemOptions&) {}

std::unique_ptr<platform::Registry> systemRegistry(const SystemOptions&) {
    return std::make_unique<platform::windows::Win32Registry>();
}

std::vector<Monitor> attachedMonitors(const SystemOptions&) {
    platform::windows::Win32Registry registry;
    std::vector<Monitor> monitors;
    for (const std::string& model : subKeys(registry, displayKey)) {
        for (const std::string& instance : subKeys(registry, std::string(displayKey) + '\\' + model)) {
            const std::string name = model + '\\' + instance;
            const std::string path = std::string(displayKey) + '\\' + name;
            if (platform::OpenKey(registry, path + "\\Control").isOpen()) {
                const std::string parameters = path + "\\Device Parameters";
                monitors.push_back(
                    {name, "HKEY_LOCAL_MACHINE\\" + parameters + "\\EDID", edidLength(registry, parameters)});
            }
        }
    }
    return monitors;
}

} // namespace wb::cli
