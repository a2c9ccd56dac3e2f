// The fuzz targets take what they start from in every build, so that they neither rot nor start from nothing.

#include <gtest/gtest.h>

#include <filesystem>

#include "fuzz/targets.h"
#include "support/temporary_folder.h"

namespace wb::fuzz {
namespace {

namespace fs = std::filesystem;

class Seeds : public testing::TestWithParam<Target> {
protected:
    static void attemptAll(const fs::path& folder, std::string_view ending) {
        int tried = 0;
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (entry.path().string().ends_with(ending)) {
                SCOPED_TRACE(entry.path().filename().string());
                GetParam().attempt(test::TemporaryFolder::read(entry.path().string()));
                ++tried;
            }
        }
        EXPECT_GT(tried, 0);
    }
};

TEST_P(Seeds, AreTaken) {
    attemptAll(fs::path(WORKBENCH_SOURCE_DIR "/tests/fuzz/seeds") / GetParam().name, "");
}

TEST_P(Seeds, AreTakenOfTheSamples) {
    attemptAll(WORKBENCH_SOURCE_DIR "/samples", ".bin");
}

TEST_P(Seeds, MayBeEmpty) {
    GetParam().attempt({});
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Seeds, testing::ValuesIn(targets().begin(), targets().end()),
                         [](const auto& target) { return std::string(target.param.name); });

} // namespace
} // namespace wb::fuzz
