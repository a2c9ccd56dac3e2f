#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <random>

#include "image_of.h"
#include "invariants.h"
#include "support/temporary_folder.h"

namespace wb::fields {
namespace {

namespace fs = std::filesystem;

/// Random bytes but for the beginnings of the blocks.
ImageOf randomImage(std::mt19937& random) {
    const std::size_t blocks = 1 + random() % 4;
    ImageOf image(blocks);
    for (std::size_t i = 8; i < blocks * Image::blockSize; ++i) {
        if (i % Image::blockSize > 1) {
            image.set(i, {static_cast<int>(random() % 256)});
        }
    }
    return image;
}

TEST(Invariants, HoldOfImagesOfAnyBytes) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        expectInvariants(randomImage(random).reading());
    }
}

TEST(Invariants, HoldOfEveryRevisionAndKindOfDescriptor) {
    std::mt19937 random(2);
    for (int revision = 0; revision <= 5; ++revision) {
        for (int tag = 0; tag <= 0xFF; ++tag) {
            ImageOf image = randomImage(random);
            image.set(18, {1, revision}).set(72, {0, 0, 0, tag});
            // The formulas of range limits.
            image.set(108, {0, 0, 0, 0xFD}).set(118, {tag % 6});
            SCOPED_TRACE("1." + std::to_string(revision) + ", tag " + std::to_string(tag));
            expectInvariants(image.reading());
        }
    }
}

void expectInvariantsOfFolder(const fs::path& folder) {
    int images = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".bin") {
            continue;
        }
        SCOPED_TRACE(entry.path().filename().string());
        const std::optional<Image> image = Image::fromBytes(test::TemporaryFolder::read(entry.path().string()));
        ASSERT_TRUE(image);
        expectInvariants(read(*image));
        ++images;
    }
    EXPECT_GT(images, 0);
}

TEST(Invariants, HoldOfTheSamples) {
    expectInvariantsOfFolder(WORKBENCH_SOURCE_DIR "/samples");
}

TEST(Invariants, HoldOfImagesOfMonitors) {
    constexpr const char* foreignFolder = "WORKBENCH_MONITOR_IMAGES";
    const char* folder = std::getenv(foreignFolder);
    if (folder == nullptr) {
        GTEST_SKIP() << "set " << foreignFolder << " to a folder of raw images to read them too";
    }
    expectInvariantsOfFolder(folder);
}

} // namespace
} // namespace wb::fields
