#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace wb::test {

struct MonitorImage {
    std::string name;
    std::string bytes;
};

/// The raw images of a folder in the order of their names.
inline std::vector<MonitorImage> imagesIn(const std::filesystem::path& folder) {
    std::vector<MonitorImage> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".bin") {
            found.push_back({entry.path().filename().string(), TemporaryFolder::read(entry.path().string())});
        }
    }
    std::sort(found.begin(), found.end(), [](const MonitorImage& a, const MonitorImage& b) { return a.name < b.name; });
    return found;
}

inline std::vector<MonitorImage> sampleImages() {
    return imagesIn(WORKBENCH_SOURCE_DIR "/samples");
}

/// Names a folder with images of real monitors, which are no part of the repository.
inline constexpr const char* foreignFolder = "WORKBENCH_MONITOR_IMAGES";

/// Those of that folder; nothing where the environment names none.
inline std::optional<std::vector<MonitorImage>> foreignImages() {
    const char* const folder = std::getenv(foreignFolder);
    return folder == nullptr ? std::nullopt : std::optional(imagesIn(folder));
}

} // namespace wb::test
