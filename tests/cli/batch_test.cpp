#include <gmock/gmock.h>

#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using BatchTest = Edidwb;

/// Files in folders below "in".
constexpr const char* tree =
    "mkdir -p in/a/deep in/b\ncp $SAMPLES/zarqo-z40.bin in/a/deep/x.bin\ncp $SAMPLES/halvorine-hv19.bin in/a/y.bin\n"
    "cp $SAMPLES/quillmere-q15.bin in/b/x.bin\n";

TEST_F(BatchTest, TakesAllFilesBelowFoldersInTheOrderOfTheirPaths) {
    const Outcome outcome = shell(std::string(tree) +
                                  "edidwb check -r -q --level error in $SAMPLES/zarqo-z40.bin; "
                                  "edidwb check -r --level error in | cut -d: -f1");
    EXPECT_EQ(outcome.output, "in/a/deep/x.bin\nin/a/y.bin\nin/b/x.bin\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(shell("mkdir empty; edidwb check empty").errors, "edidwb: empty: Is a directory\n");
}

TEST_F(BatchTest, KeepsTheTreeWhereThatIsAskedFor) {
    const Outcome outcome =
        shell(std::string(tree) + "edidwb translate -r -j 0 --keep-tree -o out in\nfind out -type f");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("out/a/deep/x.bin.txt\n"));
    EXPECT_THAT(outcome.output, HasSubstr("out/a/y.bin.txt\n"));
    EXPECT_THAT(outcome.output, HasSubstr("out/b/x.bin.txt\n"));
    EXPECT_EQ(read("out/a/deep/x.bin.txt"), shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
    EXPECT_EQ(shell("edidwb translate -r -o flat in; ls flat").output, "b_x.txt\ndeep_x.txt\ny.txt\n");
}

TEST_F(BatchTest, TakesNamesFromAFile) {
    write("odd\nname.bin", sample("zarqo-z40.bin"));
    write("plain.bin", sample("halvorine-hv19.bin"));
    const std::string names = " --level error --quiet --fail-on error ";
    EXPECT_EQ(shell("printf 'plain.bin\\r\\n\\nmissing' >list; edidwb check" + names + "--files-from list").errors,
              "edidwb: missing: No such file or directory\n");
    const Outcome outcome =
        shell("printf 'odd\\nname.bin\\0plain.bin' | edidwb translate -0 --files-from - --heading=never");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output,
              shell("edidwb translate --heading=never $SAMPLES/zarqo-z40.bin $SAMPLES/halvorine-hv19.bin").output);
    EXPECT_EQ(shell("edidwb check --files-from nothing").errors, "edidwb: nothing: No such file or directory\n");
    EXPECT_EQ(shell("edidwb check --files-from - -").status, 2);
    for (const char* const command : {"check", "translate -o out", "repair -o out"}) {
        EXPECT_EQ(shell(std::string("edidwb ") + command + " --files-from /dev/zero").errors,
                  "edidwb: /dev/zero: a name is longer than 65536 bytes\n")
            << command;
    }
}

/// Signals that come at any moment: a batch leaves whole reports, and nothing that is half done. The thread sanitizer
/// makes a file of its own before the program begins, which a signal of that moment leaves.
TEST_F(BatchTest, LeavesWholeFilesWhenASignalEndsIt) {
    shell(
        "mkdir in tmp; for n in $(seq 60); do cp $SAMPLES/zarqo-z40.bin in/$n.bin; done\n"
        "edidwb translate in/1.bin >report");
    const std::string run =
        "set -m\n" // else the shell lets background jobs ignore INT
        "edidwb() { exec env TMPDIR=\"$PWD/tmp\" '" EDIDWB
        "' \"$@\"; }\n"
        "at() { \"${@:3}\" >shown 2>&1 & sleep 0.0$1; kill -$2 $!; wait $!; status=$?\n"
        "  case $status in 0|$((128 + $(kill -l $2)))) ;; *) echo \"$2 gave $status: $(cat shown)\" ;; esac; }\n";
    const Outcome outcome =
        shell(run +
              "for delay in 0 1 2 3 4 6 8; do for signal in INT TERM HUP; do\n"
              "  at $delay $signal edidwb translate -j 4 --no-sync -o out in/*.bin\n"
              "  for report in out/*; do cmp report $report; done 2>&1 | grep -v 'out/\\*'\n"
              "  cp $SAMPLES/zarqo-z40.bin a.bin; printf '\\x00' | dd of=a.bin bs=1 seek=127 conv=notrunc status=none\n"
              "  cp a.bin before.bin\n"
              "  at $delay $signal edidwb repair --in-place a.bin\n"
              "  cmp -s a.bin before.bin || cmp a.bin $SAMPLES/zarqo-z40.bin\n"
              "  rm -f a.DAT; at $delay $signal edidwb convert --to dat $SAMPLES/zarqo-z40.bin a.DAT\n"
              "  [ ! -e a.DAT ] || [ -s a.DAT ] || echo empty\n"
              "done; done; find . -name '.edidwb-*'; ls -A -I 'tsan.rodata.*' tmp");
    EXPECT_EQ(outcome.output, "") << outcome.errors;
}

/// Whoever writes the list may wait for what is told of a file before naming the next one.
TEST_F(BatchTest, ReadsTheListAsItComes) {
    const Outcome outcome = shell(
        "mkfifo list\n"
        "coproc { exec timeout 60 " EDIDWB
        " check --files-from list 2>&1; }\n"
        "exec 9>list\n"
        "for name in one two; do echo $name >&9; read -ru ${COPROC[0]} line; echo $line; done");
    EXPECT_EQ(outcome.output, "edidwb: one: No such file or directory\nedidwb: two: No such file or directory\n");
}

/// 200 MB of names go through 128 MB.
TEST_F(BatchTest, NeedsNoMemoryForEachFile) {
    const std::string limit = "ulimit -v 131072; ";
    if (shell(limit + "edidwb --version").status != 0) {
        GTEST_SKIP() << "a sanitizer takes more than that for itself";
    }
    const Outcome outcome = shell("name=$(printf %04000d 0); yes $name | head -n 50000 | (" + limit +
                                  "edidwb check --files-from - 2>&1) | cut -c 1-12,4009- | uniq -c");
    EXPECT_EQ(outcome.output, "  50000 edidwb: 0000: File name too long\n") << outcome.errors;
}

} // namespace
} // namespace wb::test
