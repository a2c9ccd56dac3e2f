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

TEST_F(ScrubTest, ATextIsBlankedWhateverTheReservedBytesOfItsDescriptorHold) {
    for (const int third : {0, 1, 0x7F, 0xFF}) {
        for (const int fifth : {0, 1, 0xFF}) {
            const std::string odd = withBytes(withBytes(numbered(), 110, {third}), 112, {fifth});
            write("a.bin", withSum(odd));
            const Outcome outcome = shell("edidwb scrub -fo out a.bin");
            EXPECT_EQ(outcome.status, 0) << outcome.errors;
            EXPECT_THAT(outcome.output, HasSubstr("a.bin: serial text of descriptor 4 blanked\n"));
            EXPECT_EQ(read("out/a.bin"), withSum(withBytes(withBytes(unnumbered(), 110, {third}), 112, {fifth})));
        }
    }
}

TEST_F(ScrubTest, WhatHidesBehindTheEndOfATextIsBlankedToo) {
    std::string image = numbered();
    image.replace(113, 13, "\nHV19-70211\n ");
    write("a.bin", withSum(image));
    EXPECT_EQ(shell("edidwb scrub -o out a.bin").status, 0);
    EXPECT_EQ(read("out/a.bin"), unnumbered());
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

/// The image with an extension that is a DisplayID section of one data block.
std::string withDataBlock(std::string image, char version, const std::string& dataBlock) {
    std::string section{'\x70', version, static_cast<char>(dataBlock.size()), '\0', '\0'};
    section += dataBlock;
    section.resize(127);
    image[126] = 1;
    return withSum(withSum(image) + section + '\0', 1);
}

TEST_F(ScrubTest, TellsWhatIdentifiesTheMonitorInOtherBlocks) {
    struct Case {
        char version;
        std::string dataBlock;
        std::string told; ///< empty: nothing
    };
    const std::string uuid = "\x01\x23\x45\x67\x89\xAB\xCD\xEF\x01\x23\x45\x67\x89\xAB\xCD\xEF";
    for (const Case& c : {
             Case{'\x13', std::string("\x0A\x00\x09SN1234567", 12), ", SN1234567\n"},
             Case{'\x13', std::string("\x0A\x00\x06   \n \x00", 9), ""},
             Case{'\x13', std::string("\x0A\x00\x06 \nSN1 ", 9), ", \n"},
             Case{'\x20', std::string("\x29\x00\x10", 3) + uuid, ", 01234567-89AB-CDEF-0123-456789ABCDEF\n"},
             Case{'\x20', std::string("\x29\x00\x10", 3) + std::string(16, '\0'), ""},
             Case{'\x20', std::string("\x29\x00\x02\x12\x34", 5), ", 12 34\n"},
         }) {
        const std::string image = withDataBlock(unnumbered(), c.version, c.dataBlock);
        write("a.bin", image);
        const Outcome outcome = shell("edidwb scrub -fo out a.bin");
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors.find("left as it is") == std::string::npos, c.told.empty()) << outcome.errors;
        EXPECT_THAT(outcome.errors, HasSubstr(c.told));
        EXPECT_EQ(read("out/a.bin"), image);
    }
}

TEST_F(ScrubTest, TellsWhatStandsWhereAnExtensionHasNothing) {
    std::string image = unnumbered();
    image[126] = 1;
    std::string extension("\x02\x03\x04", 3);
    extension.resize(128);
    write("a.bin", withSum(withSum(image) + extension, 1));
    const std::string decoding = shell("edidwb scrub -fo out a.bin").errors;
    EXPECT_EQ(decoding.find("left as it is"), std::string::npos);
    extension.replace(4, 18, std::string("\0\0\0\xFF\0SN12345\n     ", 18));
    write("a.bin", withSum(withSum(image) + extension, 1));
    EXPECT_EQ(
        shell("edidwb scrub -fo out a.bin").errors,
        decoding + "edidwb: a.bin: left as it is: cta[1].padding, which is not empty and may hold a serial number\n");
}

TEST_F(ScrubTest, ADryRunTellsAndWritesNothing) {
    write("a.bin", numbered());
    const Outcome outcome = shell("edidwb scrub --dry-run --in-place a.bin; ls -A");
    EXPECT_EQ(outcome.output, "a.bin: serial number blanked\na.bin: serial text of descriptor 4 blanked\na.bin\n");
    EXPECT_EQ(read("a.bin"), numbered());
}

} // namespace
} // namespace wb::test
