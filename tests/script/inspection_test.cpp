#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>

#include "script/script_runner.h"

namespace wb::script {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Inspection, ExpectPrintsNothingWhereItHolds) {
    ScriptRunner runner;
    runner.run("menu mnuFileNew\n");
    EXPECT_EQ(runner.run("expect frmEDID.txtEdit(1).Text \"FF\"\nexpect frmEDID.txtEdit(1).Visible True\n"
                         "expect frmCEA_EXT.NativeCBox.ListCount 16\n"),
              "");
    EXPECT_EQ(runner.run("\nexpect frmEDID.txtEdit(1).Text ff"),
              "2: expected frmEDID.txtEdit(1).Text = \"ff\", but it is \"FF\"\n");
    EXPECT_EQ(runner.run("expect frmCEA_EXT.NativeCBox.List x"),
              "1: 'frmCEA_EXT.NativeCBox.List' has 16 values, not one\n");
    EXPECT_EQ(runner.run("expect frmEDID.txtEdit(1).Frob x"), "1: unknown property 'Frob'\n");
}

TEST(Inspection, ReadsProperties) {
    ScriptRunner program;
    program.run("menu mnuFileNew\nclick frmMain.Command2\nfocus frmEDID.txtEdit(20)\n");
    struct Case {
        const char* name;
        const char* value;
    };
    for (const Case& c : {Case{"frmEDID.txtEdit(1).Text", "\"FF\""},
                          Case{"frmMain.Command1.Caption", "\"Translate EDID\""},
                          Case{"frmEDID.txtEdit(1).Visible", "True"},
                          Case{"frmEDID.BasicInput.Visible", "False"},
                          Case{"frmMain.Command4.Enabled", "False"},
                          Case{"frmEDID.txtEdit(20).Locked", "False"},
                          Case{"frmEDID.txtEdit(20).BackColor", "field"},
                          Case{"frmEDID.txtEdit(21).BackColor", "group"},
                          Case{"frmEDID.txtEdit(3).BackColor", "window"},
                          Case{"frmEDID.txtEdit(3).FontBold", "False"},
                          Case{"frmEDID.txtEdit(3).MaxLength", "0"},
                          Case{"frmEDID.txtEdit(20).SelStart", "0"},
                          Case{"frmEDID.txtEdit(20).SelLength", "2"},
                          Case{"frmEDID.VideoMode(0).Value", "-1"},
                          Case{"frmEDID.VideoMode(1).Value", "0"},
                          Case{"frmEDID.Sync(0).Value", "0"},
                          Case{"frmCEA_EXT.VideoBlkCBox.Value", "-1"},
                          Case{"frmCEA_EXT.NativeCBox.ListCount", "16"},
                          Case{"frmCEA_EXT.NativeCBox.List(15)", "\"15\""},
                          Case{"frmMain.Caption", "\"EDID / DDC Field Workbench \""},
                          Case{"frmEDID.Visible", "True"},
                          Case{"frmCEA_EXT.Visible", "False"}}) {
        EXPECT_EQ(program.run("get " + std::string(c.name)), std::string(c.name) + " = " + c.value + '\n');
    }
}

TEST(Inspection, RefusesNamesThatAreNoProperty) {
    for (const std::string name :
         {"frmEDID", "frmEDID(3).txtEdit(0).Text", "frmEDID(0).Caption", "frmEDID.txtEdit(0).Text.Length"}) {
        EXPECT_EQ(runScript("get " + name), "1: '" + name + "' does not name a property\n");
    }
    EXPECT_EQ(runScript("get frmEDID.txtEdit(0).Text(1)"), "1: unknown property 'Text'\n");
    EXPECT_EQ(runScript("get frmEDID.Caption(1)"), "1: unknown property 'Caption'\n");
}

TEST(Inspection, ListsTheRowsOfACombo) {
    const std::string rows = runScript("get frmCEA_EXT.NativeCBox.List\n");
    EXPECT_EQ(rows.substr(0, rows.find('\n')), "frmCEA_EXT.NativeCBox.List(0) = \"00\"");
    EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 16);
    EXPECT_EQ(runScript("get frmEDID.txtEdit(0).List\n"), "");
}

