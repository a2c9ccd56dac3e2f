#include "report/standard_timings.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

struct PairCase {
    int size, rate;
    std::string_view text;
};

class StandardTimingPair : public testing::TestWithParam<PairCase> {};

TEST_P(StandardTimingPair, HasItsWords) {
    EXPECT_EQ(standardTimingText(GetParam().size, GetParam().rate), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StandardTimingPair,
    testing::Values(PairCase{0xD1, 0xC0, "1920 X 1080 @60Hz"}, PairCase{0x81, 0x00, "1280 X 800 @60Hz"},
                    PairCase{0x81, 0x80, "1280 X 1024 @60Hz"}, PairCase{0x31, 0x40, "640 X 480 @60Hz"},
                    PairCase{0x00, 0x00, "248 X 155 @60Hz"}, PairCase{0x01, 0x01, "Not Used"},
                    PairCase{0x01, 0xFF, "Not Used"}, PairCase{0x70, 0xC0, "1144 X 644 @60Hz"}, // 643.5, to even
                    PairCase{0x6C, 0xC5, "1112 X 626 @65Hz"},                                   // 625.5, to even
                    PairCase{0x52, 0xC0, "904 X 508 @60Hz"},                                    // 508.5, to even
                    PairCase{0xFF, 0x3F, "2288 X 1430 @123Hz"}));

using StandardTimings = Block0;

TEST_F(StandardTimings, EightPairsAreShown) {
    set(38, {"81", "80", "01", "01", "D1", "C0"});
    ConvertStandardTimings(workbench);
    ASSERT_EQ(workbench.StandardTimingText.size(), 8);
    const Lines expected = {"1280 X 1024 @60Hz", "Not Used",        "1920 X 1080 @60Hz", "248 X 155 @60Hz",
                            "248 X 155 @60Hz",   "248 X 155 @60Hz", "248 X 155 @60Hz",   "248 X 155 @60Hz"};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(workbench.StandardTimingText(i), expected[static_cast<std::size_t>(i)]);
        EXPECT_EQ(screen.STOpt(i).caption(), expected[static_cast<std::size_t>(i)]);
    }
}

TEST_F(StandardTimings, TheAspectFollowsTheCellOfTheBlockBase) {
    set(38, {"81", "80"});
    const std::pair<std::string_view, int> rows[] = {{"3F", 0}, {"40", 1}, {"80", 2}, {"FF", 3}};
    screen.CurrentBlockBase = 108;
    for (const auto& [cell, option] : rows) {
        set(108, {cell});
        ConvertStandardTimings(workbench);
        EXPECT_EQ(screen.STAOptb.firstSelected(), option);
    }
    screen.CurrentBlockBase = 39;
    ConvertStandardTimings(workbench);
    EXPECT_EQ(screen.STAOptb.firstSelected(), 2);
}

TEST_F(StandardTimings, AFailureKeepsTheTextsBeforeIt) {
    ConvertStandardTimings(workbench);
    set(38, {"81", "80", "81", "ZZ"});
    ConvertStandardTimings(workbench);
    EXPECT_EQ(boxes(), unreadable());
    ASSERT_EQ(workbench.StandardTimingText.size(), 8);
    EXPECT_EQ(workbench.StandardTimingText(0), "1280 X 1024 @60Hz");
    EXPECT_EQ(workbench.StandardTimingText(1), "");
    EXPECT_EQ(screen.STOpt(1).caption(), "");
    EXPECT_EQ(screen.STOpt(7).caption(), "");
}

class StandardTimingSeek : public Block0 {
protected:
    StandardTimingSeek() {
        workbench.windows.show(screen);
        workbench.ModifyEDIDOn = flagTrue;
        workbench.AutoCellSeekOn = flagTrue;
        for (int i = 0; i < screen.panelCount(); ++i) {
            screen.Hints(i).setEnabled(true);
        }
        screen.Hints(8).setVisible(true);
    }
    std::string focused() { return workbench.focus.current()->fullName(); }
};

TEST_F(StandardTimingSeek, GoesToTheInputBox) {
    ConvertStandardTimings(workbench);
    EXPECT_EQ(focused(), "frmEDID.STAInput");
}

TEST_F(StandardTimingSeek, NeedsTheSwitchesAndThePanel) {
    workbench.AutoCellSeekOn = flagFalse;
    ConvertStandardTimings(workbench);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    workbench.AutoCellSeekOn = flagTrue;
    workbench.ModifyEDIDOn = flagFalse;
    ConvertStandardTimings(workbench);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    workbench.ModifyEDIDOn = flagTrue;
    screen.Hints(8).setVisible(false);
    ConvertStandardTimings(workbench);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(StandardTimingSeek, FailsAtAnInputBoxThatIsShownButDisabled) {
    screen.Hints(8).setEnabled(false);
    ConvertStandardTimings(workbench);
    EXPECT_EQ(boxes(), Lines{"Invalid procedure call or argument"});
    EXPECT_EQ(screen.InFocusDispatch, flagFalse) << "the seek comes last";
}

} // namespace
} // namespace wb::report
