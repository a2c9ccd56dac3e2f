#include "platform/linux/drm_connectors.h"

#include <algorithm>
#include <fstream>
#include <system_error>

#include "core/base/text.h"

namespace wb::platform::linux_system {

namespace {

constexpr std::size_t longestStatus = 64;

/// Attributes are ordinary files; anything else might block or never end.
bool isFile(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit) {
    if (!isFile(path)) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    std::string data(limit, '\0');
    file.read(data.data(), static_cast<std::streamsize>(limit));
    if (file.bad()) {
        return std::nullopt;
    }
    data.resize(static_cast<std::size_t>(file.gcount()));
    return data;
}

} // namespace

bool DrmConnectors::isConnector(const std::filesystem::path& entry) const {
    std::error_code error;
    return std::filesystem::exists(entry / "status", error) || std::filesystem::exists(entry / "edid", error);
}

std::vector<std::string> DrmConnectors::names() const {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder_, error);
    for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
        if (isConnector(entries->path())) {
            names.push_back(entries->path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<std::string> DrmConnectors::find(std::string_view name) const {
    const std::string exact(name);
    if (exact.find('/') == std::string::npos && exact != "." && exact != ".." && isConnector(folder_ / exact)) {
        return exact;
    }
    for (std::string& candidate : names()) {
        if (upperCase(candidate) == upperCase(name)) {
            return std::move(candidate);
        }
    }
    return std::nullopt;
}

std::string DrmConnectors::status(const std::string& name) const {
    std::string text = readFile(folder_ / name / "status", longestStatus).value_or("");
    text.erase(std::min(text.find('\n'), text.size()));
    return text;
}

bool DrmConnectors::hasEdid(const std::string& name) const {
    return edid(name, 0).has_value();
}

std::optional<std::string> DrmConnectors::edid(const std::string& name, std::size_t limit) const {
    return readFile(edidPath(name), limit);
}

void DrmConnectors::detect() const {
    for (const std::string& name : names()) {
        const std::filesystem::path status = folder_ / name / "status";
        if (isFile(status)) {
            std::ofstream(status) << "detect";
        }
    }
}

} // namespace wb::platform::linux_system
