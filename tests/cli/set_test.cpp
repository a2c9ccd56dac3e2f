#include <gmock/gmock.h>

#include "adapters/cvt.h"
#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

/// Slot 1 holds a timing of 1280x1024 with a picture of 352 x 264 mm (60 08 11), slot 2 range limits, slot 3 the name,
/// slot 4 a serial number.
std::string monitor() {
    return sample("halvorine-hv19.bin");
}

/// A modeline of `cvt -r 2560 1440`, and its bytes: 24150 steps are 5E56; 2560 is A00, 160 is A0; 1440 is 5A0, 41 is
/// 29; 48 and 32 pixels, 3 and 5 lines; separate syncs, horizontal positive.
const std::string reducedLine =
    R"(Modeline "2560x1440R"  241.50  2560 2608 2640 2720  1440 1443 1448 1481 +hsync -vsync)";
std::string withReduced(const std::string& image, std::size_t base) {
    return withBytes(image, base,
                     {0x56, 0x5E, 0x00, 0xA0, 0xA0, 0xA0, 0x29, 0x50, 0x30, 0x20, 0x35, 0, 0, 0, 0, 0, 0, 0x1A});
}

/// A descriptor without a meaning, with a dummy's tag.
std::string withDummy(const std::string& image, std::size_t base) {
    return withBytes(image, base, {0, 0, 0, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
}

/// The name "Desk 3" in a descriptor.
std::string withName(std::string image, std::size_t base) {
    return image.replace(base, 18, std::string("\x00\x00\x00\xFC\x00", 5) + "Desk 3\n      ");
}

using SetTest = Edidwb;

TEST_F(SetTest, EntersTheIdentity) {
    write("a.bin", monitor());
    const Outcome outcome = shell(
        "edidwb set -o out a.bin --maker abc --product 4660 --serial 305419896 --week 7 "
        "--year 2020");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output,
              "a.bin: maker set to ABC\n"
              "a.bin: product code set to 4660, hexadecimal 1234\n"
              "a.bin: serial number set to 305419896\n"
              "a.bin: week set to 7\n"
              "a.bin: year set to 2020\n");
    // A, B and C are 1, 2 and 3 of five bits each; 4660 is 1234, 305419896 is 12345678; 2020 is 1990 + 30.
    EXPECT_EQ(read("out/a.bin"),
              withSum(withBytes(monitor(), 8, {0x04, 0x43, 0x34, 0x12, 0x78, 0x56, 0x34, 0x12, 7, 30})));
    EXPECT_EQ(read("a.bin"), monitor());
}

TEST_F(SetTest, TakesAProductCodeInHexadecimal) {
    write("a.bin", monitor());
    EXPECT_EQ(shell("edidwb set --in-place a.bin --product 0xab").output,
              "a.bin: product code set to 171, hexadecimal 00AB\n");
    EXPECT_EQ(read("a.bin"), withSum(withBytes(monitor(), 10, {0xAB, 0x00})));
}

TEST_F(SetTest, TellsTheBoxesThatComeUpOnLoading) {
    const std::string image = sample("quillmere-q15.bin");
    write("a.bin", image);
    const Outcome outcome = shell("edidwb set -o out a.bin --serial 305419896");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "edidwb: a.bin: Control array element does not exist (decoding block 0)\n");
    EXPECT_EQ(read("out/a.bin"), withSum(withBytes(image, 12, {0x78, 0x56, 0x34, 0x12})));
}

TEST_F(SetTest, NumbersCanBeTakenAway) {
    write("a.bin", monitor());
    EXPECT_EQ(shell("edidwb set --in-place a.bin --product 0 --serial 0 --week 0").status, 0);
    EXPECT_EQ(read("a.bin"), withSum(withBytes(monitor(), 10, {0, 0, 0, 0, 0, 0, 0})));
}

TEST_F(SetTest, TheNameGoesIntoItsDescriptor) {
    write("a.bin", monitor());
    EXPECT_EQ(shell("edidwb set --in-place a.bin --name 'Desk 3'").output, "a.bin: name set to 'Desk 3'\n");
    EXPECT_EQ(read("a.bin"), withSum(withName(monitor(), 90)));
    EXPECT_EQ(shell("edidwb set --in-place a.bin --name 'Thirteen long'").status, 0);
    EXPECT_EQ(read("a.bin").substr(93, 15), std::string("\xFC\x00", 2) + "Thirteen long");
}

