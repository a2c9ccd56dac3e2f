// The screen of block 0 as it comes into being: names, captions, containers and first states.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "core/screen_rows.h"
#include "core/screens/frm_edid.h"
#include "support/program.h"

namespace wb {
namespace {

const Captions thirteenTimings = {"Pixel Clock", "Active Time", "Blanking Time", "Active Time", "Blanking Time",
                                  "Sync Offset", "Pulse Width", "Sync Offset",   "Pulse Width", "Border",
                                  "Border",      "Image Size",  "Image Size"};
const Captions aspects = {"16:10 Aspect Ratio", "4:3 Aspect Ratio", "5:4 Aspect Ratio", "16:9 Aspect Ratio"};
const Captions adjusts = {"Adjust Horizontal ", "Adjust Frequency"};
constexpr int single = Control::noIndex;

const ScreenRow rows[] = {
    {"Label1", 0, {"Brand", "Version", "Model", "Revision"}, ""},
    {"Label2",
     0,
     {"0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",   "9",   "0",  "10",
      "20", "30", "40", "50", "60", "70", "80", "90", "100", "110", "120"},
     ""},
    {"DTHelp", single, {"Double Click on the Detailed Timing Frame to Reset the current spec to blank."}, ""},
    {"Hints",
     0,
     {"Header (0 - 7)", "Vendor (8-17)", "EDID Version/Revision (18-19)", "Basic Display Parameters(20-24)",
      "Chromaticity (25-34)", "Established Timing I: (35)", "Established Timing II: (36)",
      "Manufacturer's Timings: (37)", "Standard Timing (38-53)", "Detailed Timing (54-71)", "Detailed Timing (54-71)",
      "Detailed Timing (54-71)", "Ext .Standard Timing", "Extension Flag and CheckSum"},
     ""},
    {"Label3", single, {"Header Information is 8 Bytes Long ( 00-07)."}, "Hints(0)"},
    {"lbVendor",
     0,
     {"Manufacturer", "Product Code", "Serial Number", "Week Manufactured", "Year Manufactured ",
      "Complete Serial Number", ""},
     "Hints(1)"},
    {"lbEDID", 0, {"Version Number", "Revision Number", "Complete Version Number", ""}, "Hints(2)"},
    {"lbEDID", 6, {"Extended Flag", "CheckSum"}, "Hints(13)"},
    {"lbBasic", 0, {"Video Input Definition", "Feature Support"}, "Hints(3)"},
    {"VideoInput", single, {"Video Input Defination"}, "Hints(3)"},
    {"VideoMode", 0, {"Analog", "Digital"}, "VideoInput"},
    {"Analog", single, {""}, "VideoInput"},
    {"DFP", single, {""}, "VideoInput"},
    {"Signal", 0, {"0.700, 0.300", "0.714, 0.286", "1.000, 0.400", "0.700, 0.000"}, "Analog"},
    {"Sync",
     0,
     {"Serration VSync.", "Sync. On Green", "Composite Sync.", "Separate Syncs.", "Blank-to-Black Setup"},
     "Analog"},
    {"DFP_1", 1, {"DFP 1.x Compatible"}, "DFP"},
    {"Basic", 0, {"Max. Horiz. Image Size ", "Max. Vert. Image Size ", "Gamma"}, "Hints(3)"},
    {"DPMS", single, {"Power + Supported Feature"}, "Hints(3)"},
    {"FSupport",
     0,
     {"Stand-By", "Suspend", "Active-Off/Low Power", "Std Default Color Space", "Preferred Timing Mode",
      "Default GTF Supported"},
     "DPMS"},
    {"Frame3", single, {"Display Type[4:3]"}, "DPMS"},
    {"DisplayType", 0, {"Mono/Gray Scale", "R/G/B Color", "Non R/G/B Multi Clr", "Undefined"}, "Frame3"},
    {"Check1", 5, {"VSync."}, "Hints(3)"},
    {"chkChroma", 0, {"Red X", "Red Y", "Green X", "Green Y", "Blue X", "Blue Y", "White X", "White Y"}, "Hints(4)"},
    {"lbChromaChange",
     0,
     {"To Change a value listed above, click on the item and place the new value in the text below.",
      "Warning this field is used in a math calculation. Click on an option button for additional information."},
     "Hints(4)"},
    {"ET1",
     0,
     {"720 X 400 @ 70Hz", "720 X 400 @ 88Hz", "640 X 480 @ 60Hz", "640 X 480 @ 67Hz", "640 X 480 @ 72Hz",
      "640 X 480 @ 75Hz", "800 X 600 @ 56Hz", "800 X 600 @ 60Hz"},
     "Hints(5)"},
    {"ET2",
     0,
     {"800 X 600 @ 72Hz", "800 X 600 @ 75Hz", "832 X 624 @ 75Hz", "1024 X 768 @ 87Hz(I)", "1024 X 768 @ 60Hz",
      "1024 X 768 @ 70Hz", "1024 X 768 @ 75Hz", "1280 X 1024 @ 75Hz"},
     "Hints(6)"},
    {"ET3", 7, {"1152 X 870 @ 75Hz"}, "Hints(7)"},
    {"Label4", single, {"The Balance are Reserved"}, "Hints(7)"},
    {"STOpt", 0, {"", "", "", "", "", "", "", ""}, "Hints(8)"},
    {"STAOptb", 0, aspects, "Frame1"},
    {"STAOpta", 0, adjusts, "Frame4"},
    {"STAInput", single, {""}, "Frame4"},
    {"Freq", 0, {"Horizontal", "Vertical"}, "Hints(9)"},
    {"DT", 0, thirteenTimings, "Hints(9)"},
    {"DT1", single, {"Interlaced"}, "Hints(10)"},
    {"DTStereo",
     0,
     {"Seq Stereo, Rt Sync =1", "Seq Stereo, Lt Sync =1", "2-Way Rt Image", "2-Way Lt Image", "4-Way Interleave",
      "Side-By-Side", "No Stereo"},
     "frmStereo"},
    {"Frame2", single, {"Sync"}, "Hints(10)"},
    {"DTSync", 0, {"Analog Composite", "Bipolar Analog Comp.", "Digitial Composite", "Digitial Separate"}, "Frame2"},
    {"SyncSerrate", single, {"Serrate"}, "Frame2"},
    {"SyncLine", single, {""}, "Frame2"},
    {"VSyncLine", single, {""}, "Frame2"},
    {"DTa",
     0,
     {"Monitor Serial Number", "ASCII String", "Monitor Range Limits", "Monitor Name", "Color Point Data",
      "Standard Timing Data", "Currently Undefined", "Defined by Manufacturer"},
     "Hints(11)"},
    {"DTAGTF", single, {"Secondary GTF"}, "Hints(11)"},
    {"DtaOpt", 0, {"Min Vertical", "Max Vertical", "Min Horzontal", "Max Horzontal", "Max Pixel Clock"}, "DTAFrame(0)"},
    {"S_GTF", 0, {"Start Hor Freq", "C", "M", "K", "J"}, "frmS_GTF(0)"},
    {"DtaOptWhite", 0, {"White X", "White Y", "White Gamma", "White X", "White Y", "White Gamma"}, "DTAFrame(1)"},
    {"NotUsed", 0, {"Not Used", "Not Used"}, "DTAFrame(1)"},
    {"Label5", single, {"White Point #1"}, "DTAFrame(1)"},
    {"Label8", single, {"White Point #2"}, "DTAFrame(1)"},
    {"Windex", 0, {"W Index 0", "W Index 1"}, "Hints(11)"},
    {"DTaInput", single, {""}, "Hints(11)"},
    {"ExtSTOpt", 6, {"Disable this option."}, "Hints(12)"},
    {"ExtSTAOptb", 0, aspects, "ExtStaFrame"},
    {"ExtSTAOpta", 0, adjusts, "Frame6"},
    {"ExtStaInput", single, {""}, "Frame6"},
};

class EdidScreen : public testing::Test {
protected:
    test::Program program;
    const std::unique_ptr<Screen> made = program.workbench.makeScreen(ScreenId::Edid);
    FrmEdid& screen = static_cast<FrmEdid&>(*made);
};

TEST_F(EdidScreen, HasItsCaptionsAndContainers) {
    EXPECT_EQ(screen.caption(), "Edid Decoding Screen");
    for (const ScreenRow& row : rows) {
        expectRow(screen, row);
    }
}

TEST_F(EdidScreen, IsOpenAndEmptyAtFirst) {
    for (const Control* control : screen.controls()) {
        SCOPED_TRACE(control->fullName());
        EXPECT_EQ(control->ownVisible(), control->name() != "Hints");
        EXPECT_TRUE(control->enabled());
        EXPECT_FALSE(control->locked());
        EXPECT_FALSE(control->fontBold());
        EXPECT_EQ(control->text(), "");
        EXPECT_EQ(control->value(), 0);
    }
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_EQ(screen.CurrentBlockBase, 0);
    EXPECT_EQ(screen.CurrentBlockNumber, 0);
    EXPECT_EQ(screen.CurrentBlockIsDescriptor, flagFalse);
}

TEST_F(EdidScreen, ItsBoxesTakeSoMuch) {
    const std::map<std::string, int> limits = {{"VerRev", 3}, {"DTaInput", 13}};
    for (const Control* control : screen.controls()) {
        const auto limit = limits.find(std::string(control->name()));
        EXPECT_EQ(control->maxLength(), limit == limits.end() ? 0 : limit->second) << control->fullName();
    }
}

TEST_F(EdidScreen, TheIdentityCellsAreTagged) {
    const std::map<int, int> tags = {{10, 1}, {11, 1}, {12, 2}, {13, 2}, {14, 2}, {15, 2}, {16, 3}, {17, 4}, {18, 4}};
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const auto tag = tags.find(i);
        EXPECT_EQ(screen.txtEdit(i).tag(), tag == tags.end() ? 0 : tag->second) << i;
    }
}

TEST_F(EdidScreen, TheCellsEndAt127) {
    EXPECT_EQ(screen.find("txtEdit", 128), nullptr);
    EXPECT_THROW(screen.txtEdit(128), Failure);
    EXPECT_THROW(screen.DFP_1(0), Failure);
    EXPECT_THROW(screen.ET3(0), Failure);
}

TEST_F(EdidScreen, ItsLoadFillsTheCells) {
    Workbench& workbench = program.workbench;
    workbench.EDIDModified = flagTrue;
    workbench.EDIDRedecodeNeeded = flagTrue;
    ASSERT_EQ(workbench.EDIDLoaded, flagFalse);
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        EXPECT_EQ(program.cell(i), "00") << i;
    }
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagFalse);
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
    EXPECT_EQ(workbench.DetailedBlockText.size(), 4);
    EXPECT_EQ(workbench.StandardTimingText.size(), 0);
    EXPECT_FALSE(workbench.frmEDID().shown());
}

} // namespace
} // namespace wb
