#include <gmock/gmock.h>

#include <algorithm>

#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using InspectTest = Edidwb;

TEST_F(InspectTest, TellsEveryBlockAsATable) {
    const Outcome outcome = shell("cd $SAMPLES; edidwb inspect zarqo-z40.bin");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output.substr(0, outcome.output.find("  base")),
              "zarqo-z40.bin: 256 bytes\n\nBlock 0: base EDID, check sum ok\n");
    EXPECT_THAT(outcome.output, HasSubstr("\n  base.detailed[1]\n"
                                          "    37+36           Pixel clock                                148.50 MHz\n"
                                          "    3A[7:4]+38      Horizontal active                          1920 px\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\n\nBlock 1: CTA-861 extension, check sum ok\n"));
}

TEST_F(InspectTest, TellsOfCheckSumsThatAreWrongAndOfBlocksThatAreNotThere) {
    std::string bytes = sample("zarqo-z40.bin").substr(0, 128);
    ++bytes[20];
    write("half.bin", bytes);
    const Outcome outcome = shell("edidwb inspect half.bin");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("half.bin: 128 bytes\n\nBlock 0: base EDID, check sum wrong\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\nBlock 1: missing extension, not there\n"));
}

TEST_F(InspectTest, TellsRowsForPrograms) {
    const Outcome outcome = shell("cd $SAMPLES; edidwb inspect --format tsv zarqo-z40.bin");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output.substr(0, outcome.output.find('\n')), "file\tpath\twhere\traw\tvalue\tunit\ttext\tclause");
    EXPECT_THAT(outcome.output,
                HasSubstr("\nzarqo-z40.bin\tbase.detailed[1].h_active\t3A[7:4]+38\t780\t1920\tpx\t1920 px\t"));
}

TEST_F(InspectTest, TellsOneJsonObjectAFile) {
    const Outcome outcome = shell("cd $SAMPLES; edidwb inspect --format json zarqo-z40.bin halvorine-hv19.bin");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 2);
    EXPECT_EQ(outcome.output.substr(0, 50), "{\"schema\":1,\"file\":\"zarqo-z40.bin\",\"bytes\":256,\"bl");
    EXPECT_THAT(outcome.output,
                HasSubstr("{\"path\":\"base.detailed[1].h_active\",\"label\":\"Horizontal active\","
                          "\"where\":[{\"byte\":58,\"high\":7,\"low\":4},{\"byte\":56,\"high\":7,\"low\":0}],"
                          "\"raw\":\"780\",\"value\":1920,\"unit\":\"px\",\"text\":\"1920 px\","));
}

TEST_F(InspectTest, ReadsDataFilesAndHexadecimalText) {
    shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin z.DAT; edidwb convert --to hex $SAMPLES/zarqo-z40.bin z.hex");
    const Outcome raw = shell("edidwb inspect --format tsv $SAMPLES/zarqo-z40.bin | cut -f 2-");
    EXPECT_THAT(raw.output, HasSubstr("base.detailed[2].v_active\t"));
    EXPECT_EQ(shell("edidwb inspect --format tsv z.DAT | cut -f 2-").output, raw.output);
    EXPECT_EQ(shell("edidwb inspect --format tsv - <z.hex | cut -f 2-").output, raw.output);
}

TEST_F(InspectTest, GoesOnAfterAFileThatIsNoImage) {
    write("notes", "no image");
    const Outcome outcome = shell("edidwb inspect notes missing $SAMPLES/halvorine-hv19.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: notes: is no EDID image"));
    EXPECT_THAT(outcome.errors, HasSubstr("edidwb: missing: No such file or directory\n"));
    EXPECT_THAT(outcome.output, HasSubstr("Block 0: base EDID"));
}

TEST_F(InspectTest, UsesColourOnATerminalOnly) {
    EXPECT_THAT(shell("edidwb inspect $SAMPLES/halvorine-hv19.bin").output, Not(HasSubstr("\x1B")));
    const std::string program = EDIDWB;
    const std::string run = "script -qec \"" + program + " inspect $SAMPLES/halvorine-hv19.bin\" /dev/null";
    EXPECT_THAT(shell("unset NO_COLOR; " + run).output, HasSubstr("\x1B[1m"));
    EXPECT_THAT(shell("export NO_COLOR=; " + run).output, HasSubstr("\x1B[1m"));
    EXPECT_THAT(shell("export NO_COLOR=1; " + run).output, Not(HasSubstr("\x1B")));
}

TEST_F(InspectTest, WritesJsonAsItsSchemaSays) {
    const std::string validate =
        " | " WORKBENCH_SOURCE_DIR "/scripts/validate-json " WORKBENCH_SOURCE_DIR "/docs/edidwb.schema.json ";
    for (const std::string& line :
         {"edidwb inspect --format json $SAMPLES/*.bin" + validate + "inspect",
          "edidwb check --level note --format json $SAMPLES/*.bin" + validate + "check",
          "edidwb translate --format json $SAMPLES/*.bin" + validate + "summary",
          "edidwb diff --format json $SAMPLES/zarqo-z40.bin $SAMPLES/halvorine-hv19.bin" + validate + "diff"}) {
        const Outcome outcome = shell(line);
        EXPECT_EQ(outcome.status, 0) << line << '\n' << outcome.output << outcome.errors;
    }
    EXPECT_EQ(shell("echo '{\"schema\":1}'" + validate + "diff").status, 1);
}

} // namespace
} // namespace wb::test
