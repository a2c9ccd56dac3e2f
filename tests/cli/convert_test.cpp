#include <gmock/gmock.h>

#include "cli/changed_image.h"
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

/// Standard output needs no file, and so no folder for it.
TEST_F(ConvertTest, WritesToStandardOutputWithoutATemporaryFile) {
    for (const char* form : {"dat", "hex", "report", "bin"}) {
        const std::string convert = "edidwb convert --to " + std::string(form) + " $SAMPLES/halvorine-hv19.bin ";
        const Outcome outcome = shell("TMPDIR=/missing " + convert + "- >out; status=$?; " + convert + form +
                                      " && cmp out " + form + "; exit $status");
        EXPECT_EQ(outcome.status, 0) << form;
        EXPECT_EQ(outcome.output + outcome.errors, "") << form;
    }
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

TEST_F(ConvertTest, WritesIntoAPipe) {
    const Outcome outcome = shell(
        "mkfifo pipe; cat pipe >got & edidwb convert --to bin --force $SAMPLES/zarqo-z40.bin pipe\nstatus=$?\n"
        "wait; exit $status");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(read("got"), sample("zarqo-z40.bin"));
    EXPECT_EQ(shell("test -p pipe").status, 0);
}

/// A data file holds what Save would write: the second timing takes the serration of the first one away, and no check
/// sum is brought in line. Forms of bytes hold the image as it is.
TEST_F(ConvertTest, OnlyADataFileHoldsTheImageAsItStandsAfterDecoding) {
    std::string image = sample("halvorine-hv19.bin");
    image[54] = image[72] = 1; // pixel clocks, so that both are timings
    image[54 + 17] = 0x14;     // digital composite sync, serrated
    image[72 + 17] = 0x1C;     // digital separate sync, vertical positive
    write("in", image);
    EXPECT_EQ(shell("edidwb convert --to bin in out").status, 0);
    EXPECT_EQ(read("out"), image);
    EXPECT_EQ(shell("edidwb convert --to dat in out.DAT; edidwb convert --force --to bin out.DAT out").status, 0);
    image[72 + 17] = 0x18;
    EXPECT_EQ(read("out"), image);
}

/// A line of decoded text with a bar counts as a row of the dump: "BC" and "DE" come between the two blocks.
TEST_F(ConvertTest, ADataFileThatDoesNotReadBackIsWarnedOf) {
    const std::string text("\0\0\0\xFE\0A|BCDE\n       ", 18);
    write("two", sample("zarqo-z40.bin").replace(108, text.size(), text));
    const Outcome shifted = shell("edidwb convert --to dat two two.DAT");
    EXPECT_EQ(shifted.status, 0);
    EXPECT_EQ(shifted.errors,
              "edidwb: two: the data file does not read back as it is: cell 128 is \"02\" and comes back as \"BC\"\n");
    EXPECT_TRUE(exists("two.DAT"));

    // Behind the only block nothing is moved.
    write("one", sample("halvorine-hv19.bin").replace(108, text.size(), text));
    const Outcome whole = shell("edidwb convert --to dat one one.DAT");
    EXPECT_EQ(whole.status, 0);
    EXPECT_EQ(whole.errors, "");
}

TEST_F(ConvertTest, WritesEveryBlockBackAsItWas) {
    std::string image = sample("zarqo-z40.bin") + std::string(384, '\xA5');
    write("in", image);
    for (const char* form : {"bin", "hex", "c", "base64", "reg", "inf", "xxd"}) {
        const Outcome outcome = shell("edidwb convert --to " + std::string(form) +
                                      " in out --force && edidwb convert --to bin out back --force");
        EXPECT_EQ(outcome.status, 0) << form;
        EXPECT_EQ(outcome.errors, "") << form;
        EXPECT_EQ(read("back"), image) << form;
    }
}

TEST_F(ConvertTest, WhatADataFileDoesNotHoldIsRefusedUnlessItMayBeCut) {
    const std::string image = sample("zarqo-z40.bin");
    write("in", image + std::string(128, '\0'));
    const Outcome refused = shell("edidwb convert --to dat in out.DAT");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errors, "edidwb: in: 3 blocks; a data file holds 2; --cut leaves the others out\n");
    EXPECT_FALSE(exists("out.DAT"));
    const Outcome cut = shell("edidwb convert --cut --to dat in out.DAT; edidwb convert --to bin out.DAT out");
    EXPECT_EQ(cut.status, 0);
    EXPECT_EQ(cut.errors, "edidwb: in: block 2 left out\n");
    EXPECT_EQ(read("out"), image);
}

