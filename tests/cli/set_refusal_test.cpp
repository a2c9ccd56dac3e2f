#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "adapters/cvt.h"
#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Slot 1 holds a timing, slot 2 range limits, slot 3 the name, slot 4 a serial number.
std::string monitor() {
    return sample("halvorine-hv19.bin");
}

using SetRefusalTest = Edidwb;

TEST_F(SetRefusalTest, WhatABoxRefusesIsAnErrorOfTheFile) {
    const std::vector<std::pair<std::string, std::string>> refusals = {
        {"--maker A1B", "--maker: frmEDID.VendorInfo: A-Z Only"},
        {"--maker AB", "--maker: the image tells 'AB@' instead of 'AB'"},
        {"--maker ABCD", "--maker: there is no room for 'ABCD': frmEDID.VendorInfo takes 'ABC'"},
        {"--serial 4294967295", "--serial: frmEDID.VendorInfo: Overflow"},
        {"--week 53", "--week: frmEDID.VendorInfo: Max value is 52"},
        {"--year 95", "--year: frmEDID.VendorInfo: Please enter in the full year (1999)"},
        {"--year 1989", "--year: frmEDID.VendorInfo: The Range is 1990-2155"},
        {"--name 'Fourteen chars'",
         "--name: there is no room for 'Fourteen chars': frmEDID.DTaInput takes "
         "'Fourteen char'"},
        {"--name 'Desk '", "--name: the image tells 'Desk' instead of 'Desk '"},
    };
    write("a.bin", monitor());
    for (const auto& [options, error] : refusals) {
        const Outcome outcome = shell("edidwb set --in-place --week 9 a.bin " + options);
        EXPECT_EQ(outcome.status, 1) << options;
        EXPECT_EQ(outcome.output, "") << options;
        EXPECT_EQ(outcome.errors, "edidwb: a.bin: " + error + '\n') << options;
        EXPECT_EQ(read("a.bin"), monitor()) << options;
    }
}

TEST_F(SetRefusalTest, OtherFilesGoOn) {
    write("a.bin", monitor());
    write("b.bin", withBytes(monitor(), 93, {0xFE})); // the name becomes a text, and no descriptor is free
    write("c.bin", monitor());
    const Outcome outcome = shell("edidwb set -o out a.bin b.bin c.bin --maker ABC --name Desk; ls out");
    EXPECT_EQ(outcome.errors, "edidwb: b.bin: --name: there is neither a name nor a free descriptor\n");
    EXPECT_THAT(outcome.output, StartsWith("a.bin: maker set to ABC\na.bin: name set to 'Desk'\nc.bin: maker"));
    EXPECT_THAT(outcome.output, HasSubstr("\na.bin\nc.bin\n"));
}

TEST_F(SetRefusalTest, ATimingCanTakeTheLastPlaceOfTheName) {
    write("a.bin", monitor());
    const Outcome outcome = shell(
        "edidwb set --in-place a.bin --name Desk --timing "
        "'3=25.18 640 656 752 800 480 490 492 525 -hsync -vsync'");
    EXPECT_EQ(outcome.errors, "edidwb: a.bin: --name: there is neither a name nor a free descriptor\n");
    EXPECT_EQ(read("a.bin"), monitor());
}

TEST_F(SetRefusalTest, WhatNoImageCanHoldIsWrongUse) {
    const std::string numbers = "640 656 752 800 480 490 492 525 -hsync -vsync'";
    const std::vector<std::pair<std::string, std::string>> refusals = {
        {"", "nothing is to be set"},
        {"--product 65536", "--product takes a whole number from 0 to 65535, not '65536'"},
        {"--product 0x", "--product takes a whole number from 0 to 65535, not '0x'"},
        {"--product 12G4", "--product takes a whole number from 0 to 65535, not '12G4'"},
        {"--serial 4294967296", "--serial takes a whole number from 0 to 4294967295, not '4294967296'"},
        {"--serial 1.5", "--serial takes a whole number from 0 to 4294967295, not '1.5'"},
        {"--week -1", "--week takes a whole number from 0 to 255, not '-1'"},
        {"--year 2246", "--year takes a whole number from 0 to 2245, not '2246'"},
        {"--name Möbel", "--name takes characters of ASCII, from blank to ~"},
        {"--timing '25.18 " + numbers, "--timing takes N=MODELINE with N from 1 to 4, not '25.18 " + numbers},
        {"--timing '5=25.18 " + numbers, "--timing takes N=MODELINE with N from 1 to 4, not '5=25.18 " + numbers},
        {"--timing '0=25.18 " + numbers, "--timing takes N=MODELINE with N from 1 to 4, not '0=25.18 " + numbers},
        {"--timing '1=656 " + numbers,
         "--timing 1: the pixel clock does not fit: a detailed timing has room for 0.01 to 655.35 MHz"},
        {"--timing '1=25.18 640 656'",
         "--timing 1: a modeline has a pixel clock, four horizontal and four vertical numbers"},
        {"--timing '1=25.18 " + numbers + " --timing '1=25.18 " + numbers,
         "--timing 1: there is another timing for the same place"},
        {"--cvt 2560x1440", "--cvt takes N=WIDTHxHEIGHT@RATE with N from 1 to 4, not '2560x1440'"},
        {"--cvt 1=2560", "--cvt 1: '2560' is no WIDTHxHEIGHT@RATE, such as 2560x1440@60R"},
        {"--cvt 1=2560x1440@", "--cvt 1: '2560x1440@' is no WIDTHxHEIGHT@RATE, such as 2560x1440@60R"},
        {"--cvt 1=2560x1440@6e1", "--cvt 1: '2560x1440@6e1' is no WIDTHxHEIGHT@RATE, such as 2560x1440@60R"},
        {"--cvt 1=R", "--cvt 1: 'R' is no WIDTHxHEIGHT@RATE, such as 2560x1440@60R"},
        {"--new b.bin", "--new takes no FILE besides"},
    };
    write("a.bin", monitor());
    for (const auto& [options, error] : refusals) {
        const Outcome outcome = shell("edidwb set -o out a.bin " + options);
        EXPECT_EQ(outcome.status, 2) << options;
        EXPECT_EQ(outcome.errors, "edidwb: " + error + "\nTry 'edidwb set --help' for more information.\n") << options;
        EXPECT_FALSE(exists("out")) << options;
    }
}

TEST_F(SetRefusalTest, CvtNeedsItsLibraryAndASizeThatItKnows) {
    write("a.bin", monitor());
    const Outcome outcome = shell("edidwb set -o out a.bin --cvt 1=1366x768");
    EXPECT_EQ(outcome.status, 2);
    if (adapters::missingCvtLibrary().empty()) {
        EXPECT_THAT(outcome.errors,
                    StartsWith("edidwb: --cvt 1: CVT widths are multiples of 8; 1366 is between 1360 and 1368\n"));
        EXPECT_THAT(shell("edidwb set -o out a.bin --cvt 1=3840x2160@120").errors,
                    StartsWith("edidwb: --cvt 1: the pixel clock does not fit"));
        write("libxcvt.so.0", "no library");
        EXPECT_THAT(shell("LD_LIBRARY_PATH=. edidwb set -o out a.bin --cvt 1=1920x1080").errors,
                    StartsWith("edidwb: --cvt 1: CVT timings cannot be computed: ./libxcvt.so.0: "));
    } else {
        EXPECT_THAT(outcome.errors, StartsWith("edidwb: --cvt 1: this program was built without libxcvt, which"));
    }
}

} // namespace
} // namespace wb::test