TEST(Inspection, ReadingAPropertyTouchesTheScreen) {
    ScriptRunner program;
    EXPECT_EQ(program.run("var EDIDLoaded\nget frmEDID.txtEdit(0).Text\nvar EDIDLoaded\n"),
              "EDIDLoaded = 0\nfrmEDID.txtEdit(0).Text = \"00\"\nEDIDLoaded = -1\n");
}

TEST(Inspection, ReadingAScreensVariableTouchesTheScreen) {
    EXPECT_EQ(runScript("var frmEDID.InFocusDispatch\nvar EDIDLoaded\n"),
              "frmEDID.InFocusDispatch = 0\nEDIDLoaded = -1\n");
}

TEST(Inspection, SetsAndReadsVariables) {
    EXPECT_EQ(
        runScript("let CurrentFileName \"a\\tb\\xFF\"\nvar CurrentFileName\nlet CEADtdOffset -32768\nvar "
                  "CEADtdOffset\nlet EDIDCells(255) 4C\nvar EDIDCells(255)\nlet frmEDID.CurrentBlockNumber 3\nvar "
                  "frmEDID.CurrentBlockNumber\nlet frmMain.minimised -1\nvar frmMain.minimised\nlet frmMain.Left "
                  "12\nvar frmMain.Left\n"),
        "CurrentFileName = \"a\\tb\\xFF\"\nCEADtdOffset = -32768\nEDIDCells(255) = \"4C\"\n"
        "frmEDID.CurrentBlockNumber = 3\nfrmMain.minimised = -1\nfrmMain.Left = 12\n");
}

/// The members of SharedVariables, read from its source, since nothing else knows them all.
std::vector<std::string> sharedVariables() {
    std::ifstream header(WORKBENCH_SOURCE_DIR "/src/core/shared_variables.h");
    std::string line;
    while (std::getline(header, line) && line != "struct SharedVariables {") {
    }
    const std::regex comment(" *//.*$");
    const std::regex member("^ +[\\w:<>, ]+ (\\w+)(?: = [^;]+|\\{[^;]*\\})?;$");
    std::vector<std::string> names;
    while (std::getline(header, line) && line != "};") {
        line = std::regex_replace(line, comment, "");
        if (std::smatch match; std::regex_match(line, match, member)) {
            names.push_back(match[1].str());
        } else {
            EXPECT_TRUE(line.empty() || line.find(" operator==(") != std::string::npos)
                << line << ": a member that this does not see";
        }
    }
    return names;
}

TEST(Inspection, KnowsEverySharedVariable) {
    const std::vector<std::string> names = sharedVariables();
    EXPECT_GT(names.size(), 80U);
    for (const std::string& name : names) {
        EXPECT_THAT(runScript("var " + name + '\n'), Not(HasSubstr("unknown")))
            << "src/script/variable_names.cpp lacks it";
    }
}

TEST(Inspection, PrintsAnArrayOneLineAnElement) {
    EXPECT_EQ(runScript("var StandardTimingText\n"), "") << "no elements before the first decode";
    EXPECT_EQ(runScript("get frmEDID.Visible\nvar DetailedBlockText\n"),
              "frmEDID.Visible = False\nDetailedBlockText(0) = \"\"\nDetailedBlockText(1) = \"\"\n"
              "DetailedBlockText(2) = \"\"\nDetailedBlockText(3) = \"\"\n");
    const std::string cells = runScript("var EDIDCells\n");
    EXPECT_EQ(std::count(cells.begin(), cells.end(), '\n'), 256);
}

