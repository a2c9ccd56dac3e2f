#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string timing = " --timing '1=241.50 2560 2608 2640 2720 1440 1443 1448 1481 +hsync -vsync'";
const std::string command = "edidwb set --new desk.bin --maker ABC --year 2024" + timing;

/// A digital monitor of EDID 1.4 by hand: gamma 2.2, colours of sRGB, no established and standard timings, the timing
/// of 2560x1440 with reduced blanking, a name, two dummies.
std::string newMonitor(const std::string& name) {
    std::string image = withBytes(std::string(128, '\0'), 0, {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00});
    image = withBytes(image, 8, {0x04, 0x43, 0, 0, 0, 0, 0, 0, 0, 34});
    image = withBytes(image, 18, {1, 4, 0x80, 0, 0, 120, 0x06});
    image = withBytes(image, 25, {0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54});
    image.replace(38, 16, 16, '\x01');
    image = withBytes(image, 54,
                      {0x56, 0x5E, 0x00, 0xA0, 0xA0, 0xA0, 0x29, 0x50, 0x30, 0x20, 0x35, 0, 0, 0, 0, 0, 0, 0x1A});
    image = withBytes(image, 75, {0xFC});
    image.replace(77, 13, name + '\n' + std::string(12 - name.size(), ' '));
    image = withBytes(image, 93, {0x10});
    image = withBytes(image, 111, {0x10});
    return withSum(image);
}

using SetNewTest = Edidwb;

TEST_F(SetNewTest, MakesAWholeImage) {
    const Outcome outcome = shell(command + " --name 'Desk 3'");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output,
              "desk.bin: maker set to ABC\n"
              "desk.bin: year set to 2024\n"
              "desk.bin: timing 1 set to 2560x1440 at 59.95 Hz, 241.50 MHz\n"
              "desk.bin: name set to 'Desk 3'\n");
    EXPECT_EQ(read("desk.bin"), newMonitor("Desk 3"));
    EXPECT_EQ(shell("edidwb check desk.bin").status, 0);
}

TEST_F(SetNewTest, WithoutANameItIsThatOfMakerAndProduct) {
    EXPECT_EQ(shell(command).status, 0);
    EXPECT_EQ(read("desk.bin"), newMonitor("ABC0000"));
    EXPECT_EQ(shell(command + " --force --product 171").status, 0);
    EXPECT_EQ(read("desk.bin"), withSum(withBytes(newMonitor("ABC00AB"), 10, {0xAB})));
}

TEST_F(SetNewTest, WithoutAYearItIsThatOfToday) {
    const Outcome outcome = shell("edidwb set --new desk.bin --maker ABC" + timing + "; date +'year set to %Y'");
    EXPECT_THAT(outcome.output, HasSubstr("desk.bin: " + outcome.output.substr(outcome.output.rfind("year set"))));
}

TEST_F(SetNewTest, TheEndingOfTheNameTellsTheForm) {
    EXPECT_EQ(shell("edidwb set --new desk.HEX -o out --maker ABC --year 2024 --name Desk" + timing +
                    " && edidwb convert --to bin out/desk.HEX out/desk.bin && head -c 11 out/desk.HEX")
                  .output,
              "out/desk.HEX: maker set to ABC\n"
              "out/desk.HEX: year set to 2024\n"
              "out/desk.HEX: timing 1 set to 2560x1440 at 59.95 Hz, 241.50 MHz\n"
              "out/desk.HEX: name set to 'Desk'\n"
              "00 FF FF FF");
    EXPECT_EQ(read("out/desk.bin"), newMonitor("Desk"));
}

TEST_F(SetNewTest, WritesNothingInADryRunAndReplacesNothingUnlessForced) {
    EXPECT_EQ(shell(command + " --dry-run").status, 0);
    EXPECT_FALSE(exists("desk.bin"));
    write("desk.bin", "older");
    const Outcome refused = shell(command);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors, "edidwb: desk.bin: exists already (--force replaces it)\n");
    EXPECT_EQ(read("desk.bin"), "older");
}

TEST_F(SetNewTest, ABoxIsAnErrorAndNothingIsWritten) {
    const Outcome outcome = shell(command + " --maker A1B");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: desk.bin: --maker: frmEDID.VendorInfo: A-Z Only\n");
    EXPECT_FALSE(exists("desk.bin"));
}

TEST_F(SetNewTest, WhatIsMissingOrContradictsIsWrongUse) {
    const std::vector<std::pair<std::string, std::string>> refusals = {
        {"--new desk.bin --maker ABC", "a new image needs --maker, and --timing or --cvt for place 1"},
        {"--new desk.bin" + timing, "a new image needs --maker, and --timing or --cvt for place 1"},
        {"--new desk.bin --maker ABC --timing '2=25.18 640 656 752 800 480 490 492 525 -hsync -vsync'",
         "a new image needs --maker, and --timing or --cvt for place 1"},
        {"--new desk.bin --in-place --maker ABC" + timing, "--new and --in-place exclude each other"},
        {"--new - --maker ABC" + timing, "--new needs the name of a file"},
        {"--new desk.Dat --maker ABC" + timing,
         "--new writes no data file; convert --to dat makes one of a binary file"},
        {"--maker ABC", "FILE or --new is required"},
    };
    for (const auto& [options, error] : refusals) {
        const Outcome outcome = shell("edidwb set " + options + "; status=$?; ls -A; exit $status");
        EXPECT_EQ(outcome.status, 2) << options;
        EXPECT_EQ(outcome.output, "") << options;
        EXPECT_THAT(outcome.errors, StartsWith("edidwb: " + error + '\n')) << options;
    }
}

} // namespace
} // namespace wb::test
