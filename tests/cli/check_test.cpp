#include <gmock/gmock.h>

#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using CheckTest = Edidwb;

TEST_F(CheckTest, TellsAboutEachFile) {
    const Outcome good = shell("cd $SAMPLES; edidwb check --level error halvorine-hv19.bin zarqo-z40.bin");
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(good.output,
              "halvorine-hv19.bin: header ok, length 128 ok, check sum of block 0 ok\n"
              "zarqo-z40.bin: header ok, length 256 ok, check sum of block 0 ok, check sum of block 1 ok\n");
}

TEST_F(CheckTest, ReadsEveryForm) {
    shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin z.DAT; edidwb convert --to hex $SAMPLES/zarqo-z40.bin z.hex");
    const Outcome outcome = shell("edidwb check --level error z.DAT z.hex - <z.DAT");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output,
              "z.DAT: header ok, length 256 ok, check sum of block 0 ok, check sum of block 1 ok\n"
              "z.hex: header ok, length 256 ok, check sum of block 0 ok, check sum of block 1 ok\n"
              "-: header ok, length 256 ok, check sum of block 0 ok, check sum of block 1 ok\n");
}

TEST_F(CheckTest, Status1WhenAnythingIsWrong) {
    std::string image = sample("halvorine-hv19.bin"); // its check sum is F4
    image[127] = '\xF3';
    write("sum.bin", image);
    write("notes", "no image");
    write("odd.DAT", "128 BYTES OF EDID CODE:\n\n\n|00 FF ZZ\n");
    write("short.DAT", "128 BYTES OF EDID CODE:\n\n\n|00 FF\n");
    const Outcome outcome = shell("edidwb check --level error sum.bin notes odd.DAT short.DAT missing");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output,
              "sum.bin: header ok, length 128 ok, check sum of block 0 F3 should be F4\n"
              "  error, byte 127 (7Fh): The bytes of block 0 do not sum up to 0, so that careful readers refuse it; "
              "correct its "
              "last byte if the rest is right. [block.checksum; E-EDID 1.4, 3.11]\n");
    EXPECT_EQ(outcome.errors,
              "edidwb: notes: is no EDID image: line 1: 'no' is no hexadecimal pair\n"
              "edidwb: odd.DAT: cell 2 is no byte: \"ZZ\"\n"
              "edidwb: short.DAT: has 2 bytes; an image has 128 or more\n"
              "edidwb: missing: No such file or directory\n");
    EXPECT_EQ(shell("edidwb check sum.bin").status, 1);
    EXPECT_EQ(shell("edidwb check $SAMPLES/zarqo-z40.bin sum.bin $SAMPLES/zarqo-z40.bin").status, 1);
}

TEST_F(CheckTest, TheOverrideOfTheHdmiForumTellsTheLength) {
    write("whole.bin", imageWithOverride(4, 3));
    write("cut.bin", imageWithOverride(2, 3));
    const Outcome whole = shell("edidwb check --level error whole.bin");
    EXPECT_EQ(whole.status, 0);
    EXPECT_EQ(whole.output,
              "whole.bin: header ok, length 512 ok, check sum of block 0 ok, check sum of block 1 ok, "
              "check sums of blocks 2 to 3 ok\n");
    const Outcome cut = shell("edidwb check --level error cut.bin");
    EXPECT_EQ(cut.status, 1);
    EXPECT_THAT(cut.output, HasSubstr("cut.bin: header ok, length 256 should be 512, check sum"));
    EXPECT_THAT(cut.output, HasSubstr("[image.blocks_missing; "));
}

TEST_F(CheckTest, ADataFileWithTooManyPairsIsWrong) {
    shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin z.DAT; echo '| AA' >>z.DAT");
    const Outcome outcome = shell("edidwb check z.DAT");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("check sum of block 1 ok, Subscript out of range (opening the data file)\n"));
}

