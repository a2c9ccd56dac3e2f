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

TEST(Invariants, HoldOfEveryKindOfDataBlockOfCta861) {
    std::mt19937 random(3);
    const auto expectOf = [&](int tag, std::size_t length, std::initializer_list<int> begin) {
        SCOPED_TRACE(std::to_string(tag) + ", " + std::to_string(length) + " bytes");
        ImageOf image(2);
        image.set(128, {0x02, 0x03, 5 + static_cast<int>(length), static_cast<int>(random() % 256)});
        image.set(132, {tag << 5 | static_cast<int>(length)});
        for (std::size_t i = 0; i < length; ++i) {
            image.set(133 + i, {static_cast<int>(random() % 256)});
        }
        if (begin.size() <= length) {
            image.set(133, begin);
        }
        expectInvariants(image.reading());
    };
    for (std::size_t length = 0; length < 32; ++length) {
        for (int tag = 0; tag < 7; ++tag) {
            expectOf(tag, length, {});
        }
        expectOf(3, length, {0x03, 0x0C, 0x00});
        expectOf(3, length, {0xD8, 0x5D, 0xC4});
        for (const int extendedTag :
             {0, 1, 2, 3, 4, 5, 6, 7, 8, 13, 14, 15, 17, 18, 19, 20, 32, 34, 35, 42, 120, 121}) {
            expectOf(7, length, {extendedTag});
        }
        expectOf(7, length, {static_cast<int>(random() % 256)});
    }
}

TEST(Invariants, HoldOfEveryKindOfDataBlockOfDisplayId) {
    std::mt19937 random(4);
    for (const int version : {0x12, 0x13, 0x20}) {
        for (int tag = 0; tag <= 0xFF; ++tag) {
            const auto length = static_cast<int>(random() % 60);
            SCOPED_TRACE(std::to_string(tag) + ", " + std::to_string(length) + " bytes");
            ImageOf image(2);
            image.set(128, {0x70, version, 3 + length, 3, 0}).set(133, {tag, static_cast<int>(random() % 256), length});
            for (int i = 0; i < length; ++i) {
                image.set(136 + static_cast<std::size_t>(i), {static_cast<int>(random() % 256)});
            }
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