TEST_F(ConvertTest, ABlockThatIsAnnouncedAndMissingIsAnErrorUnlessItMayBePadded) {
    const std::string block = sample("zarqo-z40.bin").substr(0, 128);
    write("in", block);
    const Outcome refused = shell("edidwb convert --to hex in out");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errors, "edidwb: in: announces 2 blocks and has 1; --pad writes the others as zeros\n");
    EXPECT_FALSE(exists("out"));
    const Outcome padded = shell("edidwb convert --pad --to bin in out");
    EXPECT_EQ(padded.status, 0);
    EXPECT_EQ(padded.errors, "edidwb: in: block 1 written as zeros\n");
    EXPECT_EQ(read("out"), block + std::string(128, '\0'));
}

TEST_F(ConvertTest, BlocksOfTheOverrideOfTheHdmiForumAreAnnouncedToo) {
    const std::string cut = imageWithOverride(2, 3);
    write("whole", imageWithOverride(4, 3));
    write("cut", cut);
    EXPECT_EQ(shell("edidwb convert --to bin whole -").output, read("whole"));
    EXPECT_EQ(shell("edidwb convert --to bin cut out").errors,
              "edidwb: cut: announces 4 blocks and has 2; --pad writes the others as zeros\n");
    EXPECT_FALSE(exists("out"));
    EXPECT_EQ(shell("edidwb convert --to bin --pad cut out").errors, "edidwb: cut: blocks 2 to 3 written as zeros\n");
    EXPECT_EQ(read("out"), cut + std::string(256, '\0'));
    EXPECT_EQ(shell("edidwb convert --to report cut out.txt").errors,
              "edidwb: cut: blocks 2 to 3 announced and missing\n");
}

TEST_F(ConvertTest, ADataFileHoldsTwoBlocksWhateverTheOverrideAnnounces) {
    write("cut", imageWithOverride(2, 3));
    const Outcome outcome = shell("edidwb convert --to dat cut cut.DAT");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(shell("edidwb convert --to dat cut.DAT -").output, read("cut.DAT"));
}

TEST_F(ConvertTest, BytesBehindTheLastBlockAreTold) {
    write("in", sample("halvorine-hv19.bin") + "abc");
    const Outcome outcome = shell("edidwb convert --to bin in out");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "edidwb: in: 3 bytes after the last block left out\n");
    EXPECT_EQ(read("out"), sample("halvorine-hv19.bin"));
}

TEST_F(ConvertTest, ReadsWhatIsCompressed) {
    const Outcome outcome = shell("gzip -c $SAMPLES/zarqo-z40.DAT | edidwb convert --to bin - out");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(read("out"), sample("zarqo-z40.bin"));
}

TEST_F(ConvertTest, TheHeaderIsWantedUnlessAnyIsTaken) {
    std::string image = sample("halvorine-hv19.bin");
    image[1] = '\0';
    write("in", image);
    const Outcome refused = shell("edidwb convert --to bin in out");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors, HasSubstr("not with the header 00 FF FF FF FF FF FF 00\n"));
    EXPECT_EQ(shell("edidwb convert --any-header --to bin in out").status, 0);
    EXPECT_EQ(read("out"), image);
}

TEST_F(ConvertTest, TheDateOfAReportCanBeSet) {
    EXPECT_EQ(shell("edidwb convert --date '2004-02-29 13:14:15' --to report $SAMPLES/zarqo-z40.bin -").output,
              shell("edidwb translate --date '2004-02-29 13:14:15' $SAMPLES/zarqo-z40.bin").output);
}

TEST_F(ConvertTest, AFileSizeLimitLeavesAPipeAlone) {
    if (shell("(ulimit -f 0; edidwb --version) | grep -q edidwb").status != 0) {
        GTEST_SKIP() << "a sanitizer writes a file for itself";
    }
    const Outcome outcome = shell(
        "edidwb convert --to dat $SAMPLES/zarqo-z40.bin a.DAT\n"
        "(ulimit -f 0; edidwb convert --to dat $SAMPLES/zarqo-z40.bin - 2>&1) | cmp - a.DAT");
    EXPECT_EQ(outcome.status, 0) << outcome.output << outcome.errors;
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
