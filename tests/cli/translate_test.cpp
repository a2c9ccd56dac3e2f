#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using TranslateTest = Edidwb;

std::string asHexText(const std::string& bytes) {
    std::ostringstream text;
    for (const char byte : bytes) {
        text << std::hex << (static_cast<unsigned char>(byte) >> 4U) << (static_cast<unsigned char>(byte) & 15U)
             << '\n';
    }
    return text.str();
}

TEST_F(TranslateTest, PrintsReportsInTheOrderOfTheInput) {
    const Outcome both = shell("edidwb translate --heading=never $SAMPLES/zarqo-z40.bin $SAMPLES/halvorine-hv19.bin");
    EXPECT_EQ(both.status, 0);
    EXPECT_EQ(both.errors, "");
    EXPECT_EQ(both.output, shell("edidwb translate $SAMPLES/zarqo-z40.bin").output +
                               shell("edidwb translate $SAMPLES/halvorine-hv19.bin").output);
    EXPECT_THAT(both.output, HasSubstr("\n(08-09)  ID Manufacturer Name ________________=   HLV\n"));
    EXPECT_THAT(both.output, Not(HasSubstr("\r")));
}

TEST_F(TranslateTest, PutsTheNameOfItsFileAboveEachOfSeveralReports) {
    const std::string zarqo = shell("edidwb translate $SAMPLES/zarqo-z40.bin").output;
    const std::string halvorine = shell("edidwb translate $SAMPLES/halvorine-hv19.bin").output;
    EXPECT_EQ(shell("cd $SAMPLES; edidwb translate zarqo-z40.bin missing halvorine-hv19.bin").output,
              "==> zarqo-z40.bin <==\n" + zarqo + "\n==> halvorine-hv19.bin <==\n" + halvorine);
    EXPECT_EQ(shell("cd $SAMPLES; edidwb translate --heading=always zarqo-z40.bin").output,
              "==> zarqo-z40.bin <==\n" + zarqo);
    EXPECT_EQ(shell("edidwb translate --heading never $SAMPLES/zarqo-z40.bin $SAMPLES/zarqo-z40.bin").output,
              zarqo + zarqo);
}

TEST_F(TranslateTest, TranslatesEveryImageOfAText) {
    shell(
        "for f in zarqo-z40:DP-1 halvorine-hv19:HDMI-2; do echo \"${f#*:} connected\"; printf '\\tEDID:\\n'; "
        "od -An -v -tx1 $SAMPLES/${f%:*}.bin | sed 's/ //g; s/^/\\t\\t/'; done >xrandr.txt");
    const std::string zarqo = shell("edidwb translate $SAMPLES/zarqo-z40.bin").output;
    const std::string halvorine = shell("edidwb translate $SAMPLES/halvorine-hv19.bin").output;
    EXPECT_EQ(shell("edidwb translate xrandr.txt").output,
              "==> xrandr.txt (DP-1) <==\n" + zarqo + "\n==> xrandr.txt (HDMI-2) <==\n" + halvorine);
    EXPECT_EQ(shell("edidwb translate --output-name HDMI-2 xrandr.txt").output, halvorine);
    EXPECT_EQ(shell("edidwb translate -o out xrandr.txt; ls out").output, "xrandr-DP-1.txt\nxrandr-HDMI-2.txt\n");
    const Outcome none = shell("edidwb translate --output-name DP-9 xrandr.txt");
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.errors, "edidwb: xrandr.txt: has no output 'DP-9'; it has DP-1, HDMI-2\n");
    EXPECT_EQ(shell("edidwb convert --to bin xrandr.txt a.bin").errors,
              "edidwb: xrandr.txt: holds 2 images: DP-1, HDMI-2; --output-name picks one\n");
    const Outcome many =
        shell("for i in {1..11}; do cat xrandr.txt; done >many.txt; edidwb convert --to bin many.txt -");
    EXPECT_THAT(many.errors, HasSubstr(": DP-1, HDMI-2, DP-1, "));
    EXPECT_THAT(many.errors, HasSubstr("HDMI-2 and 2 more; --output-name picks one\n"));
    EXPECT_EQ(shell("edidwb convert --output-name DP-1 --to bin xrandr.txt a.bin").status, 0);
    EXPECT_EQ(read("a.bin"), sample("zarqo-z40.bin"));
}

