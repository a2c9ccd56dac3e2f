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

TEST(Startup, ASettingBeyondSinglePrecisionEndsTheLoadStep) {
    test::Program program(false);
    program.platform.settings = {{"MainTop", "1E39"}};
    Main(program.workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Overflow"});
    EXPECT_TRUE(program.workbench.frmMain().shown()) << "the program comes up all the same";
}

TEST(Startup, OfSeveralBadSettingsTheFirstIsTold) {
    const auto boxesOf = [](std::map<std::string, std::string> settings) {
        test::Program program(false);
        program.platform.settings = std::move(settings);
        Main(program.workbench);
        return program.takeBoxes();
    };
    EXPECT_EQ(boxesOf({{"MainLeft", "left"}, {"MainTop", "1E39"}}), Lines{"Type mismatch"});
    EXPECT_EQ(boxesOf({{"MainLeft", "left"}, {"MainHeight", "1E39"}}), Lines{"Type mismatch"});
    EXPECT_EQ(boxesOf({{"MainTop", "1E39"}, {"MainWidth", "wide"}}), Lines{"Overflow"});
    EXPECT_EQ(boxesOf({{"MainWidth", "1E39"}, {"MainHeight", "high"}}), Lines{"Overflow"});
}

/// Tells what the program asks of the event loop, and lets the splash timer fire only after some rounds.
class RecordingEvents : public platform::EventLoop {
public:
    explicit RecordingEvents(const Workbench*& workbench) : workbench_(workbench) {}

    void processPending() override {
        std::string what = "events";
        if (workbench_->loaded(ScreenId::Splash) != nullptr) {
            what += workbench_->loaded(ScreenId::Splash)->shown() ? " splash" : "";
            what += workbench_->loaded(ScreenId::Main)->shown() ? " frame" : "";
        }
        calls.push_back(what);
        if (fire_ && ++rounds_ == 2) {
            std::exchange(fire_, nullptr)();
        }
    }
    void setPointer(platform::Pointer pointer) override {
        calls.emplace_back(pointer == platform::Pointer::Hourglass ? "hourglass" : "normal");
    }
    void startTimer(int milliseconds, std::function<void()> fire) override {
        calls.push_back("timer " + std::to_string(milliseconds));
        fire_ = std::move(fire);
    }
    Lines calls;

private:
    const Workbench*& workbench_;
    std::function<void()> fire_;
    int rounds_ = 0;
};

TEST(Startup, WaitsBehindTheSplashForItsTimer) {
    platform::headless::HeadlessPlatform headless;
    const Workbench* started = nullptr;
    RecordingEvents events(started);
    const platform::Services& inner = headless.services();
    const platform::Services services{
        inner.messageBoxes, inner.dialogs, inner.printer, inner.settings, inner.registry, inner.operatingSystem,
        inner.edidReader,   inner.shell,   inner.clock,   events,         inner.arranger, ""};
    Workbench workbench(services, wiring());
    started = &workbench;
    Main(workbench);
    EXPECT_EQ(events.calls,
              (Lines{"hourglass", "events", "timer 2000", "events splash", "events splash", "normal", "events"}));
    EXPECT_EQ(workbench.SplashShowing, flagFalse);
}

class Activation : public testing::Test {
protected:
    void activate(std::string location, Flag first) {
        program.workbench.RegBaseLocation = std::move(location);
        program.workbench.frmMain().FirstActivation = first;
        frmMain_Activate(program.workbench);
        EXPECT_EQ(program.workbench.frmMain().FirstActivation, flagFalse);
    }
    bool asks() { return program.workbench.loaded(ScreenId::EdidReg) != nullptr; }

    test::Program program;
};

TEST_F(Activation, AsksForAnEmptyBaseLocationOnce) {
    EXPECT_EQ(program.workbench.frmMain().FirstActivation, flagFalse) << "the start was the first";
    activate("", flagFalse);
    EXPECT_FALSE(asks());
    activate("ELSEWHERE", flagTrue);
    EXPECT_FALSE(asks());
    activate("", flagTrue);
    EXPECT_EQ(program.workbench.windows.modal(), &program.workbench.frmEDIDREG());
    EXPECT_EQ(program.workbench.frmEDIDREG().Text1.text(), "SYSTEM\\CurrentControlSet\\Enum\\Display");
}

TEST_F(Activation, AsksOnRegistrySystemsOnly) {
    program.platform.setMajorVersion(4);
    activate("", flagTrue);
    EXPECT_FALSE(asks());
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

    test::Program fraction;
    fraction.workbench.frmMain().setPosition(12.1F, -15, 3, 4);
    input::choose(fraction.workbench.frmMain().mnuFileExit);
    EXPECT_EQ(fraction.platform.settings["MainLeft"], "12.1") << "as many digits as a single-precision number has";
    EXPECT_EQ(fraction.platform.settings["MainTop"], "-15");

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

TEST_F(End, HiddenChildrenUnloadTooUnlessOneBeforeThemRefuses) {
    Workbench& workbench = program.workbench;
    workbench.frmCEA_EXT();
    workbench.EDIDModified = flagTrue; // its load step has cleared it
    program.platform.queueAnswer(platform::Answer::Yes);
    input::close(workbench.frmMain());
    EXPECT_NE(workbench.loaded(ScreenId::CeaExt), nullptr) << "it was created after the one that refused";
    input::close(workbench.frmMain());
    EXPECT_EQ(program.takeBoxes(), (Lines{"Save Changes?", "Save Changes?"})) << "one screen asks";
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_EQ(workbench.loaded(ScreenId::Main), nullptr);
}

TEST_F(End, ChildrenUnloadInTheOrderOfTheirCreation) {
    Workbench& workbench = program.workbench;
    input::choose(workbench.frmMain().HexCalculator);
    input::click(workbench.frmMain().Command1);
    input::activate(workbench.frmHexCalculator());
    program.platform.queueAnswer(platform::Answer::Yes);
    input::close(workbench.frmMain());
    EXPECT_NE(workbench.loaded(ScreenId::HexCalculator), nullptr);
    EXPECT_NE(workbench.loaded(ScreenId::Document), nullptr);
    program.platform.queueAnswer(platform::Answer::No);
    input::close(workbench.frmEDID());
    program.workbench.frmEDID(); // created anew: now the last
    program.workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(platform::Answer::Yes);
    input::close(workbench.frmMain());
    EXPECT_EQ(workbench.loaded(ScreenId::HexCalculator), nullptr);
    EXPECT_EQ(workbench.loaded(ScreenId::Document), nullptr);
    EXPECT_NE(workbench.loaded(ScreenId::Edid), nullptr);
    EXPECT_FALSE(workbench.ended);
}

TEST_F(End, NoLosesTheEdits) {
    input::close(program.workbench.frmMain());
    EXPECT_TRUE(program.workbench.ended);
    EXPECT_EQ(program.platform.settings["MainTop"], "1000");
}

} // namespace
} // namespace wb::shell