TEST_F(CheckTest, WhatFailsIsAnErrorInEveryFormat) {
    const std::string good = sample("zarqo-z40.bin");
    write("good", good);
    write("long", good + "abc");
    write("more", good + std::string(128, '\0'));
    write("short", good.substr(0, 128));
    write("header", withSum(withBytes(good, 7, {1})));
    write("sum", withBytes(good, 200, {1, 2, 3}));
    shell("edidwb convert --to dat good box.DAT; echo '| AA' >>box.DAT");
    const std::string error = R"("severity":"error")";
    for (const char* file : {"good", "long", "more", "short", "header", "sum", "box.DAT"}) {
        const std::string check = "edidwb check --any-header --level error " + std::string(file);
        const Outcome json = shell(check + " --format json");
        const Outcome rows = shell(check + " --format tsv");
        EXPECT_EQ(json.status, file == std::string("good") ? 0 : 1) << file;
        EXPECT_EQ(json.output.find(error) != std::string::npos, json.status == 1) << file << json.output;
        EXPECT_EQ(rows.output.find("\terror\t") != std::string::npos, rows.status == 1) << file << rows.output;
    }
}

TEST_F(CheckTest, TellsOfTheLengthAndOfBoxesOnceInAFormatForPrograms) {
    write("long.bin", sample("zarqo-z40.bin") + "abc");
    shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin z.DAT; echo '| AA' >>z.DAT");
    const Outcome outcome = shell("edidwb check --level error --format tsv long.bin z.DAT");
    EXPECT_EQ(outcome.output,
              "file\tseverity\tcode\tblock\tbyte\tpath\ttext\tclause\n"
              "long.bin\terror\tcheck.length\t0\t126\t\tThe image has 259 bytes, and the blocks that it announces have "
              "256, so that careful readers refuse it; correct the count or cut the image.\tE-EDID 1.4, 3.11\n"
              "z.DAT\terror\tcheck.box\t0\t0\t\tThe program shows a box: Subscript out of range (opening the data "
              "file)\t\n");
    EXPECT_THAT(shell("edidwb check --level error long.bin").output, Not(HasSubstr("check.length")));
    EXPECT_EQ(shell("edidwb check --format json long.bin z.DAT | " WORKBENCH_SOURCE_DIR
                    "/scripts/validate-json " WORKBENCH_SOURCE_DIR "/docs/edidwb.schema.json check")
                  .output,
              "");
}

TEST_F(CheckTest, TellsFindingsBelowTheirFile) {
    std::string image = sample("halvorine-hv19.bin");
    image.replace(56, 1, 1, '\0'); // no active pixels in the first timing
    image[58] = static_cast<char>(image[58] & 0x0F);
    write("a.bin", image);
    const Outcome outcome = shell("edidwb check a.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output,
                HasSubstr("\n  error, byte 56 (38h), base.detailed[1].h_active: The timing has no active pixels"));
    EXPECT_THAT(outcome.output, HasSubstr("[timing.nothing_active; "));
    const Outcome rows = shell("edidwb check --format tsv a.bin");
    EXPECT_THAT(rows.output, HasSubstr("\na.bin\terror\ttiming.nothing_active\t0\t56\tbase.detailed[1].h_active\t"));
}

TEST_F(CheckTest, TheLevelChoosesWhatIsToldAndTheOtherWhatFails) {
    // The sample does not declare its first timing the preferred one, which 1.3 demands.
    const std::string code = "[basic.no_preferred_timing; ";
    const std::string check = "edidwb check $SAMPLES/halvorine-hv19.bin ";
    EXPECT_EQ(shell(check).status, 0);
    EXPECT_THAT(shell(check).output, HasSubstr(code));
    EXPECT_THAT(shell(check + "--level error").output, Not(HasSubstr(code)));
    const Outcome failed = shell(check + "--level error --fail-on warning");
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.output, Not(HasSubstr(code)));
}

TEST_F(CheckTest, QuietTellsOnlyOfFilesWithFindings) {
    std::string image = sample("halvorine-hv19.bin");
    image[127] = '\xF3'; // its check sum is F4
    write("sum.bin", image);
    const Outcome outcome =
        shell("cd $SAMPLES; edidwb check --quiet --level error halvorine-hv19.bin \"$OLDPWD/sum.bin\"");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, Not(HasSubstr("halvorine-hv19.bin")));
    EXPECT_THAT(outcome.output, HasSubstr("sum.bin: header ok, length 128 ok, check sum of block 0 F3 should be F4\n"));
}

} // namespace
} // namespace wb::test
