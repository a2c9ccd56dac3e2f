#include <gmock/gmock.h>

#include "cli/changed_image.h"
#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

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

TEST_F(ScriptTest, ALineWithoutAnEndIsRefused) {
    const Outcome outcome = shell("echo windows >a; cat a /dev/zero | edidwb script");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "windows = none\n");
    EXPECT_EQ(outcome.errors, "edidwb: -:2: the line is longer than 33554432 bytes\n");
}

TEST_F(ScriptTest, WantOfMemoryIsNotItsEnd) {
    const std::string limit = "ulimit -v 50000; ";
    if (shell(limit + "edidwb --version").status != 0) {
        GTEST_SKIP() << "a sanitizer takes more than that for itself";
    }
    const Outcome outcome = shell("(" + limit + "(head -c 30000000 /dev/zero; echo; echo frob) | edidwb script)");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: -: not enough memory\n");
}

TEST_F(ScriptTest, ARegistryExportTellsItsOwnLine) {
    write("bad.reg", "REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\A]\nfrob\n");
    EXPECT_EQ(shell("echo 'registry bad.reg' | edidwb script").errors,
              "edidwb: -:1: bad.reg:4: neither a key nor a value\n");
    EXPECT_EQ(shell("echo 'registry missing.reg' | edidwb script").errors,
              "edidwb: -:1: missing.reg: No such file or directory\n");
    EXPECT_EQ(shell("echo 'registry missing.reg' | edidwb script").status, 1);
    EXPECT_EQ(shell("echo 'registry bad.reg' | edidwb script").status, 2);
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

TEST_F(ScriptTest, AFailedExpectationEndsTheScriptWithStatus1) {
    const std::string start = "open $IN\nexpect frmEDID.txtEdit(0).Text 00\nexpect frmEDID.Visible True\n";
    write("a.script", start + "expect frmEDID.txtEdit(1).Text \"FE\"\nfocused\n");
    const Outcome outcome = shell("edidwb script --set IN=$SAMPLES/zarqo-z40.bin a.script");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "edidwb: a.script:4: expected frmEDID.txtEdit(1).Text = \"FE\", but it is \"FF\"\n");
}

TEST_F(ScriptTest, StrictFailsAtARefusalAndAtABoxWithoutAnAnswer) {
    write("refused", "type a\nfocused\n");
    EXPECT_EQ(shell("edidwb script refused").status, 0);
    EXPECT_EQ(shell("edidwb script --strict refused").status, 1);
    EXPECT_EQ(shell("edidwb script --strict refused").output, "[refused] none\n");
    EXPECT_EQ(shell("edidwb script --strict refused").errors, "edidwb: refused:1: refused: none\n");
    write("box", "menu mnuFileNew\nfocused\n");
    EXPECT_EQ(shell("edidwb script box").status, 0);
    const Outcome outcome = shell("edidwb script --strict box");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\n");
    EXPECT_EQ(outcome.errors, "edidwb: box:1: a box without an answer: \"CEA 861 EDID Timing Extension?\"\n");
    write("wrong-answer", "answer Cancel\nmenu mnuFileNew\n");
    EXPECT_EQ(shell("edidwb script --strict wrong-answer").status, 1);
    write("answered", "answer No\nmenu mnuFileNew\n");
    EXPECT_EQ(shell("edidwb script --strict answered").status, 0);
}

TEST_F(ScriptTest, SettingsStandForTheirNames) {
    write("a.script", "call PadLeft $TEXT 12\ncall PadLeft \"$TEXT$OTHER\" 1\n");
    const Outcome outcome = shell("edidwb script --set TEXT=x --set 'TEXT=a \"b\\' a.script");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "PadLeft = \"       a \\\"b\\\\\"\nPadLeft = \"a \\\"b\\\\$OTHER\"\n");
    for (const std::string wrong : {"NAME", "=x", "1A=x", "A-B=x"}) {
        EXPECT_EQ(shell("edidwb script --set " + wrong + " a.script").status, 2) << wrong;
    }
}

TEST_F(ScriptTest, OpensAndSavesEveryForm) {
    const std::string image = sample("zarqo-z40.bin");
    write("save", "open \"$IN\"\nsave image.$FORM\nsave other $FORM\n");
    for (const std::string form : {"bin", "hex", "c", "base64", "reg", "inf", "xxd"}) {
        const Outcome outcome = shell("edidwb script --set IN=$SAMPLES/zarqo-z40.bin --set FORM=" + form + " save");
        EXPECT_EQ(outcome.status, 0) << form << outcome.errors;
        EXPECT_EQ(outcome.output + outcome.errors, "") << form;
        EXPECT_EQ(read("other"), read("image." + form)) << form;
        write("back", "open image." + form + "\nsave back.BIN\n");
        EXPECT_EQ(shell("edidwb script back").errors, "") << form;
        EXPECT_EQ(read("back.BIN"), image) << form;
    }
}

