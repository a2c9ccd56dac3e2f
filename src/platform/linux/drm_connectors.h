#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace wb::platform::linux_system {

/// The connectors of the graphics adapters as the kernel shows them: the folders of `class/drm` below the root of sysfs
/// that have a file `status` or `edid`.
class DrmConnectors {
public:
    /// 256 blocks of 128 bytes: the extension count is one byte.
    static constexpr std::size_t longestEdid = 32768;

    /// `sysfs` is the root, normally "/sys". It need not exist.
    explicit DrmConnectors(const std::filesystem::path& sysfs) : folder_(sysfs / "class" / "drm") {}

    /// Sorted by name.
    std::vector<std::string> names() const;
    /// The connector of that name in any letter case.
    std::optional<std::string> find(std::string_view name) const;

    /// What keeps the list of connectors, or the status of one of them, from being read.
    struct Obstacle {
        std::filesystem::path path;
        std::error_code error;
    };
    /// The folder itself (where it is missing, too) and what stands in it, sorted by path. A connector without a file
    /// `status` is none.
    std::vector<Obstacle> obstacles() const;

    /// "connected", "disconnected" or "unknown"; empty where it cannot be read.
    std::string status(const std::string& name) const;
    bool connected(const std::string& name) const { return status(name) == "connected"; }
    /// Whether there is a file `edid` that can be opened.
    bool hasEdid(const std::string& name) const;
    /// At most `limit` bytes of the EDID, which is empty where none was read from the monitor; nothing where the file
    /// cannot be read.
    std::optional<std::string> edid(const std::string& name, std::size_t limit) const;
    /// The same, and why the file cannot be read; no error where there is none.
    std::optional<std::string> edid(const std::string& name, std::size_t limit, std::error_code& error) const;
    std::filesystem::path edidPath(const std::string& name) const { return folder_ / name / "edid"; }

    /// Has the kernel look at every connector anew, as far as permitted.
    void detect() const;

private:
    bool isConnector(const std::filesystem::path& entry) const;

    std::filesystem::path folder_;
};

} // namespace wb::platform::linux_system