TEST_F(TranslateTest, TellsTheBlocksThatTheReportLeavesOut) {
    const std::string image = sample("zarqo-z40.bin");
    write("four.bin", image + std::string(256, '\0') + "abc");
    write("one.bin", image.substr(0, 128));
    const Outcome four = shell("edidwb translate four.bin");
    EXPECT_EQ(four.status, 0);
    EXPECT_EQ(four.errors,
              "edidwb: four.bin: blocks 2 to 3 left out\nedidwb: four.bin: 3 bytes after the last block left out\n");
    EXPECT_THAT(shell("edidwb translate one.bin").errors,
                HasSubstr("edidwb: one.bin: block 1 announced and missing\n"));
}

TEST_F(TranslateTest, ShowsControlCharactersOnATerminalAndThereOnly) {
    std::string image = sample("halvorine-hv19.bin");
    image[95] = '\x1B'; // in the name, tag FC at byte 93
    write("a.bin", image);
    const std::string program = EDIDWB;
    EXPECT_THAT(shell("edidwb translate a.bin").output, HasSubstr("\x1B"));
    const std::string shown = shell("script -qec \"" + program + " translate a.bin\" /dev/null").output;
    EXPECT_THAT(shown, Not(HasSubstr("\x1B")));
    EXPECT_THAT(shown, HasSubstr("\\x1B"));
}

TEST_F(TranslateTest, ReadsEveryFormAndStandardInput) {
    const Outcome binary = shell("edidwb translate $SAMPLES/zarqo-z40.bin");
    write("z.txt", asHexText(sample("zarqo-z40.bin")));
    EXPECT_EQ(shell("edidwb translate z.txt").output, binary.output);
    EXPECT_EQ(shell("edidwb translate - <z.txt").output, binary.output);
    EXPECT_EQ(shell("cat $SAMPLES/zarqo-z40.bin | edidwb translate -").output, binary.output);
    // The report of a data file is that of its image.
    EXPECT_EQ(shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin z.DAT").status, 0);
    EXPECT_EQ(shell("edidwb translate z.DAT").output, binary.output);
    EXPECT_EQ(shell("edidwb translate - <z.DAT").output, binary.output);
    EXPECT_EQ(shell("edidwb translate <(cat z.DAT)").output, binary.output);
}

TEST_F(TranslateTest, TheDateOfTheHeadingCanBeSet) {
    EXPECT_THAT(shell("edidwb translate $SAMPLES/halvorine-hv19.bin").output,
                HasSubstr("Time:  00:00:00\n                        Date:  Sat Jan 01, 2000\n"));
    EXPECT_THAT(shell("edidwb translate --date '2004-02-29 13:14:15' $SAMPLES/halvorine-hv19.bin").output,
                HasSubstr("Time:  13:14:15\n                        Date:  Sun Feb 29, 2004\n"));
}

TEST_F(TranslateTest, AFileThatIsNoImageIsToldAndTheRestGoesOn) {
    write("notes.txt", "no image");
    write("empty", "");
    const Outcome outcome = shell("edidwb translate notes.txt missing empty . /dev/null $SAMPLES/halvorine-hv19.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, shell("edidwb translate --heading=always $SAMPLES/halvorine-hv19.bin").output);
    EXPECT_EQ(outcome.errors,
              "edidwb: notes.txt: is no EDID image: line 1: 'no' is no hexadecimal pair\n"
              "edidwb: missing: No such file or directory\n"
              "edidwb: empty: is empty\n"
              "edidwb: .: Is a directory\n"
              "edidwb: /dev/null: is empty\n");
}

TEST_F(TranslateTest, ADataFileThatBreaksOffIsToldToo) {
    write("short.DAT", "128 BYTES OF EDID CODE:\r\nheads\r\n");
    const Outcome outcome = shell("edidwb translate short.DAT");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "edidwb: short.DAT: Input past end of file (opening the data file)\n"
              "edidwb: short.DAT: cannot be loaded: Input past end of file\n");
}

/// A data file whose first two detailed timings have those flags; all other bytes are 0, their pixel clocks 1.
std::string dataFileWithFlags(const std::string& first, const std::string& second) {
    std::string text = "128 BYTES OF EDID CODE:\r\n\r\n\r\n|";
    for (int i = 0; i < 128; ++i) {
        const bool clock = i == 54 || i == 72;
        text += ' ' + (i == 54 + 17 ? first : i == 72 + 17 ? second : clock ? "01" : "00");
    }
    return text + "\r\n";
}

/// The decoders may write into the cells; the file was read all the same.
TEST_F(TranslateTest, ADataFileWhoseCellsTheDecodersRewriteIsLoaded) {
    write("serrated.DAT", dataFileWithFlags("14", "1C"));
    write("lower.DAT", dataFileWithFlags("1e", "c4"));
    for (const auto& [name, flags] : {std::pair("serrated.DAT", "18"), std::pair("lower.DAT", "C4")}) {
        EXPECT_EQ(shell("edidwb convert --to dat " + std::string(name) + " - | edidwb convert --to hex - -")
                      .output.substr((72 + 17) * 3, 2),
                  flags);
        const Outcome outcome = shell("edidwb translate " + std::string(name));
        EXPECT_EQ(outcome.status, 0) << name;
        EXPECT_EQ(outcome.errors, "") << name;
        EXPECT_THAT(outcome.output, HasSubstr("128 BYTES OF EDID CODE:")) << name;
    }
}

TEST_F(TranslateTest, BoxesCountOnlyWhenStrict) {
    // The data file has one pair too many: that is told, and the rest is as good as before.
    shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin z.DAT; echo '| AA' >>z.DAT");
    const std::string told = "edidwb: z.DAT: Subscript out of range (opening the data file)\n";
    const Outcome lenient = shell("edidwb translate z.DAT");
    EXPECT_EQ(lenient.status, 0);
    EXPECT_EQ(lenient.errors, told);
    EXPECT_EQ(lenient.output, shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
    const Outcome strict = shell("edidwb translate --strict z.DAT");
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.errors, told);
    EXPECT_EQ(strict.output, lenient.output);
}

TEST_F(TranslateTest, WritesOneReportAFile) {
    write("notes.bin", "no image");
    const Outcome outcome = shell("cp $SAMPLES/*.bin .\nedidwb translate --output-dir new/out --jobs 2 *.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: notes.bin: is no EDID image"));
    EXPECT_FALSE(exists("new/out/notes.txt"));
    for (const char* name : {"halvorine-hv19", "zarqo-z40", "norvixan-nx3d"}) {
        EXPECT_EQ(read("new/out/" + std::string(name) + ".txt"),
                  shell("edidwb translate " + std::string(name) + ".bin").output);
    }
    EXPECT_EQ(shell("ls -A new/out | wc -l").output, "7\n");
    EXPECT_EQ(shell("edidwb translate -o new/out zarqo-z40.bin").status, 0) << "a report is replaced";
    EXPECT_EQ(shell("edidwb translate -o new/out - <zarqo-z40.bin").status, 0);
    EXPECT_EQ(read("new/out/stdin.txt"), read("new/out/zarqo-z40.txt"));
}

