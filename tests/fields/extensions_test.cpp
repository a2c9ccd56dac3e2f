#include <gtest/gtest.h>

#include <random>

#include "image_of.h"
#include "invariants.h"
#include "support/temporary_folder.h"

namespace wb::fields {
namespace {

/// The first bytes of the blocks, so that what follows is read as one kind.
struct Case {
    const char* name;
    int tag;
    int version;
    int leastThird; ///< of the third byte, an offset or a length, in most rounds
};

class ExtensionOfAnyBytes : public testing::TestWithParam<Case> {};

TEST_P(ExtensionOfAnyBytes, KeepsTheInvariants) {
    std::mt19937 random(7);
    for (int round = 0; round < 400; ++round) {
        ImageOf image(3);
        for (std::size_t i = 128; i < 3 * Image::blockSize; ++i) {
            image.set(i, {static_cast<int>(random() % 256)});
        }
        for (const std::size_t block : {128U, 256U}) {
            image.set(block, {GetParam().tag, GetParam().version});
            if (round % 4 != 0) {
                image.set(block + 2, {GetParam().leastThird + static_cast<int>(random() % 100)});
            }
            // A data block of each kind of tag, with a length near those that its readers know.
            if (round % 2 == 0 && GetParam().tag == 2) {
                const int extended = static_cast<int>(random() % 36 + (random() % 4 == 0 ? 0x70 : 0));
                const int kind = static_cast<int>(random() % 8);
                image.set(block + 4, {kind << 5 | static_cast<int>(random() % 32), extended});
            }
        }
        SCOPED_TRACE(round);
        expectInvariants(image.reading());
    }
}

constexpr Case cases[] = {{"Cta1", 0x02, 1, 4},          {"Cta2", 0x02, 2, 4},          {"Cta3", 0x02, 3, 4},
                          {"Cta9", 0x02, 9, 4},          {"DisplayId1", 0x70, 0x12, 0}, {"DisplayId2", 0x70, 0x20, 0},
                          {"DisplayId3", 0x70, 0x30, 0}, {"Map", 0xF0, 0, 0},           {"VideoTimings", 0x10, 1, 0},
                          {"Unknown", 0x33, 1, 0}};

INSTANTIATE_TEST_SUITE_P(Kinds, ExtensionOfAnyBytes, testing::ValuesIn(cases),
                         [](const auto& kind) { return kind.param.name; });

TEST_P(ExtensionOfAnyBytes, HasNoFindingsButThoseInTheDocuments) {
    const std::string documents = test::TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/docs/findings.md");
    std::mt19937 random(13);
    for (int round = 0; round < 100; ++round) {
        ImageOf image(2);
        for (std::size_t i = 128; i < 2 * Image::blockSize; ++i) {
            image.set(i, {static_cast<int>(random() % 256)});
        }
        for (const Finding& finding : image.set(128, {GetParam().tag, GetParam().version}).reading().findings) {
            const std::string row = "| `" + std::string(finding.code) + "` | ";
            EXPECT_NE(documents.find(row + std::string(severityName(finding.severity)) + " |"), std::string::npos)
                << finding.code;
        }
    }
}

/// The vendor-specific data blocks are found by three bytes that chance does not make.
TEST(Extensions, KeepTheInvariantsOfAnyVendorBlock) {
    std::mt19937 random(11);
    for (int round = 0; round < 600; ++round) {
        ImageOf image(2);
        image.set(128, {0x02, 0x03, 36});
        for (std::size_t i = 132; i < 164; ++i) {
            image.set(i, {static_cast<int>(random() % 256)});
        }
        const int length = static_cast<int>(random() % 32);
        image.set(132, {3 << 5 | length});
        round % 2 == 0 ? image.set(133, {0x03, 0x0C, 0x00}) : image.set(133, {0xD8, 0x5D, 0xC4});
        SCOPED_TRACE(round);
        expectInvariants(image.reading());
    }
}

} // namespace
} // namespace wb::fields
