#include "platform/linux/drm_connectors.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>

#include "core/base/text.h"

namespace wb::platform::linux_system {

namespace {

constexpr std::size_t longestStatus = 64;

/// Attributes are ordinary files; anything else might block or never end. No error where there is nothing of that name.
bool isFile(const std::filesystem::path& path, std::error_code& error) {
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) {
        if (status.type() == std::filesystem::file_type::not_found) {
            error.clear();
        }
        return false;
    }
    if (!std::filesystem::is_regular_file(status)) {
        error = std::make_error_code(std::errc::not_supported);
        return false;
    }
    return true;
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// At most `limit` bytes; nothing, and the reason, where the file cannot be read.
std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit, std::error_code& error) {
    if (!isFile(path, error)) {
        return std::nullopt;
    }
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) {
        error = lastError();
        return std::nullopt;
    }
    std::string data(limit, '\0');
    data.resize(std::fread(data.data(), 1, limit, file.get()));
    if (std::ferror(file.get()) != 0) {
        error = lastError();
        return std::nullopt;
    }
    return data;
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit) {
    std::error_code ignored;
    return readFile(path, limit, ignored);
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

std::vector<DrmConnectors::Obstacle> DrmConnectors::obstacles() const {
    std::vector<Obstacle> obstacles;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder_, error);
    for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
        const std::filesystem::path status = entries->path() / "status";
        std::error_code reason;
        if (!readFile(status, longestStatus, reason) && reason) {
            obstacles.push_back({status, reason});
        }
    }
    if (error) {
        obstacles.push_back({folder_, error});
    }
    std::sort(obstacles.begin(), obstacles.end(),
              [](const Obstacle& one, const Obstacle& other) { return one.path < other.path; });
    return obstacles;
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

std::optional<std::string> DrmConnectors::edid(const std::string& name, std::size_t limit,
                                               std::error_code& error) const {
    return readFile(edidPath(name), limit, error);
}

void DrmConnectors::detect() const {
    for (const std::string& name : names()) {
        const std::filesystem::path status = folder_ / name / "status";
        std::error_code ignored;
        if (isFile(status, ignored)) {
            std::ofstream(status) << "detect";
        }
    }
}

} // namespace wb::platform::linux_system
