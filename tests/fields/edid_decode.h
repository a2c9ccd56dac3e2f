#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/temporary_folder.h"

namespace wb::fields {

/// All that edid-decode prints of an image.
inline std::string edidDecodeOutput(const std::filesystem::path& image) {
    const test::TemporaryFolder folder;
    const std::string command = "edid-decode '" + image.string() + "' > '" + folder.file("out") + "' 2> /dev/null";
    // Its status tells whether the image is in order, which is not what is asked.
    [[maybe_unused]] const int status = std::system(command.c_str());
    return test::TemporaryFolder::read(folder.file("out"));
}

/// The folder of raw images to compare, which an environment variable names; null where it does not.
inline const char* foreignFolder() {
    return std::getenv("WORKBENCH_MONITOR_IMAGES");
}

inline constexpr const char* withoutFolder =
    "set WORKBENCH_MONITOR_IMAGES to a folder of raw images to compare them too";

/// Tests that are skipped where edid-decode is not installed.
class EdidDecode : public testing::Test {
protected:
    void SetUp() override {
        if (std::system("edid-decode --version > /dev/null 2>&1") != 0) {
            GTEST_SKIP() << "install edid-decode to compare with it";
        }
    }
};

} // namespace wb::fields
