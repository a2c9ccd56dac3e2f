#include <gmock/gmock.h>

#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

/// A sample of two blocks and a third of one byte, each with a right check sum.
std::string wholeImage() {
    std::string third(128, '\0');
    third[0] = '\x70';
    third[127] = '\x90';
    return sample("zarqo-z40.bin") + third;
}

/// The same with the check sums of the first and the third block too large by 1.
std::string brokenImage() {
    std::string image = wholeImage();
    ++image[127];
    ++image[383];
    return image;
}

using RepairTest = Edidwb;

TEST_F(RepairTest, PutsTheSumOfEveryBlockRightAndNothingElse) {
    write("a.bin", brokenImage());
    const Outcome outcome = shell("edidwb repair a.bin -o out");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, HasSubstr("a.bin: block 2: check sum 91 becomes 90\n"));
    EXPECT_EQ(read("out/a.bin"), wholeImage());
    EXPECT_EQ(read("a.bin"), brokenImage());
}

TEST_F(RepairTest, TakesFoldersAndListsAsTheOtherBatchesDo) {
    shell("mkdir -p in/below");
    write("in/a.bin", brokenImage());
    write("in/below/a.bin", brokenImage());
    const Outcome folder = shell("edidwb repair -r in -o out");
    EXPECT_EQ(folder.status, 0) << folder.errors;
    EXPECT_EQ(shell("ls out").output, "below_a.bin\nin_a.bin\n");
    EXPECT_EQ(read("out/below_a.bin"), wholeImage());
    const Outcome list = shell("printf 'in/a.bin\\0in/below/a.bin\\0' | edidwb repair --files-from - -0 --in-place");
    EXPECT_EQ(list.status, 0) << list.errors;
    EXPECT_EQ(read("in/a.bin"), wholeImage());
    EXPECT_EQ(read("in/below/a.bin"), wholeImage());
    EXPECT_EQ(shell("edidwb repair --in-place -r nowhere").status, 1);
    EXPECT_EQ(shell("echo - | edidwb repair --in-place --files-from /dev/stdin").status, 2);
}

TEST_F(RepairTest, ASumOf0StaysByte0) {
    write("a.bin", sample("zarqo-z40.bin") + std::string(127, '\0') + '\x01');
    EXPECT_EQ(shell("edidwb repair a.bin --in-place").output, "a.bin: block 2: check sum 01 becomes 00\n");
    EXPECT_EQ(read("a.bin"), sample("zarqo-z40.bin") + std::string(128, '\0'));
}

TEST_F(RepairTest, ReplacesTheFileAndKeepsTheOldOneBesideIt) {
    write("a.bin", brokenImage());
    const Outcome outcome =
        shell("chmod 640 a.bin; edidwb repair --in-place --backup a.bin && stat -c %a a.bin*; ls -A");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("\n640\n640\na.bin\na.bin.bak\n"));
    EXPECT_EQ(read("a.bin"), wholeImage());
    EXPECT_EQ(read("a.bin.bak"), brokenImage());
}

TEST_F(RepairTest, NeedNotWaitForTheDisk) {
    write("a.bin", brokenImage());
    EXPECT_EQ(shell("edidwb repair --no-sync --in-place a.bin").status, 0);
    EXPECT_EQ(read("a.bin"), wholeImage());
}

TEST_F(RepairTest, TheNewFileRunsNothingAsItsOwner) {
    write("a.bin", brokenImage());
    EXPECT_EQ(
        shell("chmod 6751 a.bin; edidwb repair --in-place --backup a.bin >out; stat -c %a a.bin a.bin.bak").output,
        "751\n751\n");
}

TEST_F(RepairTest, ABackupIsNotReplacedUnlessForced) {
    write("a.bin", brokenImage());
    write("a.bin.bak", "older");
    const Outcome refused = shell("edidwb repair --in-place --backup a.bin");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors, "edidwb: a.bin: a.bin.bak: exists already (--force replaces it)\n");
    EXPECT_EQ(read("a.bin"), brokenImage());
    EXPECT_EQ(read("a.bin.bak"), "older");
    EXPECT_EQ(shell("edidwb repair --in-place --backup --force a.bin").status, 0);
    EXPECT_EQ(read("a.bin.bak"), brokenImage());
}

