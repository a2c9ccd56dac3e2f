#include "platform/linux/sysfs_registry.h"

#include <array>

#include "core/base/text.h"
#include "platform/registry_path.h"

namespace wb::platform::linux_system {

namespace {

constexpr std::array<const char*, 4> fixedKeys = {"SYSTEM", "CurrentControlSet", "Enum", "Display"};
constexpr const char* instanceKey = "0";
constexpr const char* controlKey = "Control";
constexpr const char* parametersKey = "Device Parameters";
constexpr const char* edidValue = "EDID";

bool sameName(std::string_view one, std::string_view other) {
    return upperCase(one) == upperCase(other);
}

} // namespace

std::optional<SysfsRegistry::Node> SysfsRegistry::subKeyOf(const Node& node, const std::string& name) const {
    Node result = node;
    switch (node.place) {
        case Place::AboveConnectors:
            if (node.depth < fixedKeys.size()) {
                ++result.depth;
                return sameName(name, fixedKeys[node.depth]) ? std::optional(result) : std::nullopt;
            }
            if (auto connector = connectors_.find(name)) {
                result.place = Place::Connector;
                result.connector = *std::move(connector);
                return result;
            }
            return std::nullopt;
        case Place::Connector:
            result.place = Place::Instance;
            return name == instanceKey ? std::optional(result) : std::nullopt;
        case Place::Instance:
            if (sameName(name, parametersKey)) {
                result.place = Place::DeviceParameters;
                return result;
            }
            result.place = Place::Control;
            return sameName(name, controlKey) && connectors_.connected(node.connector) ? std::optional(result)
                                                                                       : std::nullopt;
        default:
            return std::nullopt;
    }
}

std::vector<std::string> SysfsRegistry::subKeysOf(const Node& node) const {
    switch (node.place) {
        case Place::AboveConnectors:
            return node.depth < fixedKeys.size() ? std::vector<std::string>{fixedKeys[node.depth]}
                                                 : connectors_.names();
        case Place::Connector:
            return {instanceKey};
        case Place::Instance:
            return connectors_.connected(node.connector) ? std::vector<std::string>{controlKey, parametersKey}
                                                         : std::vector<std::string>{parametersKey};
        default:
            return {};
    }
}

SysfsRegistry::OpenedKey* SysfsRegistry::opened(Key key) {
    const auto found = opened_.find(key);
    return found == opened_.end() ? nullptr : &found->second;
}

const std::vector<std::string>& SysfsRegistry::listed(OpenedKey& key) const {
    if (!key.subKeys) {
        key.subKeys = subKeysOf(key.node);
    }
    return *key.subKeys;
}

RegistryCode SysfsRegistry::edidOf(const Node& node, std::size_t limit, RegistryValue& value) const {
    if (node.place != Place::DeviceParameters) {
        return RegistryCode::NotFound;
    }
    auto data = connectors_.edid(node.connector, limit + 1);
    if (!data) {
        return RegistryCode::NotFound;
    }
    if (data->size() > limit) {
        return RegistryCode::MoreData;
    }
    value = {.name = edidValue, .type = RegistryType::Binary, .data = *std::move(data)};
    return RegistryCode::Ok;
}

RegistryCode SysfsRegistry::open(const std::string& path, Key& key) {
    return open(Node{}, path, key);
}

RegistryCode SysfsRegistry::open(Key above, const std::string& path, Key& key) {
    const OpenedKey* const found = opened(above);
    return found == nullptr ? RegistryCode::Refused : open(found->node, path, key);
}

RegistryCode SysfsRegistry::open(Node node, const std::string& path, Key& key) {
    for (const std::string_view part : registryPathParts(path)) {
        std::optional<Node> subKey = subKeyOf(node, std::string(part));
        if (!subKey) {
            return RegistryCode::NotFound;
        }
        node = *std::move(subKey);
    }
    key = nextKey_++;
    opened_[key].node = std::move(node);
    return RegistryCode::Ok;
}

RegistryCode SysfsRegistry::queryInfo(Key key, int& subKeys, int& values) {
    OpenedKey* const found = opened(key);
    if (found == nullptr) {
        return RegistryCode::Refused;
    }
    subKeys = static_cast<int>(listed(*found).size());
    values = found->node.place == Place::DeviceParameters && connectors_.hasEdid(found->node.connector) ? 1 : 0;
    return RegistryCode::Ok;
}

RegistryCode SysfsRegistry::enumerateKey(Key key, int index, std::string& name) {
    OpenedKey* const found = opened(key);
    if (found == nullptr) {
        return RegistryCode::Refused;
    }
    const std::vector<std::string>& names = listed(*found);
    if (index < 0 || static_cast<std::size_t>(index) >= names.size()) {
        return RegistryCode::NoMoreItems;
    }
    name = names[static_cast<std::size_t>(index)];
    return RegistryCode::Ok;
}

RegistryCode SysfsRegistry::enumerateValue(Key key, int index, RegistryValue& value) {
    const OpenedKey* const found = opened(key);
    if (found == nullptr) {
        return RegistryCode::Refused;
    }
    const RegistryCode code = index == 0 ? edidOf(found->node, registryBufferSize, value) : RegistryCode::NotFound;
    return code == RegistryCode::NotFound ? RegistryCode::NoMoreItems : code;
}

RegistryCode SysfsRegistry::readValue(Key key, const std::string& name, RegistryValue& value) {
    const OpenedKey* const found = opened(key);
    if (found == nullptr) {
        return RegistryCode::Refused;
    }
    return sameName(name, edidValue) ? edidOf(found->node, DrmConnectors::longestEdid, value) : RegistryCode::NotFound;
}

void SysfsRegistry::close(Key key) {
    opened_.erase(key);
}

} // namespace wb::platform::linux_system
