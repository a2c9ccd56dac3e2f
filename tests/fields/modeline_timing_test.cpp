#include "fields/modeline_timing.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "fields/image_of.h"

namespace wb::fields {
namespace {

struct Known {
    std::string line;
    TimingBytes bytes;
};

/// Worked out by hand from the layout of a detailed timing.
const std::vector<Known> knownTimings = {
    // 24150 steps are 5E56; 2560 is A00, 160 is A0; 1440 is 5A0, 41 is 29; 48 and 32, 3 and 5 lines.
    {"241.50 2560 2608 2640 2720 1440 1443 1448 1481 +hsync -vsync",
     {0x56, 0x5E, 0x00, 0xA0, 0xA0, 0xA0, 0x29, 0x50, 0x30, 0x20, 0x35, 0x00, 0, 0, 0, 0, 0, 0x1A}},
    // 31225 steps are 79F9; 928 is 3A0; a sync pulse of 272 is 110, so that byte 11 has a bit.
    {"312.25 2560 2752 3024 3488 1440 1443 1448 1493 -hsync +vsync",
     {0xF9, 0x79, 0x00, 0xA0, 0xA3, 0xA0, 0x35, 0x50, 0xC0, 0x10, 0x35, 0x10, 0, 0, 0, 0, 0, 0x1C}},
    // 1 step; 1000 is 3E8, 2000 is 7D0; 700 is 2BC and 300 is 12C; 100 is 64; 40 is 28 and 20 is 14: byte 11 is
    // 10 01 10 01.
    {"0.01 1000 1700 2000 3000 1000 1040 1060 1100 -hsync -vsync",
     {0x01, 0x00, 0xE8, 0xD0, 0x37, 0xE8, 0x64, 0x30, 0xBC, 0x2C, 0x84, 0x99, 0, 0, 0, 0, 0, 0x18}},
    // 7425 steps are 1D01; 540 lines of a field are 21C, 22 are 16; 2 and 5 lines.
    {"74.25 1920 2008 2052 2200 1080 1084 1094 1125 interlace +hsync +vsync",
     {0x01, 0x1D, 0x80, 0x18, 0x71, 0x1C, 0x16, 0x20, 0x58, 0x2C, 0x25, 0x00, 0, 0, 0, 0, 0, 0x9E}},
    // All that there is room for.
    {"655.35 4095 5118 6141 8190 4095 4158 4221 8190 +hsync +vsync",
     {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0x1E}},
};

Image imageWith(const TimingBytes& bytes) {
    ImageOf image;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        image.set(72 + i, {bytes[i]});
    }
    return image.image();
}

TEST(ModelineTiming, HasTheLayoutOfTheStandard) {
    for (const Known& known : knownTimings) {
        EXPECT_EQ(timingBytes(readModeline(known.line)), known.bytes) << known.line;
    }
}

TEST(ModelineTiming, IsReadBack) {
    for (const Known& known : knownTimings) {
        EXPECT_EQ(modelineAt(imageWith(known.bytes), 72), readModeline(known.line)) << known.line;
    }
}

TEST(ModelineTiming, RoundsTheClockToItsStep) {
    const auto clock = [](const std::string& megahertz) {
        return timingBytes(readModeline(megahertz + " 640 656 752 800 480 490 492 525 -hsync -vsync"))[0];
    };
    EXPECT_EQ(clock("0.024"), 2);
    EXPECT_EQ(clock("0.025"), 3);
    EXPECT_EQ(clock("0.006"), 1);
}

TEST(ModelineTiming, IsNoModelineWithoutAClockOrSeparateSyncs) {
    TimingBytes bytes = knownTimings[0].bytes;
    bytes[17] = 0x10; // digital composite
    EXPECT_EQ(modelineAt(imageWith(bytes), 72), std::nullopt);
    bytes[17] = 0x00; // analog
    EXPECT_EQ(modelineAt(imageWith(bytes), 72), std::nullopt);
    bytes = knownTimings[0].bytes;
    bytes[0] = bytes[1] = 0; // a descriptor
    EXPECT_EQ(modelineAt(imageWith(bytes), 72), std::nullopt);
}

TEST(ModelineTiming, RefusesWhatHasNoRoom) {
    const std::vector<std::pair<std::string, std::string>> refusals = {
        {"655.36 640 656 752 800 480 490 492 525",
         "the pixel clock does not fit: a detailed timing has room for 0.01 to 655.35 MHz"},
        {"0.004 640 656 752 800 480 490 492 525",
         "the pixel clock does not fit: a detailed timing has room for 0.01 to 655.35 MHz"},
        {"25.18 4096 4100 4200 4300 480 490 492 525",
         "the horizontal picture of 4096 does not fit: a detailed timing has room for 4095"},
        {"25.18 100 656 752 4196 480 490 492 525",
         "the horizontal blanking of 4096 does not fit: a detailed timing has room for 4095"},
        {"25.18 640 1664 1700 1800 480 490 492 525",
         "the horizontal front porch of 1024 does not fit: a detailed timing has room for 1023"},
        {"25.18 640 656 1680 1800 480 490 492 525",
         "the horizontal sync pulse of 1024 does not fit: a detailed timing has room for 1023"},
        {"25.18 640 656 752 800 4096 4100 4102 4200",
         "the vertical picture of 4096 does not fit: a detailed timing has room for 4095"},
        {"25.18 640 656 752 800 480 490 492 4576",
         "the vertical blanking of 4096 does not fit: a detailed timing has room for 4095"},
        {"25.18 640 656 752 800 480 544 546 600",
         "the vertical front porch of 64 does not fit: a detailed timing has room for 63"},
        {"25.18 640 656 752 800 480 490 554 600",
         "the vertical sync pulse of 64 does not fit: a detailed timing has room for 63"},
    };
    for (const auto& [line, reason] : refusals) {
        try {
            timingBytes(readModeline(line + " -hsync -vsync"));
            ADD_FAILURE() << line << " fits";
        } catch (const ModelineError& error) {
            EXPECT_EQ(error.what(), reason) << line;
        }
    }
}

TEST(ModelineTiming, RefusesFieldsThatAreNoHalves) {
    for (const std::string& vertical : std::vector<std::string>{"1081 1084 1094 1125", "1080 1083 1094 1125",
                                                                "1080 1084 1093 1125", "1080 1084 1094 1126"}) {
        try {
            timingBytes(readModeline("74.25 1920 2008 2052 2200 " + vertical + " interlace +hsync +vsync"));
            ADD_FAILURE() << vertical << " was halved";
        } catch (const ModelineError& error) {
            EXPECT_STREQ(error.what(),
                         "the vertical numbers of an interlaced timing are even but for the total, which is odd");
        }
    }
}

} // namespace
} // namespace wb::fields