TEST_F(SetTest, TheNameGoesIntoTheFirstFreeDescriptor) {
    write("dummy.bin", withDummy(withDummy(monitor(), 90), 108));
    EXPECT_EQ(shell("edidwb set --in-place dummy.bin --name 'Desk 3'").status, 0);
    EXPECT_EQ(read("dummy.bin"), withSum(withName(withDummy(monitor(), 108), 90)));
    write("zeros.bin", monitor().replace(90, 18, 18, '\0'));
    EXPECT_EQ(shell("edidwb set --in-place zeros.bin --name 'Desk 3'").status, 0);
    EXPECT_EQ(read("zeros.bin"), withSum(withName(monitor(), 90)));
}

TEST_F(SetTest, ADescriptorIsOneWhateverItsReservedByteHolds) {
    write("a.bin", withSum(withBytes(monitor(), 92, {7})));
    EXPECT_EQ(shell("edidwb set -o out a.bin --name 'Desk 3'").status, 0);
    EXPECT_EQ(read("out/a.bin"), withSum(withBytes(withName(monitor(), 90), 92, {7})));
    const Outcome outcome = shell("edidwb set -fo out a.bin --timing '3=" + reducedLine + "'");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, HasSubstr("timing 3 takes the place of a descriptor (product name)\n"));
    EXPECT_EQ(read("out/a.bin"), withSum(withReduced(monitor(), 90)));
}

TEST_F(SetTest, ATimingKeepsTheSizeOfThePicture) {
    write("a.bin", monitor());
    const Outcome outcome = shell("edidwb set -o out a.bin --timing 1='" + reducedLine + "'");
    EXPECT_EQ(outcome.output, "a.bin: timing 1 set to 2560x1440 at 59.95 Hz, 241.50 MHz\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(read("out/a.bin"), withSum(withBytes(withReduced(monitor(), 54), 66, {0x60, 0x08, 0x11})));
}

TEST_F(SetTest, ATimingTakesThePlaceOfADescriptorAndTellsSo) {
    write("a.bin", monitor());
    const Outcome outcome = shell("edidwb set -o out a.bin --timing 2='" + reducedLine + "'");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "edidwb: a.bin: timing 2 takes the place of a descriptor (range limits)\n");
    EXPECT_EQ(read("out/a.bin"), withSum(withReduced(monitor(), 72)));
}

TEST_F(SetTest, ATimingTakesAFreePlace) {
    write("zeros.bin", monitor().replace(72, 18, 18, '\0'));
    const Outcome zeros = shell("edidwb set -o out zeros.bin --timing 2='" + reducedLine + "'");
    EXPECT_EQ(zeros.errors, "");
    EXPECT_EQ(read("out/zeros.bin"), withSum(withReduced(monitor(), 72)));
    write("dummy.bin", withDummy(monitor(), 72));
    const Outcome dummy = shell("edidwb set -o out dummy.bin --timing 2='" + reducedLine + "'");
    EXPECT_EQ(dummy.status, 0) << dummy.errors;
    EXPECT_EQ(read("out/dummy.bin"), withSum(withReduced(monitor(), 72)));
}

TEST_F(SetTest, LargeNumbersKeepTheirUpperBits) {
    write("a.bin", monitor());
    EXPECT_EQ(shell("edidwb set --in-place a.bin --timing "
                    "'3=0.01 1000 1700 2000 3700 3000 3040 3060 6900 -hsync -vsync'")
                  .status,
              0);
    // 1000 is 3E8, 2700 is A8C; 3000 is BB8, 3900 is F3C; 700 is 2BC, 300 is 12C; 40 is 28, 20 is 14: the upper bits
    // are 10 01 10 01.
    EXPECT_EQ(read("a.bin"), withSum(withBytes(monitor(), 90,
                                               {0x01, 0x00, 0xE8, 0x8C, 0x3A, 0xB8, 0x3C, 0xBF, 0xBC, 0x2C, 0x84, 0x99,
                                                0, 0, 0, 0, 0, 0x18})));
}

TEST_F(SetTest, PolaritiesStayThoughTheDecoderWritesABit) {
    std::string image = withReduced(monitor(), 72);
    image[71] = 0x14; // digital composite sync, serrated
    image[89] = 0x14;
    write("a.bin", image);
    EXPECT_EQ(shell("edidwb set --in-place a.bin --timing "
                    "'2=241.5 2560 2608 2640 2720 1440 1443 1448 1481 -hsync +vsync'")
                  .status,
              0);
    image[89] = 0x1C;
    EXPECT_EQ(read("a.bin"), withSum(image));
}