TEST_F(ScriptTest, SavesADataFileAsSaveDoes) {
    write("a.script", "open $IN\nsave new.DAT\nvar CurrentFileName\nvar EDIDModified\nopen new.DAT\nsave again.bin\n");
    const Outcome outcome = shell("edidwb script --set IN=$SAMPLES/zarqo-z40.bin a.script");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, "CurrentFileName = \"new.DAT\"\nEDIDModified = 0\n");
    EXPECT_EQ(read("new.DAT"), shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin -").output);
    EXPECT_EQ(read("again.bin"), shell("edidwb convert --to bin new.DAT -").output);
    EXPECT_EQ(read("again.bin").size(), sample("zarqo-z40.bin").size());
}

TEST_F(ScriptTest, BlocksThatCannotBeEditedTravelWithTheImage) {
    std::string image = sample("zarqo-z40.bin");
    image[126] = 3;
    image[127] = static_cast<char>(image[127] - 2);
    image += std::string(127, 'x') + "y" + std::string(128, '\x9C');
    write("four.bin", image);
    write("a.script",
          "open four.bin\npoke frmEDID.txtEdit(8) \"04\"\npoke frmCEA_EXT.txtEdit(3) \"F1\"\nsave new.$FORM\n");
    std::string edited = image;
    edited[8] = 4;
    edited[128 + 3] = '\xF1';
    for (const std::string form : {"bin", "hex", "c", "base64", "reg", "inf", "xxd"}) {
        const Outcome outcome = shell("edidwb script --set FORM=" + form + " a.script");
        EXPECT_EQ(outcome.status, 0) << form;
        EXPECT_EQ(outcome.errors, "edidwb: four.bin: blocks 2 to 3 left out\n") << "of what the screens show";
        EXPECT_EQ(shell("edidwb convert --to bin new." + form + " -").output, edited) << form;
    }
}

TEST_F(ScriptTest, BlocksOfAnotherImageDoNotTravel) {
    write("three.bin", sample("zarqo-z40.bin") + std::string(128, 'x'));
    for (const std::string other : {"open $IN", "answer Yes No\nmenu mnuFileNew", "dialog $IN\nmenu mnuFileOpen"}) {
        for (const std::string in : {"halvorine-hv19.bin", "halvorine-hv19.DAT"}) {
            write("a.script", "open three.bin\n" + other + "\nsave new.bin\n");
            const Outcome outcome = shell("edidwb script --set IN=$SAMPLES/" + in + " a.script");
            EXPECT_EQ(outcome.status, 0) << other << outcome.errors;
            const bool isOpened = other.starts_with("open") || (other.starts_with("dialog") && in.ends_with("DAT"));
            EXPECT_EQ(read("new.bin") == sample("halvorine-hv19.bin"), isOpened) << other << in;
            const bool stays = other.starts_with("dialog") && !isOpened; // what is no data file is not opened
            EXPECT_EQ(read("new.bin").size(), stays ? 384 : 128) << other << in;
        }
    }
}

TEST_F(ScriptTest, Byte126TellsHowManyBlocksAreSavedWhereItWasChanged) {
    std::string image = sample("zarqo-z40.bin");
    write("more.bin", image + std::string(128, 'x')); // one more than it announces
    image[126] = 0;
    write("none.bin", image);
    struct Case {
        const char* file;
        const char* count; ///< what is put into byte 126
        std::size_t size;
        const char* errors;
    };
    for (const Case& c : {Case{"more.bin", "01", 384, ""}, Case{"more.bin", "02", 384, ""},
                          Case{"more.bin", "00", 128, "edidwb: new.bin: blocks 1 to 2 left out\n"},
                          Case{"none.bin", "00", 256, ""}, Case{"none.bin", "01", 256, ""}}) {
        write("a.script",
              "open " + std::string(c.file) + "\npoke frmEDID.txtEdit(126) \"" + c.count + "\"\nsave new.bin\n");
        const Outcome outcome = shell("edidwb script a.script");
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(read("new.bin").size(), c.size) << c.file << c.count;
        EXPECT_TRUE(outcome.errors.ends_with(c.errors)) << outcome.errors;
        EXPECT_EQ(read("new.bin").substr(128), read(c.file).substr(128, c.size - 128)) << "as they were";
    }
}