TEST_F(RepairTest, ARightFileIsLeftAlone) {
    write("a.bin", wholeImage());
    const Outcome outcome =
        shell("touch -d 2004-02-29 a.bin; edidwb repair --in-place --backup a.bin; date -r a.bin +%F; ls -A");
    EXPECT_EQ(outcome.output, "a.bin: every check sum is right\n2004-02-29\na.bin\n");
}

TEST_F(RepairTest, ADryRunWritesNothing) {
    write("a.bin", brokenImage());
    const Outcome outcome = shell(
        "edidwb repair --dry-run a.bin; edidwb repair --dry-run -o out a.bin;"
        "edidwb repair --dry-run --in-place --backup a.bin; ls -A");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, testing::EndsWith("block 2: check sum 91 becomes 90\na.bin\n"));
    EXPECT_EQ(read("a.bin"), brokenImage());
}

TEST_F(RepairTest, EveryFormOfBytesIsWrittenBackInItself) {
    write("a.bin", brokenImage());
    write("right.bin", wholeImage());
    for (const char* form : {"bin", "hex", "c", "base64", "reg", "inf", "xxd"}) {
        const std::string to = "edidwb convert --force --to " + std::string(form);
        const Outcome outcome =
            shell(to + " a.bin a; " + to + " right.bin right; edidwb repair --in-place a && cmp a right");
        EXPECT_EQ(outcome.status, 0) << form << outcome.output << outcome.errors;
        EXPECT_EQ(outcome.errors, "") << form;
    }
}

TEST_F(RepairTest, LinesAndSmallLettersAreStillTheForm) {
    write("a.bin", brokenImage());
    const Outcome outcome = shell("od -An -v -tx1 a.bin > a.hex; edidwb repair -o out a.hex; ls out");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, testing::EndsWith("\na.hex\n"));
    EXPECT_EQ(read("out/a.hex").substr(0, 24), "00 FF FF FF FF FF FF 00 ");
}

TEST_F(RepairTest, WhatHoldsMoreThanBytesIsNotReplacedButWrittenAsBinary) {
    write("a.bin", brokenImage());
    const Outcome made = shell(
        "gzip -k a.bin; (echo 'my monitor, EDID:'; od -An -v -tx1 a.bin) > a.txt; cp $SAMPLES/zarqo-z40.DAT a.DAT");
    EXPECT_EQ(made.status, 0) << made.errors;
    for (const char* file : {"a.bin.gz", "a.txt", "a.DAT"}) {
        const std::string name = file;
        const std::string before = read(name);
        const Outcome refused = shell("edidwb repair --in-place " + name);
        EXPECT_EQ(refused.status, 1) << name;
        EXPECT_EQ(refused.errors,
                  "edidwb: " + name +
                      ": holds more than the bytes of an image and is not replaced; -o DIR writes it as binary\n");
        EXPECT_EQ(read(name), before);
    }
    EXPECT_EQ(shell("edidwb repair -o out a.txt a.DAT && ls out").status, 0);
    EXPECT_EQ(read("out/a.txt.bin"), wholeImage());
    EXPECT_EQ(read("out/a.DAT.bin"), sample("zarqo-z40.bin"));
}

TEST_F(RepairTest, WhatIsNotWholeIsRefusedAndTheOthersGoOn) {
    write("short.bin", sample("zarqo-z40.bin").substr(0, 128));
    write("long.bin", brokenImage() + "abc");
    write("good.bin", brokenImage());
    const Outcome outcome = shell("edidwb repair --in-place short.bin long.bin missing good.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "edidwb: short.bin: announces 2 blocks and has 1; only whole images are changed\n"
              "edidwb: long.bin: has 3 bytes after the last block; only whole images are changed\n"
              "edidwb: missing: No such file or directory\n");
    EXPECT_EQ(read("short.bin"), sample("zarqo-z40.bin").substr(0, 128));
    EXPECT_EQ(read("long.bin"), brokenImage() + "abc");
    EXPECT_EQ(read("good.bin"), wholeImage());
}

