#include "acquire/registry_search.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/base/text.h"
#include "platform/open_key.h"

namespace wb::acquire {

namespace {

using platform::OpenKey;
using platform::RegistryCode;

/// Display adapters and virtual monitors: they carry no EDID of a real monitor. Exact spelling.
constexpr std::array<std::string_view, 13> skippedMonitors = {
    "CH-7009-A",           "CH-7009-B",       "Default_Monitor", "IN-807",     "IN-KCH-8XX-CHIPSETS",
    "IN-SB-8XX-PLATFORMS", "NVWIN2KDUALVIEW", "SI-164",          "NTativmd34", "NTativrv34",
    "NTativmd40",          "NTativrv40",      "MTX0000"};

/// One walk through the tree, depth first. It keeps its own stack, so that the depth of a foreign tree is no danger.
class Walk {
public:
    Walk(Workbench& workbench, std::string path, bool walkKeys)
        : workbench_(workbench), registry_(workbench.platform.registry), path_(std::move(path)), walkKeys_(walkKeys) {}

    std::string run() {
        if (auto found = enter(); found || !walkKeys_) {
            return found.value_or("");
        }
        while (!levels_.empty()) {
            if (auto found = visitNext()) {
                return *std::move(found);
            }
        }
        return {};
    }

private:
    /// What ends the walk, also where it is the empty path of the root; nothing where the walk goes on.
    using Found = std::optional<std::string>;

    struct Level {
        OpenKey key;
        std::size_t pathLength;
        int subKeys;
        int next = 0;
    };

    /// Opens the key at the current path and makes it the innermost level; gives what it holds itself.
    Found enter() {
        OpenKey key = openBelow(levels_.size());
        if (!key.isOpen()) {
            tellUnlessMissing(key.code());
            return std::nullopt;
        }
        int subKeys = 0;
        int values = 0;
        if (registry_.queryInfo(key.key(), subKeys, values) != RegistryCode::Ok) {
            return std::nullopt;
        }
        std::string found = ReadEDIDValueFromKey(registry_, key.key(), values, walkKeys_);
        levels_.push_back({.key = std::move(key), .pathLength = path_.size(), .subKeys = subKeys});
        return found.empty() ? std::nullopt : Found(std::move(found));
    }

    /// Opens the key at the current path, which has that many levels above it, from the last of them: a path from the
    /// root is as long as the tree is deep.
    OpenKey openBelow(std::size_t levels) const {
        if (levels == 0) {
            return {registry_, path_};
        }
        const Level& above = levels_[levels - 1];
        return {registry_, above.key.key(), path_.substr(above.pathLength + 1)};
    }

    /// Takes one sub-key of the innermost level, or leaves that level when it is through.
    Found visitNext() {
        Level& level = levels_.back();
        path_.resize(level.pathLength);
        if (level.next > level.subKeys) {
            levels_.pop_back();
            return std::nullopt;
        }
        std::string name;
        if (registry_.enumerateKey(level.key.key(), level.next++, name) != RegistryCode::Ok || name.empty() ||
            isVirtualMonitor(name)) {
            return std::nullopt;
        }
        return visit(name);
    }

    Found visit(const std::string& name) {
        if (name == "Control") {
            return path_ + "\\Device Parameters";
        }
        // Each level keeps its own handle; what counts is that the key can still be opened before the walk goes deeper.
        const std::size_t above = levels_.size() - 1;
        if (!openBelow(above).isOpen()) {
            tellUnlessMissing(openBelow(above).code());
            levels_.pop_back();
            return std::nullopt;
        }
        if (upperCase(name) == "CONTROL") {
            return path_;
        }
        path_ += '\\';
        path_ += name;
        return enter();
    }

    /// After a failed re-open even a second try that succeeds is told: any code but that of a missing key is.
    void tellUnlessMissing(RegistryCode code) {
        if (code != RegistryCode::NotFound) {
            workbench_.showMessage("Unable to read Registry");
        }
    }

    Workbench& workbench_;
    platform::Registry& registry_;
    std::string path_;
    bool walkKeys_;
    std::vector<Level> levels_;
};

} // namespace

bool isVirtualMonitor(std::string_view name) {
    return std::find(skippedMonitors.begin(), skippedMonitors.end(), name) != skippedMonitors.end();
}

std::string SearchRegistryForEDID(Workbench& workbench, const std::string& path, bool walkKeys) {
    return trappedOr(workbench, std::string(), [&] { return Walk(workbench, path, walkKeys).run(); });
}

std::string ReadEDIDValueFromKey(platform::Registry& registry, platform::Registry::Key key, int valueCount,
                                 bool walkKeys) {
    if (valueCount == 0 || walkKeys) {
        return {};
    }
    for (int index = 0; index <= valueCount; ++index) {
        platform::RegistryValue value;
        if (registry.enumerateValue(key, index, value) == RegistryCode::Ok && !value.name.empty() &&
            upperCase(value.name) <= "EDID") {
            return value.data;
        }
    }
    return {};
}

} // namespace wb::acquire