TEST_F(SetTest, TakesTheModelinesOfTools) {
    write("a.bin", monitor());
    write("cvt", "# 2560x1440 59.95 Hz (CVT 3.69M9-R) hsync: 88.79 kHz; pclk: 241.50 MHz\n" + reducedLine + "\n");
    write("xrandr",
          "  2560x1440 (0x48) 241.500MHz +HSync -VSync *current +preferred\n"
          "        h: width  2560 start 2608 end 2640 total 2720 skew    0 clock  88.79KHz\n"
          "        v: height 1440 start 1443 end 1448 total 1481           clock  59.95Hz\n");
    EXPECT_EQ(shell("edidwb set -o out a.bin --timing 2=\"$(cat cvt)\" --timing 3=\"$(cat xrandr)\"").status, 0);
    EXPECT_EQ(read("out/a.bin"), withSum(withReduced(withReduced(monitor(), 72), 90)));
}

TEST_F(SetTest, TellsThatAClockIsRounded) {
    write("a.bin", monitor());
    const Outcome outcome =
        shell("edidwb set -o out a.bin --timing 1='25.175 640 656 752 800 480 490 492 525 -hsync -vsync'");
    EXPECT_EQ(outcome.output, "a.bin: timing 1 set to 640x480 at 59.95 Hz, 25.18 MHz\n");
    EXPECT_EQ(outcome.errors, "edidwb: a.bin: timing 1: the pixel clock is rounded to steps of 10 kHz\n");
    EXPECT_EQ(read("out/a.bin").substr(54, 2), "\xD6\x09"); // 2518 is 9D6
}

TEST_F(SetTest, AnInterlacedTimingCountsTheLinesOfAField) {
    write("a.bin", monitor());
    const Outcome outcome = shell(
        "edidwb set -o out a.bin --timing "
        "'2=74.25 1920 2008 2052 2200 1080 1084 1094 1125 interlace +hsync +vsync'");
    EXPECT_EQ(outcome.output, "a.bin: timing 2 set to 1920x1080 interlaced at 60.00 Hz, 74.25 MHz\n");
    EXPECT_EQ(
        read("out/a.bin"),
        withSum(withBytes(monitor(), 72,
                          {0x01, 0x1D, 0x80, 0x18, 0x71, 0x1C, 0x16, 0x20, 0x58, 0x2C, 0x25, 0, 0, 0, 0, 0, 0, 0x9E})));
}

TEST_F(SetTest, ComputesTimingsByCvt) {
    if (!adapters::missingCvtLibrary().empty()) {
        GTEST_SKIP() << "built without " << adapters::missingCvtLibrary();
    }
    write("a.bin", monitor());
    const Outcome outcome = shell("edidwb set -o out a.bin --cvt 2=2560x1440@60R --cvt 3=2560x1440");
    EXPECT_EQ(outcome.output,
              "a.bin: timing 2 set to 2560x1440 at 59.95 Hz, 241.50 MHz\n"
              "a.bin: timing 3 set to 2560x1440 at 59.96 Hz, 312.25 MHz\n");
    // 312.25  2560 2752 3024 3488  1440 1443 1448 1493 -hsync +vsync: 31225 is 79F9, 928 is 3A0, 272 is 110.
    EXPECT_EQ(read("out/a.bin"), withSum(withBytes(withReduced(monitor(), 72), 90,
                                                   {0xF9, 0x79, 0x00, 0xA0, 0xA3, 0xA0, 0x35, 0x50, 0xC0, 0x10, 0x35,
                                                    0x10, 0, 0, 0, 0, 0, 0x1C})));
}

TEST_F(SetTest, OtherBlocksStayAsTheyAre) {
    const std::string image = sample("zarqo-z40.bin") + std::string(127, '\x55') + '\0';
    write("a.bin", image);
    EXPECT_EQ(shell("edidwb set --in-place --backup a.bin --maker ABC").status, 0);
    EXPECT_EQ(read("a.bin"), withSum(withBytes(image, 8, {0x04, 0x43})));
    EXPECT_EQ(read("a.bin.bak"), image);
}

TEST_F(SetTest, ADryRunTellsAndWritesNothing) {
    write("a.bin", monitor());
    EXPECT_EQ(shell("edidwb set --dry-run --in-place a.bin --maker ABC; ls -A").output,
              "a.bin: maker set to ABC\na.bin\n");
    EXPECT_EQ(read("a.bin"), monitor());
}

} // namespace
} // namespace wb::test