TEST(Inspection, PrintsCellsSixteenALine) {
    const std::string cells = runScript(
        "poke frmEDID.txtEdit(0) \"\"\npoke frmEDID.txtEdit(1) \"A\"\npoke "
        "frmEDID.txtEdit(2) \"A B\"\npoke frmEDID.txtEdit(3) \"!~\"\npoke "
        "frmEDID.txtEdit(4) \"F \"\npoke frmEDID.txtEdit(5) \"\\x8A\\\"\"\npoke "
        "frmEDID.txtEdit(127) \"4c\"\ncells frmEDID\n");
    EXPECT_EQ(cells.substr(0, cells.find('\n')),
              "00: \"\" \"A\" \"A B\" !~ \"F \" \"\\x8A\\\"\" 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(cells.substr(cells.rfind("70: ")), "70: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 4c\n");
    EXPECT_EQ(std::count(cells.begin(), cells.end(), '\n'), 8);
}

TEST(Inspection, PokingRaisesNoEvent) {
    EXPECT_EQ(runScript("menu mnuFileNew\nclick frmMain.Command2\npoke frmEDID.txtEdit(16) \"21\"\nvar "
                        "ManufactureWeek\nfocused\n"),
              "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\nManufactureWeek = \"\"\n"
              "focus = frmEDID.txtEdit(0)\n");
}

TEST(Inspection, CallsHelpers) {
    struct Case {
        const char* arguments;
        const char* trace;
    };
    for (const Case& c :
         {Case{"PadRight x 3", "PadRight = \"x  \"\n"},
          Case{"PadLeft \"x\" 3", "PadLeft = \"  x\"\n"},
          Case{"RepeatText ab 2", "RepeatText = \"abab\"\n"},
          Case{"RepeatText ab -1", "RepeatText = \"\"\n"},
          Case{"IndentText x 2", "IndentText = \"  x\"\n"},
          Case{"CenterText x 7", "CenterText = \"   x\"\n"},
          Case{"StripTrailingCrLf \"x\\r\\n\"", "StripTrailingCrLf = \"x\"\n"},
          Case{"HexDigitValue b", "HexDigitValue = 11\n"},
          Case{"HexDigitValue \" \"", "HexDigitValue = -16\n"},
          Case{"HexTextToChar 41", "HexTextToChar = \"A\"\n"},
          Case{"HexTextToChar \"ZZ\"", "[box] \"Invalid procedure call or argument\" OK -> OK\nHexTextToChar = \"\"\n"},
          Case{"ByteToHex2 10", "ByteToHex2 = \"0A\"\n"},
          Case{"ByteToHex2 -1", "ByteToHex2 = \"FFFF\"\n"},
          Case{"ByteToHex2 32768", "[box] \"Overflow\" OK -> OK\n"},
          Case{"HexToBinaryText aF", "HexToBinaryText = \"1111\"\n"},
          Case{"BinaryTextToDecimal 101", "BinaryTextToDecimal = \"5\"\n"},
          Case{"Value \"1E\"", "Value = 1\n"},
          Case{"Value 2.50", "Value = 2.5\n"},
          Case{"IsEDIDHeaderValid \"\\x00\\xFF\\xFF\\xFF\\xFF\\xFF\\xFF\\x00\"", "IsEDIDHeaderValid = -1\n"},
          Case{"HexTextToNumber AF", "HexTextToNumber = 175\n"},
          Case{"SelectAllInControl frmEDID.txtEdit(0)", ""}}) {
        EXPECT_EQ(runScript("call " + std::string(c.arguments)), c.trace) << c.arguments;
    }
}

TEST(Inspection, RunsProcedures) {
    EXPECT_EQ(
        runScript("menu mnuFileNew\npoke frmEDID.txtEdit(8) 22\npoke frmEDID.txtEdit(9) F0\nrun ConvertManufacturer\n"
                  "var IDManufacturerName\nrun frmEDID.GetManufacturer\nrun ComputeCheckSum\nrun FillInModelInfo\n"
                  "run frmCEA_EXT.BuildVersion\nget frmCEA_EXT.txtVersion.Text\nlet CurrentFileName missing\nrun "
                  "ReadEDIDDataFile\n"),
        "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\nIDManufacturerName = \"HWP\"\n"
        // Six times FF, 22 and F0 are 70C hexadecimal.
        "frmEDID.GetManufacturer = \"HWP\"\nComputeCheckSum = 12\nFillInModelInfo = -1\n"
        "frmCEA_EXT.txtVersion.Text = \"3\"\n[box] \"File not found\" OK -> OK\nReadEDIDDataFile = 0\n");
}

} // namespace
} // namespace wb::script
