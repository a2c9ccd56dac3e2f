#include <gmock/gmock.h>

#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

/// The text of a descriptor that holds none: a line feed, and blanks to the end.
const std::string blankText = "\x0A            ";

/// A sample with the serial number 70211 in cells 12 to 15, and as a text in cells 113 to 125.
std::string numbered() {
    return sample("halvorine-hv19.bin");
}

std::string unnumbered() {
    std::string image = numbered();
    image.replace(12, 4, 4, '\0');
    image.replace(113, 13, blankText);
    return withSum(image, 0);
}

using ScrubTest = Edidwb;

TEST_F(ScrubTest, BlanksNumberAndTextAndNothingElse) {
    write("a.bin", numbered());
    const Outcome outcome = shell("edidwb scrub -o out a.bin");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, "a.bin: serial number blanked\na.bin: serial text of descriptor 4 blanked\n");
    EXPECT_EQ(read("out/a.bin"), unnumbered());
    EXPECT_EQ(read("a.bin"), numbered());
}

TEST_F(ScrubTest, EveryTextIsBlanked) {
    std::string image = numbered();
    image.replace(90, 18, image.substr(108, 18)); // the third descriptor as the fourth
    write("a.bin", image);
    EXPECT_EQ(shell("edidwb scrub --in-place a.bin").status, 0);
    std::string expected = unnumbered();
    expected.replace(90, 18, expected.substr(108, 18));
    EXPECT_EQ(read("a.bin"), withSum(expected, 0));
}

TEST_F(ScrubTest, WhatDecodingChangesAtTheScreenStaysInTheImage) {
    std::string image = numbered();
    image[72] = 1;         // a pixel clock, so that the second block is a timing too
    image[54 + 17] = 0x14; // digital composite sync, serrated
    image[72 + 17] = 0x1C; // digital separate sync, vertical positive
    write("a.bin", image);
    EXPECT_EQ(shell("edidwb scrub --in-place a.bin").status, 0);
    image.replace(12, 4, 4, '\0');
    image.replace(113, 13, blankText);
    EXPECT_EQ(read("a.bin"), withSum(image, 0));
}

TEST_F(ScrubTest, AnImageWithoutSerialNumberStaysAsItIs) {
    write("a.bin", unnumbered());
    const Outcome outcome = shell("edidwb scrub --in-place --backup a.bin; ls -A");
    EXPECT_EQ(outcome.output, "a.bin: there is no serial number in block 0\na.bin\n");
    EXPECT_EQ(read("a.bin"), unnumbered());
}

TEST_F(ScrubTest, TellsWhatIsLeft) {
    std::string extension(128, '\0');
    // A DisplayID section whose one data block names vendor ABC, code 0201, serial number 12345678 hexadecimal.
    const std::string section(
        "\x70\x12\x0F\x03\x00\x00\x00\x0C"
        "ABC\x01\x02\x78\x56\x34\x12\x01\x14\x00",
        20);
    extension.replace(0, section.size(), section);
    std::string image = numbered();
    image[126] = 1;
    image[93] = '\xFE'; // the name becomes a text of its own
    write("a.bin", image + extension);
    const Outcome outcome = shell("edidwb scrub -o out a.bin");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: a.bin: left as it is: "));
    EXPECT_THAT(outcome.errors, HasSubstr(", 305419896"));
    EXPECT_THAT(outcome.errors,
                HasSubstr("edidwb: a.bin: left as it is: the text of descriptor 3, which may hold a serial number\n"));
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: a.bin: block 1: the check sum is wrong; repair puts it right\n"));
    EXPECT_EQ(read("out/a.bin").substr(128), extension);
}

TEST_F(ScrubTest, ADryRunTellsAndWritesNothing) {
    write("a.bin", numbered());
    const Outcome outcome = shell("edidwb scrub --dry-run --in-place a.bin; ls -A");
    EXPECT_EQ(outcome.output, "a.bin: serial number blanked\na.bin: serial text of descriptor 4 blanked\na.bin\n");
    EXPECT_EQ(read("a.bin"), numbered());
}

} // namespace
} // namespace wb::test
