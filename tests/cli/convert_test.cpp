#include <gmock/gmock.h>

#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using ConvertTest = Edidwb;

TEST_F(ConvertTest, EveryFormLeadsBackToTheImage) {
    for (const char* name : {"halvorine-hv19", "zarqo-z40"}) {
        const std::string image = sample(std::string(name) + ".bin");
        const Outcome outcome = shell("edidwb convert --to dat $SAMPLES/" + std::string(name) +
                                      ".bin a.DAT --force && edidwb convert --to hex a.DAT a.hex -f && "
                                      "edidwb convert a.hex --to bin a.bin -f");
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(outcome.output + outcome.errors, "");
        EXPECT_EQ(read("a.bin"), image) << name;
    }
}

TEST_F(ConvertTest, WritesWhatTheCommandsOfTheProgramWrite) {
    shell(
        "edidwb convert --to hex $SAMPLES/halvorine-hv19.bin a.hex\n"
        "edidwb convert --to dat $SAMPLES/halvorine-hv19.bin a.DAT\n"
        "edidwb convert --to report $SAMPLES/halvorine-hv19.bin a.txt");
    EXPECT_EQ(read("a.hex").substr(0, 24), "00 FF FF FF FF FF FF 00 ");
    EXPECT_EQ(read("a.hex").size(), 384U);
    EXPECT_EQ(read("a.txt"), shell("edidwb translate $SAMPLES/halvorine-hv19.bin").output);

    shell(
        "edidwb script <<'END'\ndialog \"a.DAT\"\nmenu mnuFileOpen\ndialog \"b.DAT\"\nmenu mnuFileSaveAs\n"
        "dialog \"b.hex\"\nmenu ExportHex\nEND");
    EXPECT_EQ(read("b.DAT"), read("a.DAT"));
    EXPECT_EQ(read("b.hex"), read("a.hex"));
}

TEST_F(ConvertTest, RefusesAnExistingFile) {
    write("out", "old");
    const Outcome refused = shell("edidwb convert --to bin $SAMPLES/zarqo-z40.bin out");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errors, "edidwb: out: exists already (--force replaces it)\n");
    EXPECT_EQ(read("out"), "old");
    EXPECT_EQ(shell("edidwb convert --force --to bin $SAMPLES/zarqo-z40.bin out").status, 0);
    EXPECT_EQ(read("out"), sample("zarqo-z40.bin"));
}

TEST_F(ConvertTest, RefusesALinkThatLeadsNowhere) {
    const Outcome outcome = shell(
        "ln -s missing dangling; ln -s loop loop\nedidwb convert --to bin $SAMPLES/zarqo-z40.bin dangling\n"
        "edidwb convert --to bin $SAMPLES/zarqo-z40.bin loop");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "edidwb: dangling: exists already (--force replaces it)\n"
              "edidwb: loop: exists already (--force replaces it)\n");
    EXPECT_EQ(shell("readlink dangling loop; ls -A").output, "missing\nloop\ndangling\nloop\n");
}

TEST_F(ConvertTest, AFileSizeLimitIsAFailureLikeAnyOther) {
    const Outcome outcome = shell("ulimit -f 1; edidwb convert --to report $SAMPLES/zarqo-z40.bin out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: out: File too large\n");
    EXPECT_EQ(shell("ls -A").output, "");
}

TEST_F(ConvertTest, AFailureLeavesNoFile) {
    write("notes", "no image");
    EXPECT_EQ(shell("edidwb convert --to bin notes out").status, 1);
    EXPECT_EQ(shell("edidwb convert --to bin missing out").status, 1);
    EXPECT_EQ(shell("edidwb convert --to bin $SAMPLES/zarqo-z40.bin missing/out").status, 1);
    EXPECT_EQ(shell("edidwb convert --to bin $SAMPLES/zarqo-z40.bin .").status, 1);
    EXPECT_EQ(shell("ls -A").output, "notes\n");
    EXPECT_EQ(shell("edidwb convert --force --to bin $SAMPLES/zarqo-z40.bin /dev/full").errors,
              "edidwb: /dev/full: No space left on device\n");
    EXPECT_EQ(shell("test -c /dev/full").status, 0);
}

/// What Save would hold: the second timing takes the serration of the first one away, and no check sum is brought in
/// line.
TEST_F(ConvertTest, WritesTheImageAsItStandsAfterDecoding) {
    std::string image = sample("halvorine-hv19.bin");
    image[54] = image[72] = 1; // pixel clocks, so that both are timings
    image[54 + 17] = 0x14;     // digital composite sync, serrated
    image[72 + 17] = 0x1C;     // digital separate sync, vertical positive
    write("in", image);
    EXPECT_EQ(shell("edidwb convert --to bin in out").status, 0);
    image[72 + 17] = 0x18;
    EXPECT_EQ(read("out"), image);
}

TEST_F(ConvertTest, WhatCannotBeWrittenOnTheWayIsTold) {
    const Outcome outcome = shell(
        "(ulimit -f 0; edidwb convert --to dat $SAMPLES/zarqo-z40.bin - 2>&1; echo status $?) | sed 's|.*/samples/||'");
    EXPECT_EQ(outcome.output,
              "zarqo-z40.bin: Path/File access error\nzarqo-z40.bin: cannot be written: Path/File access error\n"
              "status 1\n");
}

TEST_F(ConvertTest, ACellThatIsNoByteHasNoBinaryForm) {
    write("odd.DAT", "128 BYTES OF EDID CODE:\n\n\n|00 FF ZZ\n");
    const Outcome outcome = shell("edidwb convert --to bin odd.DAT out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: odd.DAT: cell 2 is no byte: \"ZZ\"\n"));
    EXPECT_FALSE(exists("out"));
    EXPECT_EQ(shell("edidwb convert --to hex odd.DAT out").status, 0);
    EXPECT_EQ(read("out").substr(0, 12), "00 FF ZZ    ");
}

TEST_F(ConvertTest, StandardStreamsServeAsFiles) {
    const Outcome outcome = shell("edidwb convert --to hex - - <$SAMPLES/zarqo-z40.bin | edidwb convert --to bin - -");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, sample("zarqo-z40.bin"));
}

} // namespace
} // namespace wb::test
