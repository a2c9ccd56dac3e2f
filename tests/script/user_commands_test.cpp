#include <gtest/gtest.h>

#include "script/script_runner.h"

namespace wb::script {
namespace {

constexpr const char* newImage = "menu mnuFileNew\n";

/// A runner with a new image open and Modify EDID on.
struct Editing : ScriptRunner {
    Editing() { run(std::string(newImage) + "click frmMain.Command2\n"); }
};

TEST(UserCommands, ActionsOutOfReachAreRefused) {
    struct Case {
        const char* line;
        const char* trace;
    };
    for (const Case& c :
         {Case{"click frmEDID.txtEdit(3)", "[refused] frmEDID.txtEdit(3)\n"}, // its screen does not exist
          Case{"dblclick frmCEA_EXT.VerRev", "[refused] frmCEA_EXT.VerRev\n"},
          Case{"focus frmHexCalculator.Display", "[refused] frmHexCalculator.Display\n"},
          Case{"pick frmCEA_EXT.TagCBox 99", "[refused] frmCEA_EXT.TagCBox\n"},
          Case{"type \"ab\"", "[refused] none\n"},                                 // nothing has the focus
          Case{"enter", "[refused] none\n"}, Case{"keyup 65", "[refused] none\n"}, // no screen is active
          Case{"close frmEDID", "[refused] frmEDID\n"},
          Case{"click frmMain.Command4", "[refused] frmMain.Command4\n"}, // disabled
          Case{"click frmMain.Command2", ""}}) {
        EXPECT_EQ(runScript(c.line), c.trace) << c.line;
    }
}

TEST(UserCommands, ModifySwitchesEditingOnlyWhereItIsOtherwise) {
    ScriptRunner runner;
    const std::string ask = "get frmMain.Command2.Caption\nfocused\n";
    EXPECT_EQ(runner.run(std::string(newImage) + "focus frmEDID.txtEdit(9)\nmodify off\n" + ask),
              "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\n"
              "frmMain.Command2.Caption = \"Modify EDID (OFF)\"\nfocus = frmEDID.txtEdit(9)\n");
    EXPECT_EQ(runner.run("modify on\n" + ask),
              "frmMain.Command2.Caption = \"Modify EDID (ON)\"\nfocus = frmEDID.txtEdit(0)\n");
    EXPECT_EQ(runner.run("focus frmEDID.txtEdit(9)\nmodify on\n" + ask),
              "frmMain.Command2.Caption = \"Modify EDID (ON)\"\nfocus = frmEDID.txtEdit(9)\n");
    EXPECT_EQ(runner.run("let EDIDModified 0\nmenu mnuFileExit\nmodify off\n"), "[refused] frmMain.Command2\n");
    EXPECT_EQ(runScript("modify maybe\n"), "1: editing is 'on' or 'off', not 'maybe'\n");
}

TEST(UserCommands, AScreenThatExistsButIsNotShownIsOutOfReach) {
    EXPECT_EQ(runScript("get frmCEA_EXT.txtEdit(0).Text\nclick frmCEA_EXT.txtEdit(0)\nclose frmCEA_EXT\n"),
              "frmCEA_EXT.txtEdit(0).Text = \"02\"\n[refused] frmCEA_EXT.txtEdit(0)\n[refused] frmCEA_EXT\n");
}

TEST(UserCommands, AfterTheEndAllAreRefused) {
    EXPECT_EQ(runScript("menu mnuFileExit\nmenu mnuFileNew\ntoolbar New\nclick frmMain.Command1\nfocus "
                        "frmEDID.txtEdit(0)\ntype x\nenter\nkeyup 65\nclose frmMain\ntoolbar Frob\n"),
              "[refused] frmMain.mnuFileNew\n[refused] frmMain.tbToolBar(1)\n[refused] frmMain.Command1\n"
              "[refused] frmEDID.txtEdit(0)\n[refused] none\n[refused] none\n[refused] none\n[refused] frmMain\n");
}

TEST(UserCommands, AModalScreenBarsTheOthers) {
    EXPECT_EQ(runScript("menu Info\nmenu mnuFileNew\nclick frmMain.Command1\nfocused\nkeyup 65\nclick "
                        "frmHelp.Command1\nfocused\nmenu mnuHelpAbout\nclose frmAbout\nclick frmAbout.cmdOK\n"),
              "[refused] frmMain.mnuFileNew\n[refused] frmMain.Command1\nfocus = frmHelp.Command1\n"
              "focus = none\n[refused] frmAbout.cmdOK\n");
}

TEST(UserCommands, ClicksFocusAndRaise) {
    Editing program;
    EXPECT_EQ(program.run("click frmEDID.txtEdit(9)\nfocused\nclick frmEDID.Label1(0)\nfocused\n"
                          "get frmEDID.txtEdit(9).SelLength\n"),
              "focus = frmEDID.txtEdit(9)\nfocus = frmEDID.txtEdit(9)\nfrmEDID.txtEdit(9).SelLength = 2\n");
}

TEST(UserCommands, ALabelTakesNoFocus) {
    Editing program;
    EXPECT_EQ(program.run("focus frmEDID.Label1(0)\n"), "[refused] frmEDID.Label1(0)\n");
}

TEST(UserCommands, TypingReplacesTheSelectionAndIsUpperCasedInCells) {
    Editing program;
    EXPECT_EQ(program.run("focus frmEDID.txtEdit(16)\ntype \"a\"\nget frmEDID.txtEdit(16).Text\ntype "
                          "b\nget frmEDID.txtEdit(16).Text\nvar ManufactureWeek\n"),
              "frmEDID.txtEdit(16).Text = \"A\"\nfrmEDID.txtEdit(16).Text = \"AB\"\nManufactureWeek = \"171\"\n");
}

TEST(UserCommands, TypingGoesToTheModalScreen) {
    Editing program;
    EXPECT_EQ(program.run("focus frmEDID.txtEdit(16)\nmenu Windows2000\nfocused\ntype \"xy\"\nget "
                          "frmEDIDREG.Text1.Text\nclick frmEDIDREG.Command1(1)\nfocused\n"),
              "focus = frmEDIDREG.Text1\n"
              "frmEDIDREG.Text1.Text = \"xySYSTEM\\\\CurrentControlSet\\\\Enum\\\\Display\"\n"
              "focus = frmEDID.txtEdit(16)\n");
}

TEST(UserCommands, TypingStopsAtTheFirstCharacterOutOfReach) {
    // Hiding a panel moves no focus, but what it holds is out of reach.
    Editing program;
    EXPECT_EQ(program.run("focus frmEDID.txtEdit(16)\nfocus frmEDID.VendorInfo\nfocused\n"),
              "focus = frmEDID.VendorInfo\n");
    program.workbench().frmEDID().Hints(1).setVisible(false);
    EXPECT_EQ(program.run("focused\ntype \"12\"\nenter\n"),
              "focus = frmEDID.VendorInfo\n[refused] frmEDID.VendorInfo\n[refused] frmEDID.VendorInfo\n");
}

TEST(UserCommands, EnterConfirmsAnEntry) {
    Editing program;
    EXPECT_EQ(program.run("focus frmEDID.txtEdit(16)\nfocus frmEDID.VendorInfo\ntype \"33\"\nenter\n"
                          "get frmEDID.txtEdit(16).Text\n"),
              "frmEDID.txtEdit(16).Text = \"21\"\n");
}

TEST(UserCommands, KeyCodesGoToTheActiveScreen) {
    EXPECT_EQ(runScript("toolbar Calculator\nkeyup 49\nkeyup 98\nget frmHexCalculator.CurrentCell.Text\nget "
                        "frmHexCalculator.Display.Text\nclose frmHexCalculator\nkeyup 49\n"),
              "frmHexCalculator.CurrentCell.Text = \"12\"\nfrmHexCalculator.Display.Text = \"12\"\n[refused] none\n");
}

TEST(UserCommands, PicksARowByItsNumber) {
    ScriptRunner program;
    program.run("answer Yes\nmenu mnuFileNew\nclick frmMain.Command4\nfocus frmCEA_EXT.txtEdit(3)\n");
    EXPECT_EQ(program.run("pick frmCEA_EXT.NativeCBox 3\nget frmCEA_EXT.NativeCBox.Value\nget "
                          "frmCEA_EXT.txtEdit(3).Text\npick frmCEA_EXT.NativeCBox 16\n"),
              "frmCEA_EXT.NativeCBox.Value = 3\nfrmCEA_EXT.txtEdit(3).Text = \"03\"\n"
              "4: 'frmCEA_EXT.NativeCBox' has no row 16\n");
}

TEST(UserCommands, ClosingTheExtensionScreenKeepsItsCells) {
    ScriptRunner program;
    EXPECT_EQ(program.run("answer Yes\nmenu mnuFileNew\nclick frmMain.Command4\nwindows\npoke frmCEA_EXT.txtEdit(5) "
                          "\"77\"\nclose frmCEA_EXT\nwindows\nfocused\nget frmCEA_EXT.txtEdit(5).Text\n"),
              "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> Yes\nwindows = frmCEA_EXT frmEDID\n"
              "windows = frmEDID\nfocus = frmEDID.txtEdit(0)\nfrmCEA_EXT.txtEdit(5).Text = \"77\"\n");
}

TEST(UserCommands, UnknownToolBarKeysDoNothing) {
    EXPECT_EQ(runScript("toolbar Frob\nwindows\ntoolbar \"Print Preview\"\nwindows\n"),
              "windows = none\nwindows = none\n");
}

} // namespace
} // namespace wb::script