TEST_F(RepairTest, BlocksOfTheOverrideOfTheHdmiForumAreAnnouncedToo) {
    write("whole.bin", imageWithOverride(4, 3));
    write("cut.bin", imageWithOverride(2, 3));
    const Outcome outcome = shell("edidwb repair --dry-run whole.bin cut.bin");
    EXPECT_EQ(outcome.output, "whole.bin: every check sum is right\n");
    EXPECT_EQ(outcome.errors, "edidwb: cut.bin: announces 4 blocks and has 2; only whole images are changed\n");
}

TEST_F(RepairTest, NoFileReplacesAnother) {
    write("a.bin", brokenImage());
    shell("mkdir out; printf old > out/a.bin");
    EXPECT_EQ(shell("edidwb repair -o out a.bin").errors,
              "edidwb: a.bin: out/a.bin: exists already (--force replaces it)\n");
    EXPECT_EQ(read("out/a.bin"), "old");
    EXPECT_EQ(shell("edidwb repair -o . --force a.bin").errors,
              "edidwb: a.bin: its new file './a.bin' would replace a file that is to be read\n");
    EXPECT_EQ(shell("edidwb repair -o out --force a.bin a.bin").errors,
              "edidwb: a.bin: its new file 'out/a.bin' is already that of 'a.bin'\n");
    EXPECT_EQ(read("out/a.bin"), wholeImage());
    EXPECT_EQ(read("a.bin"), brokenImage());
}

TEST_F(RepairTest, NoFileReplacesAnInputThatALinkLeadsTo) {
    write("a.bin", brokenImage());
    write("z.bin", wholeImage());
    const Outcome outcome = shell("mkdir out; ln -s ../z.bin out/a.bin; edidwb repair --force -o out a.bin z.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: a.bin: its new file 'out/a.bin' would replace a file that is to be read\n");
    EXPECT_EQ(read("z.bin"), wholeImage());
    EXPECT_EQ(read("out/z.bin"), wholeImage());
}

TEST_F(RepairTest, ManyNamesStandInATemporaryFile) {
    const std::string list = "for i in {1..300}; do printf '%04000d\\n' $i; done | ";
    const Outcome kept = shell(list + "edidwb repair --dry-run --files-from /dev/stdin");
    EXPECT_EQ(kept.status, 1);
    EXPECT_EQ(std::count(kept.errors.begin(), kept.errors.end(), '\n'), 300);
    EXPECT_THAT(kept.errors, HasSubstr("300: File name too long\n"));
    const Outcome refused = shell(list + "TMPDIR=/nowhere edidwb repair --dry-run --files-from /dev/stdin");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors, testing::StartsWith("edidwb: no temporary folder: "));
}

TEST_F(RepairTest, FilesOfOneNameAreToldApart) {
    write("a.bin", brokenImage());
    const Outcome outcome = shell(
        "mkdir one two; cp a.bin one/edid; cp a.bin two/edid; edidwb repair -o out one/edid two/edid - < one/edid; ls "
        "out");
    EXPECT_THAT(outcome.output, testing::EndsWith("\none_edid\nstdin.bin\ntwo_edid\n")) << outcome.errors;
}

TEST_F(RepairTest, AFullDiskLeavesTheFileAsItWas) {
    write("a.bin", brokenImage() + std::string(2048 - 384, '\0'));
    const Outcome outcome = shell("ulimit -f 1; edidwb repair --in-place a.bin; status=$?; ls -A; exit $status");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: a.bin: File too large\n");
    EXPECT_EQ(outcome.output, "a.bin\n");
    EXPECT_EQ(read("a.bin").substr(0, 384), brokenImage());
}

} // namespace
} // namespace wb::test
