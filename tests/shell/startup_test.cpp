#include "shell/startup.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::shell {
namespace {

using Lines = std::vector<std::string>;

TEST(Startup, ShowsTheFrameAndNothingElse) {
    test::Program program;
    EXPECT_TRUE(program.workbench.frmMain().shown());
    EXPECT_EQ(program.workbench.loaded(ScreenId::Splash), nullptr);
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
    EXPECT_EQ(program.workbench.focus.current(), nullptr);
    EXPECT_EQ(program.workbench.frmMain().caption(), "EDID / DDC Field Workbench ");
    EXPECT_EQ(program.workbench.RegBaseLocation, "SYSTEM\\CurrentControlSet\\Enum\\Display");
    EXPECT_TRUE(program.lines.empty());
}

TEST(Startup, TheFrameStandsWhereItWasLeft) {
    test::Program program(false);
    program.platform.settings = {{"MainLeft", "12.5"}, {"MainHeight", "7000"}};
    Main(program.workbench);
    const FrmMain& frame = program.workbench.frmMain();
    EXPECT_EQ(frame.Left, 12.5F);
    EXPECT_EQ(frame.Top, 1000.0F);
    EXPECT_EQ(frame.Width, 6500.0F);
    EXPECT_EQ(frame.Height, 7000.0F);
}

TEST(Startup, ASettingThatIsNoNumberEndsTheLoadStep) {
    test::Program program(false);
    program.platform.settings = {{"MainLeft", "left"}};
    Main(program.workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Type mismatch"});
    EXPECT_EQ(program.workbench.RegBaseLocation, "");
}

TEST(Startup, ASavedBaseLocationIsNotReadBack) {
    test::Program program(false);
    program.platform.settings = {{"Windows2000RegBaseLocation", "ELSEWHERE"}};
    Main(program.workbench);
    EXPECT_EQ(program.workbench.RegBaseLocation, "SYSTEM\\CurrentControlSet\\Enum\\Display");
}

TEST(Startup, ModifySwitchesSeekAndGoesToTheFirstCell) {
    test::Program program;
    FrmMain& frame = program.workbench.frmMain();
    EXPECT_EQ(frame.Command3.caption(), "Auto Cell Seek (Off)");
    EXPECT_FALSE(input::click(frame.Command3));
    EXPECT_FALSE(input::click(frame.Command4));
    input::click(frame.Command2);
    EXPECT_EQ(frame.Command2.caption(), "Modify EDID (ON)");
    EXPECT_EQ(program.workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(program.workbench.frmEDID().shown());
    EXPECT_EQ(program.workbench.EDIDLoaded, flagTrue) << "the focus has touched the screen";
    input::click(frame.Command3);
    EXPECT_EQ(frame.Command3.caption(), "Auto Cell Seek (ON)");
    input::click(frame.Command3);
    EXPECT_EQ(frame.Command3.caption(), "Auto Cell Seek (OFF)");
    input::click(frame.Command2);
    EXPECT_EQ(frame.Command2.caption(), "Modify EDID (OFF)");
    EXPECT_FALSE(frame.Command3.enabled());
}

TEST(Startup, ExitSavesThePositionUnlessMinimised) {
    test::Program program;
    program.workbench.frmMain().setPosition(1.5F, 2, 3, 4);
    input::choose(program.workbench.frmMain().mnuFileExit);
    EXPECT_TRUE(program.workbench.ended);
    EXPECT_EQ(program.platform.settings["MainLeft"], "1.5");
    EXPECT_EQ(program.platform.settings["MainHeight"], "4");

    test::Program minimised;
    minimised.workbench.frmMain().minimised = true;
    input::choose(minimised.workbench.frmMain().mnuFileExit);
    EXPECT_TRUE(minimised.platform.settings.empty());
}

class End : public testing::Test {
protected:
    End() {
        program.platform.queueAnswer(platform::Answer::No);
        input::choose(program.workbench.frmMain().mnuFileNew);
        program.workbench.EDIDModified = flagTrue;
        program.takeBoxes();
    }

    test::Program program;
};

TEST_F(End, TheCloseButtonLeavesTheFrameOpenWhenAChildRefuses) {
    program.platform.queueAnswer(platform::Answer::Yes); // save, and then no name
    input::close(program.workbench.frmMain());
    EXPECT_FALSE(program.workbench.ended);
    EXPECT_EQ(program.takeBoxes(), Lines{"Save Changes?"});
    EXPECT_EQ(program.workbench.EDIDLoaded, flagFalse) << "false in every case";
    EXPECT_TRUE(program.platform.settings.empty());
}

TEST_F(End, ExitEndsTheProgramAllTheSame) {
    program.platform.queueAnswer(platform::Answer::Yes);
    input::choose(program.workbench.frmMain().mnuFileExit);
    EXPECT_TRUE(program.workbench.ended);
}

TEST_F(End, NoLosesTheEdits) {
    input::close(program.workbench.frmMain());
    EXPECT_TRUE(program.workbench.ended);
    EXPECT_EQ(program.platform.settings["MainTop"], "1000");
}

} // namespace
} // namespace wb::shell