TEST_F(ScriptTest, TheOverrideOfTheHdmiForumTellsHowManyBlocksAreSavedToo) {
    write("whole.bin", imageWithOverride(4, 3));
    write("cut.bin", imageWithOverride(2, 3));
    struct Case {
        const char* file;
        const char* poke;
        std::size_t size;
        const char* errors;
    };
    for (const Case& c :
         {Case{"whole.bin", "", 512, ""}, Case{"whole.bin", "poke frmEDID.txtEdit(126) \"02\"", 512, ""},
          Case{"whole.bin", "poke frmCEA_EXT.txtEdit(6) \"02\"", 384, "edidwb: new.bin: block 3 left out\n"},
          Case{"whole.bin", "poke frmCEA_EXT.txtEdit(6) \"05\"", 512, ""},
          Case{"whole.bin", "poke frmEDID.txtEdit(126) \"00\"", 128, "edidwb: new.bin: blocks 1 to 3 left out\n"},
          Case{"cut.bin", "", 256, ""}}) {
        write("a.script", "open " + std::string(c.file) + "\n" + c.poke + "\nsave new.bin\n");
        const Outcome outcome = shell("edidwb script a.script");
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(read("new.bin").size(), c.size) << c.poke;
        EXPECT_TRUE(outcome.errors.ends_with(c.errors)) << outcome.errors;
        if (*c.poke == '\0') {
            EXPECT_EQ(read("new.bin"), read(c.file));
        }
    }
}

TEST_F(ScriptTest, AFileThatCannotBeOpenedOrSavedIsAFailure) {
    std::string announced = sample("zarqo-z40.bin");
    announced[126] = 2;
    write("three.bin", announced + std::string(128, '\0'));
    write("none", "no image");
    write("old.bin", "old");
    struct Case {
        const char* script;
        int status;
        const char* errors;
    };
    for (const Case& c :
         {Case{"open missing", 1, "1: missing: No such file or directory"},
          Case{"save old.bin", 1, "1: old.bin: no image is open"},
          Case{"save old.dat", 1, "1: old.dat: no image is open"},
          Case{"save old", 2, "1: in which form? One of dat, bin, hex, c, base64, reg, inf, xxd"},
          Case{"save old.bin report", 2,
               "1: unknown form 'report', not one of dat, bin, hex, c, base64, reg, inf, xxd"},
          Case{"open three.bin\nsave old.dat", 1, "2: old.dat: 3 blocks; a data file holds 2"},
          Case{"open three.bin\npoke frmEDID.txtEdit(126) \"03\"\nsave old.bin", 1,
               "3: old.bin: announces 4 blocks, and the program holds 3"},
          Case{"answer No\nmenu mnuFileNew\npoke frmEDID.txtEdit(126) \"01\"\nsave old.bin", 1,
               "4: old.bin: announces 2 blocks, and the program holds 1"},
          Case{"answer No\nmenu mnuFileNew\npoke frmEDID.txtEdit(5) \"G0\"\nsave old.bin", 1,
               "4: old.bin: cell 5 is no byte: \"G0\""},
          Case{"answer No\nmenu mnuFileNew\nsave no/such/x.bin", 1, "3: no/such/x.bin: No such file or directory"}}) {
        const Outcome outcome = shell("printf '" + std::string(c.script) + "\n' | edidwb script");
        EXPECT_EQ(outcome.status, c.status) << c.script;
        EXPECT_TRUE(outcome.errors.ends_with("edidwb: -:" + std::string(c.errors) + '\n')) << outcome.errors;
        EXPECT_EQ(read("old.bin"), "old") << c.script;
    }
    EXPECT_EQ(shell("echo open three.bin | edidwb script").errors, "edidwb: three.bin: block 2 left out\n");
    EXPECT_EQ(shell("echo open none | edidwb script").status, 1);
}

TEST_F(ScriptTest, HelpListsTheCommands) {
    const Outcome outcome = shell("echo help | edidwb script");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("click S.C(i)                 clicks\n"));
    EXPECT_THAT(outcome.output, HasSubstr("save \"FILE\" [FORM]           writes the image; "));
}

TEST_F(ScriptTest, AMistakeDoesNotEndASessionAtATerminal) {
    if (shell("script --version").status != 0) {
        GTEST_SKIP() << "there is no program 'script' that makes a terminal";
    }
    const Outcome outcome = shell(
        "export -f edidwb; printf 'frob\nwindows\n\004' | SHELL=$(command -v bash) script -qec 'edidwb script' "
        "/dev/null");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, HasSubstr("edidwb: -:1: unknown command 'frob'"));
    EXPECT_THAT(outcome.output, HasSubstr("windows = none"));
}

} // namespace
} // namespace wb::test