TEST_F(TranslateTest, InputsThatDifferInTheirExtensionKeepItInTheNamesOfTheReports) {
    const Outcome outcome = shell(
        "cp $SAMPLES/zarqo-z40.* $SAMPLES/brindleco-b24w.bin .\nedidwb translate -o out zarqo-z40.bin zarqo-z40.DAT "
        "brindleco-b24w.bin");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(shell("ls out").output, "brindleco-b24w.txt\nzarqo-z40.DAT.txt\nzarqo-z40.bin.txt\n");
    EXPECT_EQ(read("out/zarqo-z40.bin.txt"), shell("edidwb translate zarqo-z40.bin").output);
}

TEST_F(TranslateTest, InputsOfOneNameHaveTheFoldersThatTellThemApartInFront) {
    const Outcome outcome = shell(
        "mkdir -p card0-DP-1/d card0-HDMI-A-1/d\ncp $SAMPLES/zarqo-z40.bin card0-DP-1/d/edid\n"
        "cp $SAMPLES/halvorine-hv19.bin card0-HDMI-A-1/d/edid\ncp $SAMPLES/halvorine-hv19.bin other\n"
        "edidwb translate -o out -j 2 card0-*/d/edid other");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(shell("ls out").output, "card0-DP-1_d_edid.txt\ncard0-HDMI-A-1_d_edid.txt\nother.txt\n");
    EXPECT_EQ(read("out/card0-DP-1_d_edid.txt"), shell("edidwb translate card0-DP-1/d/edid").output);
}

