#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/linux/drm_connectors.h"
#include "platform/services.h"

namespace wb::platform::linux_system {

/// The EDIDs that the kernel keeps, as a registry tree: below `SYSTEM\CurrentControlSet\Enum\Display` a key for each
/// connector, by name, with one instance "0". That has the sub-key "Control" while a monitor is connected, and the
/// sub-key "Device Parameters" with the binary value "EDID". There are no other keys and values.
class SysfsRegistry : public Registry {
public:
    /// `sysfs` is the root of sysfs, normally "/sys". It need not exist.
    explicit SysfsRegistry(const std::filesystem::path& sysfs) : connectors_(sysfs) {}

    RegistryCode open(const std::string& path, Key& key) override;
    RegistryCode open(Key above, const std::string& path, Key& key) override;
    RegistryCode queryInfo(Key key, int& subKeys, int& values) override;
    RegistryCode enumerateKey(Key key, int index, std::string& name) override;
    RegistryCode enumerateValue(Key key, int index, RegistryValue& value) override;
    RegistryCode readValue(Key key, const std::string& name, RegistryValue& value) override;
    void close(Key key) override;

private:
    enum class Place { AboveConnectors, Connector, Instance, Control, DeviceParameters };
    struct Node {
        Place place = Place::AboveConnectors;
        std::size_t depth = 0; ///< how many of the fixed keys lead here
        std::string connector;
    };
    struct OpenedKey {
        Node node;
        std::optional<std::vector<std::string>> subKeys; ///< listed when first asked for
    };

    RegistryCode open(Node node, const std::string& path, Key& key);
    std::optional<Node> subKeyOf(const Node& node, const std::string& name) const;
    std::vector<std::string> subKeysOf(const Node& node) const;
    OpenedKey* opened(Key key);
    const std::vector<std::string>& listed(OpenedKey& key) const;
    RegistryCode edidOf(const Node& node, std::size_t limit, RegistryValue& value) const;

    DrmConnectors connectors_;
    std::unordered_map<Key, OpenedKey> opened_;
    Key nextKey_ = 1;
};

} // namespace wb::platform::linux_system
