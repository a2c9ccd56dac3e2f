#include "script/driver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "script/script_runner.h"
#include "support/temporary_folder.h"

namespace wb::script {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* newImage = "menu mnuFileNew\n";
constexpr const char* newImageTrace = "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\n";

TEST(Driver, StartsTheProgramBeforeTheFirstCommand) {
    ScriptRunner runner;
    runner.run("# nothing yet\n\n");
    EXPECT_EQ(runner.workbench().loaded(ScreenId::Main), nullptr);
    EXPECT_EQ(runner.run("windows\n"), "windows = none\n");
    ASSERT_NE(runner.workbench().loaded(ScreenId::Main), nullptr);
    EXPECT_TRUE(runner.workbench().loaded(ScreenId::Main)->shown());
}

TEST(Driver, StartsOnce) {
    EXPECT_EQ(runScript("start\nlet RegBaseLocation \"kept\"\nstart\nvar RegBaseLocation\n"),
              "RegBaseLocation = \"kept\"\n");
}

TEST(Driver, TellsTheLineOfAnError) {
    EXPECT_EQ(runScript("windows\r\n# comment\r\n\r\nfrob\r\nwindows\r\n"),
              "windows = none\n4: unknown command 'frob'\n");
    EXPECT_EQ(runScript("type \"x"), "1: a quoted argument without its closing quote\n");
}

TEST(Driver, TellsWrongArguments) {
    struct Case {
        const char* line;
        const char* message;
    };
    for (const Case& c :
         {Case{"start now", "wrong arguments, should be: start"},
          Case{"click", "wrong arguments, should be: click S.C(i)"},
          Case{"pick frmCEA_EXT.TagCBox", "wrong arguments, should be: pick S.C ROW"},
          Case{"type a b", "wrong arguments, should be: type \"TEXT\""},
          Case{"answer", "wrong arguments, should be: answer A..."},
          Case{"click frmEDID", "'frmEDID' does not name a control of a screen"},
          Case{"click frmEDID.txtEdit(1).Text", "'frmEDID.txtEdit(1).Text' does not name a control of a screen"},
          Case{"click frmFOO.txtEdit(1)", "unknown screen 'frmFOO'"},
          Case{"click frmEDID.txtEdit", "unknown control 'frmEDID.txtEdit'"},
          Case{"click frmEDID.txtEdit(128)", "unknown control 'frmEDID.txtEdit(128)'"},
          Case{"click frmEDID.txtBrand(0)", "unknown control 'frmEDID.txtBrand(0)'"},
          Case{"click frmedid.txtBrand", "unknown screen 'frmedid'"},
          Case{"click frmEDID.txtEdit(x)", "malformed index in 'frmEDID.txtEdit(x)'"},
          Case{"click frmEDID.txtEdit(-1)", "malformed index in 'frmEDID.txtEdit(-1)'"},
          Case{"click frmEDID.txtEdit(1", "malformed index in 'frmEDID.txtEdit(1'"},
          Case{"click frmEDID.", "malformed name 'frmEDID.'"},
          Case{"dblclick frmEDID.frob", "unknown control 'frmEDID.frob'"},
          Case{"focus frmEDID.frob", "unknown control 'frmEDID.frob'"},
          Case{"menu frob", "unknown control 'frmMain.frob'"},
          Case{"menu Command1", "'Command1' is no menu entry"},
          Case{"keyup x", "'x' is no number"},
          Case{"pick frmCEA_EXT.TagCBox x", "'x' is no number"},
          Case{"pick frmCEA_EXT.VerRev 1", "'frmCEA_EXT.VerRev' has no rows"},
          Case{"close frob", "unknown screen 'frob'"},
          Case{"poke frmEDID.txtEdit(128) x", "unknown control 'frmEDID.txtEdit(128)'"},
          Case{"get frmEDID.txtBrand.Frob", "unknown property 'Frob'"},
          Case{"get frmEDID.txtBrand.Text(1)", "unknown property 'Text'"},
          Case{"get frmEDID.txtBrand", "unknown property 'txtBrand'"},
          Case{"get frmEDID", "'frmEDID' does not name a property"},
          Case{"get frmCEA_EXT.TagCBox.List(99)", "'frmCEA_EXT.TagCBox' has no row 99"},
          Case{"var Frob", "unknown variable 'Frob'"},
          Case{"var frmEDID.Frob", "unknown variable 'frmEDID.Frob'"},
          Case{"var a.b.c", "a variable has at most two names"},
          Case{"var EDIDCells(256)", "there is no 'EDIDCells(256)'"},
          Case{"var StandardTimingText(0)", "there is no 'StandardTimingText(0)'"},
          Case{"var EDIDModified(0)", "there is no 'EDIDModified(0)'"},
          Case{"let EDIDCells x", "only the elements of an array can be set"},
          Case{"let EDIDModified x", "'x' is no 16-bit number"},
          Case{"let EDIDModified 32768", "'32768' is no 16-bit number"},
          Case{"cells frmMain", "screen 'frmMain' has no cells"},
          Case{"cells frob", "unknown screen 'frob'"},
          Case{"call Frob", "unknown helper 'Frob'"},
          Case{"call PadLeft a", "'PadLeft' takes another number of arguments: 2"},
          Case{"call PadLeft a b", "'b' is no number"},
          Case{"run Frob", "unknown procedure 'Frob'"},
          Case{"run frmCEA_EXT.Frob", "unknown procedure 'frmCEA_EXT.Frob'"},
          Case{"run BuildBitRate", "unknown procedure 'BuildBitRate'"},
          Case{"answer Maybe", "unknown answer 'Maybe'"},
          Case{"printer maybe", "a printer is 'ok' or 'cancel', not 'maybe'"},
          Case{"clock noon", "'noon' is no date and time like \"2000-01-31 23:59:59\""},
          Case{"osversion five", "'five' is no version number"},
          Case{"reader 0g", "'0g' is not hexadecimal"},
          Case{"reader 00F", "an odd number of hexadecimal digits"},
          Case{"registry missing.reg", "missing.reg: No such file or directory"}}) {
        EXPECT_EQ(runScript(c.line), "1: " + std::string(c.message) + '\n') << c.line;
    }
}

TEST(Driver, PrintsBoxesAndDialogsAsTheyHappen) {
    EXPECT_EQ(runScript("answer No\nmenu mnuFileNew\nfocused\nanswer Yes No\nmenu mnuFileNew\n"
                        "answer Cancel Yes\nlet EDIDModified -1\nmenu mnuFileNew\n"),
              std::string(newImageTrace) +
                  "focus = frmEDID.txtEdit(0)\n"
                  "[box] \"Are You Sure?\" title=\"New EDID Data File\" YesNo -> Yes\n"
                  "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\n"
                  // Cancel is not offered: it is used up and counts as none, which is No.
                  "[box] \"Save Changes?\" YesNo -> No\n"
                  "[box] \"Are You Sure?\" title=\"New EDID Data File\" YesNo -> Yes\n"
                  "[box] \"CEA 861 EDID Timing Extension?\" YesNo -> No\n");
}

TEST(Driver, OnlyABareCancelCancelsADialog) {
    EXPECT_EQ(runScript("dialog cancel\nmenu mnuFileOpen\ndialog \"cancel\"\nmenu mnuFileOpen\n"),
              "[dialog] Open filter=\"EDID/DDC Data Files (*.DAT)|*.DAT\" -> cancel\n"
              "[dialog] Open filter=\"EDID/DDC Data Files (*.DAT)|*.DAT\" -> \"cancel\"\n"
              "[box] \"File not found\" OK -> OK\n");
}

TEST(Driver, PrintsWhatWasPrinted) {
    ScriptRunner runner;
    runner.run(newImage);
    EXPECT_EQ(runner.run("printed\n"), "");
    EXPECT_EQ(runner.run("printer cancel\nmenu mnuFilePrint\nmenu mnuFilePageSetup\n"),
              "[dialog] Print -> cancel\n[dialog] PageSetup -> cancel\n");
    const std::string trace = runner.run("printer ok\nmenu mnuFilePrint\n");
    EXPECT_EQ(trace.substr(0, trace.find('[', 1)), "[dialog] Print -> ok\n");
    runner.run("printer ok\nmenu mnuFilePrint\n");
    const std::string printed = runner.run("printed\n");
    const std::string head = "--- printed\n\n\n\n                            Time:  00:00:00\n";
    EXPECT_EQ(printed.substr(0, head.size()), head);
    const std::size_t second = printed.find(head, 1);
    ASSERT_NE(second, std::string::npos) << "one block a text";
    EXPECT_EQ(printed.substr(second - 9, 9), "\n--- end\n");
    EXPECT_EQ(printed.substr(printed.size() - 9), "\n--- end\n");
}

TEST(Driver, TheReportIsShownWithoutTouchingItsScreen) {
    ScriptRunner runner;
    EXPECT_EQ(runner.run("report\n"), "--- report\n--- end\n");
    EXPECT_EQ(runner.workbench().loaded(ScreenId::Document), nullptr);
    runner.run(std::string(newImage) + "click frmMain.Command1\n");
    const std::string report = runner.run("report\n");
    const std::string head = "--- report\n\n\n\n                            Time:  00:00:00\n";
    EXPECT_EQ(report.substr(0, head.size()), head);
    EXPECT_EQ(report.substr(report.size() - 9), "\n--- end\n");
    EXPECT_THAT(report, Not(HasSubstr("\r")));
}

TEST(Driver, TellsClockSettingsAndShell) {
    ScriptRunner runner;
    EXPECT_EQ(runner.run("settings\n"), "");
    EXPECT_EQ(runner.run("clock \"2004-02-29 23:59:55\"\nclick frmMain.Command5\n"),
              "[shell] \"devcon.exe\" \"remove monitor\\\\\" folder=\"c:/QOR/EDID/EDIDv314d\"\n"
              "[wait] 3.0\n"
              "[shell] \"devcon.exe\" \"rescan\" folder=\"c:/QOR/EDID/EDIDv314d\"\n"
              "[box] \"These processes take several seconds.\" title=\"Scan Hardware & Read EDID\" OK -> OK\n"
              // The clock tells seconds since midnight: a wait that meets it ends ten seconds into the new day.
              "[wait] 12.0\n"
              "[box] \"Unable to locate EDID Data. \\r\\n\\r\\nUsing the Control Panel, please make sure that a "
              "Monitor has been Detected by Windows 2000/XP\" OK -> OK\n");
    EXPECT_EQ(runner.run("menu mnuFileExit\nsettings\n"),
              "MainHeight = \"6500\"\nMainLeft = \"1000\"\nMainTop = \"1000\"\nMainWidth = \"6500\"\n");
}

TEST(Driver, TheReaderAnswersWhereTheVersionIsNot5) {
    std::string hex = "00FFFFFFFFFFFF00";
    for (int i = 0; i < 120; ++i) {
        hex += i == 118 ? " 00" : " 4c"; // no extension
    }
    const std::string script = "reader \"" + hex + "\"\ntoolbar GetEDID\nget frmEDID.txtEdit(8).Text\n";
    const std::string trace = runScript("osversion 6\n" + script);
    const std::string end = "frmEDID.txtEdit(8).Text = \"4C\"\n";
    EXPECT_TRUE(trace.ends_with(end)) << trace;
    EXPECT_TRUE(runScript(script).starts_with("[box] \"Unable to locate EDID Data. "));
}

TEST(Driver, TheRegistryComesFromAnExport) {
    const test::TemporaryFolder folder;
    std::string content =
        "Windows Registry Editor Version 5.00\n\n"
        "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\Display\\HLV1\\5&1\\Control]\n"
        "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\Display\\HLV1\\5&1\\Device Parameters]\n"
        "\"EDID\"=hex:00,ff,ff,ff,ff,ff,ff,00,\\\n  22,f0";
    for (int i = 10; i < 128; ++i) {
        content += ",00";
    }
    const std::string path = folder.write("monitors.reg", content);
    EXPECT_EQ(runScript("registry \"" + path +
                        "\"\ntoolbar GetEDID\nget frmEDID.txtEdit(9).Text\nvar "
                        "IDManufacturerName\n"),
              "frmEDID.txtEdit(9).Text = \"F0\"\nIDManufacturerName = \"HWP\"\n");
    // One export takes the place of the other.
    const std::string empty = folder.write("empty.reg", "REGEDIT4\n");
    EXPECT_TRUE(runScript("registry \"" + path + "\"\nregistry \"" + empty + "\"\ntoolbar GetEDID\n")
                    .starts_with("[box] \"Unable to locate EDID Data. "));
}

} // namespace
} // namespace wb::script