TEST_F(TranslateTest, OneInputNamedTwiceIsTold) {
    const Outcome outcome = shell("edidwb translate -o out $SAMPLES/zarqo-z40.bin $SAMPLES/zarqo-z40.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("its report 'out/zarqo-z40.txt' is already that of '"));
    EXPECT_EQ(read("out/zarqo-z40.txt"), shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
}

TEST_F(TranslateTest, AReportNeverReplacesAnInput) {
    const std::string text = asHexText(sample("zarqo-z40.bin"));
    write("z.txt", text);
    const Outcome outcome = shell("edidwb translate -o . z.txt");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: z.txt: its report './z.txt' would replace a file that is to be read\n");
    EXPECT_EQ(read("z.txt"), text);
}

TEST_F(TranslateTest, AReportNeverReplacesAnInputThatALinkLeadsTo) {
    write("z.bin", sample("zarqo-z40.bin"));
    const Outcome outcome = shell(
        "mkdir out\nln -s ../z.bin out/halvorine-hv19.txt\nln -s z.bin link.bin\n"
        "edidwb translate -o out $SAMPLES/halvorine-hv19.bin link.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("its report 'out/halvorine-hv19.txt' would replace a file"));
    EXPECT_EQ(read("z.bin"), sample("zarqo-z40.bin"));
    EXPECT_TRUE(exists("out/link.txt"));
}

TEST_F(TranslateTest, WithoutThreadsTheWorkIsDoneAllTheSame) {
    // No address space holds a stack of that size, so that no thread can be made.
    const Outcome outcome = shell(
        "ulimit -Ss $((1 << 44)) && edidwb translate --jobs 4 $SAMPLES/zarqo-z40.bin $SAMPLES/halvorine-hv19.bin");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output, shell("edidwb translate $SAMPLES/zarqo-z40.bin $SAMPLES/halvorine-hv19.bin").output);
}

TEST_F(TranslateTest, AReportThatCannotBeWrittenIsTold) {
    write("file", "");
    EXPECT_EQ(shell("edidwb translate -o file $SAMPLES/zarqo-z40.bin").status, 1);
    const Outcome outcome = shell("mkdir -p out/zarqo-z40.txt\nedidwb translate -o out $SAMPLES/*.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: out/zarqo-z40.txt: Is a directory\n"));
    EXPECT_TRUE(exists("out/halvorine-hv19.txt"));
}

/// Each file is translated as if it were the only one, whatever comes before it and however many jobs there are.
TEST_F(TranslateTest, OrderAndJobsChangeNothing) {
    std::vector<std::string> names = {"brindleco-b24w", "halvorine-hv19",  "norvixan-nx3d", "ortheline-studio",
                                      "quillmere-q15",  "tessaramond-tp8", "zarqo-z40"};
    std::vector<std::string> alone;
    for (const std::string& name : names) {
        alone.push_back(shell("edidwb translate $SAMPLES/" + name + ".bin").output);
        ASSERT_FALSE(alone.back().empty()) << name;
    }
    std::mt19937 random(20040229);
    for (int round = 0; round < 4; ++round) {
        std::vector<std::size_t> order;
        for (std::size_t i = 0; i < 3 * names.size(); ++i) {
            order.push_back(i % names.size());
        }
        std::shuffle(order.begin(), order.end(), random);
        std::string command = "edidwb translate --heading=never --jobs " + std::to_string(1 + 2 * round);
        std::string expected;
        for (const std::size_t i : order) {
            command += " $SAMPLES/" + names[i] + ".bin";
            expected += alone[i];
        }
        EXPECT_EQ(shell(command).output, expected) << command;
    }
}

TEST_F(TranslateTest, LargeFilesAreReadInOneGo) {
    constexpr std::size_t megabyte = 1U << 20U;
    write("bars", std::string(20 * megabyte, '|'));
    write("hex", std::string(20 * megabyte, 'a'));
    std::string dump = "128 BYTES OF EDID CODE:\n\n\n|";
    for (std::size_t i = 0; dump.size() < 20 * megabyte; ++i) {
        dump += static_cast<char>(i % 256 == '\n' ? 'n' : i % 256);
    }
    write("dump", dump);
    write("marker", "128 BYTES OF EDID CODE:" + std::string(20 * megabyte, ' '));
    const Outcome outcome = shell("edidwb translate bars hex dump marker");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: bars: is no EDID image"));
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: dump: Subscript out of range (opening the data file)\n"));
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: marker: cannot be loaded: Input past end of file\n"));
}

} // namespace
} // namespace wb::test
