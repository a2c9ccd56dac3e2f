#include "cli/edidwb.h"

namespace wb::test {
namespace {

using ScriptTest = Edidwb;

TEST_F(ScriptTest, ReadsAFileOrStandardInput) {
    write("a.script", "windows\r\n\r\n# comment\r\nfocused");
    const std::string trace = "windows = none\nfocus = none\n";
    EXPECT_EQ(shell("edidwb script a.script").output, trace);
    EXPECT_EQ(shell("edidwb script <a.script").output, trace);
    EXPECT_EQ(shell("edidwb script - <a.script").output, trace);
    EXPECT_EQ(shell("edidwb script a.script").status, 0);
}

TEST_F(ScriptTest, AnErrorTellsFileAndLineAndEndsTheScript) {
    write("a.script", "windows\n\nfrob\nwindows\n");
    const Outcome outcome = shell("edidwb script a.script");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "windows = none\n");
    EXPECT_EQ(outcome.errors, "edidwb: a.script:3: unknown command 'frob'\n");
    EXPECT_EQ(shell("edidwb script - <a.script").errors, "edidwb: -:3: unknown command 'frob'\n");
}

TEST_F(ScriptTest, AFileThatCannotBeReadIsTold) {
    EXPECT_EQ(shell("edidwb script missing").status, 1);
    EXPECT_EQ(shell("edidwb script .").errors, "edidwb: .: Is a directory\n");
    for (const std::string command : {"edidwb script", "edidwb script -"}) {
        EXPECT_EQ(shell(command + " <.").status, 1) << command;
        EXPECT_EQ(shell(command + " <.").errors, "edidwb: -: Is a directory\n") << command;
        EXPECT_EQ(shell(command + " <&-").status, 1) << command;
        EXPECT_EQ(shell(command + " <&-").errors, "edidwb: -: Bad file descriptor\n") << command;
    }
}

TEST_F(ScriptTest, ARegistryExportTellsItsOwnLine) {
    write("bad.reg", "REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\A]\nfrob\n");
    EXPECT_EQ(shell("echo 'registry bad.reg' | edidwb script").errors,
              "edidwb: -:1: bad.reg:4: neither a key nor a value\n");
    EXPECT_EQ(shell("echo 'registry missing.reg' | edidwb script").errors,
              "edidwb: -:1: missing.reg: No such file or directory\n");
    EXPECT_EQ(shell("echo 'registry .' | edidwb script").errors, "edidwb: -:1: .: Is a directory\n");
}

TEST_F(ScriptTest, WhoWritesAScriptWhileItRunsGetsEachAnswer) {
    const Outcome outcome = shell(
        "coproc edidwb script\n"
        "echo focused >&${COPROC[1]}\nread -t 20 -u ${COPROC[0]} first\n"
        "echo windows >&${COPROC[1]}\nread -t 20 -u ${COPROC[0]} second\n"
        "echo \"$first, $second\"");
    EXPECT_EQ(outcome.output, "focus = none, windows = none\n");
}

} // namespace
} // namespace wb::test
