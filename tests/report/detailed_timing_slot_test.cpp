// The rules of a slot in the extension block, on the shared decoder of detailed timings.

#include <ostream>

#include "report/detailed_timing.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

constexpr DetailedTimingRules slotRules = {
    .onFailure = Statements::OnFailure::NextStatement,
    .texts = &SharedVariables::ExtDetailedBlockText,
    .emptiedTexts = &SharedVariables::ExtDetailedBlockNote,
    .convertDescriptor =
        [](Workbench& workbench) {
            FrmCeaExt& screen = workbench.frmCEA_EXT();
            workbench.ExtDetailedBlockText(screen.CurrentBlockNumber) = "descriptor";
        },
    .recalculateChecksum = [](Workbench& workbench) { workbench.frmCEA_EXT().txtEdit(127).setText("CS"); },
    .obeysDescriptorFlag = false,
    .titleTellsScan = true,
    .testsStereoDigit = true,
};

class Slot : public testing::Test {
protected:
    Slot() {
        workbench.ExtDetailedBlockText.create(7);
        workbench.ExtDetailedBlockNote.create(13);
        select(0, 40);
        // The load step has decoded the empty block.
        for (int i = 0; i <= 6; ++i) {
            screen.DTStereo(i).changeValue(0);
        }
        boxes();
    }
    void select(int number, int base) {
        screen.CurrentBlockNumber = static_cast<std::int16_t>(number);
        screen.CurrentBlockBase = static_cast<std::int16_t>(base);
    }
    void set(int first, std::initializer_list<std::string_view> texts) {
        test::Program::setCells(screen, first, texts);
    }
    /// 1920 x 540 at 74.25 MHz, blanking 280 and 22, in the slot at cell 40.
    void decode(std::string_view flags) {
        set(40, {"01", "1D", "80", "18", "71", "1C", "16", "20", "58", "2C", "25", "00", "09", "25", "21", "00", "00",
                 flags});
        decodeDetailedTiming(screen, slotRules);
    }
    std::string report() { return workbench.ExtDetailedBlockText(0); }
    std::string reportLine(int number) {
        std::string rest = report();
        for (int i = 1; i < number; ++i) {
            rest.erase(0, rest.find("\r\n") + 2);
        }
        return rest.substr(0, rest.find("\r\n"));
    }
    Lines boxes() { return program.takeBoxes(); }

    test::Program program;
    Workbench& workbench = program.workbench;
    FrmCeaExt& screen = workbench.frmCEA_EXT();
};

constexpr const char* invalidCall = "Invalid procedure call or argument";
constexpr const char* missingControl = "Control array element does not exist";

TEST_F(Slot, AnInterlacedTitleTellsTheWholeFrame) {
    decode("9E");
    EXPECT_EQ(reportLine(1), "                  1920x1080i  Pixel Clock: 74.25 MHz");
    EXPECT_EQ(reportLine(4), "         Refreshed Mode: Interlaced        Normal Display - No Stereo");
    EXPECT_EQ(reportLine(12), "         Active Time: 540 lines            Blanking Time: 22 lines");
    EXPECT_EQ(screen.DT(3).caption(), "Active Time - 540 lines");
    EXPECT_EQ(screen.DT1.value(), 1);
    // 2200 pixels are 29.63 microseconds, of 562 lines.
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 33.75 KHz");
    EXPECT_EQ(screen.Freq(1).caption(), "Vertical - 60.05 Hz");
}

TEST_F(Slot, AProgressiveTitleTellsTheStoredHeight) {
    decode("1E");
    // 33 characters: 18.5 blanks, to the even neighbour.
    EXPECT_EQ(reportLine(1), "                  1920x540p  Pixel Clock: 74.25 MHz");
    EXPECT_EQ(reportLine(16), "Digital Separate, Horizontal Polarity (+) Vertical Polarity (+)");
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_EQ(screen.txtEdit(127).text(), "CS");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Slot, TheSecondTextOfTheSlotIsEmptied) {
    workbench.ExtDetailedBlockNote(0) = "a";
    workbench.ExtDetailedBlockNote(1) = "b";
    decode("1E");
    EXPECT_EQ(workbench.ExtDetailedBlockNote(0), "");
    EXPECT_EQ(workbench.ExtDetailedBlockNote(1), "b");
}

TEST_F(Slot, AZeroSlotIsHandedOver) {
    workbench.ExtDetailedBlockNote(0) = "a";
    set(40, {"00", "00", "00"});
    decodeDetailedTiming(screen, slotRules);
    EXPECT_EQ(report(), "descriptor");
    EXPECT_EQ(workbench.ExtDetailedBlockNote(0), "a");
    EXPECT_NE(screen.txtEdit(127).text(), "CS");
}

TEST_F(Slot, OneOfThreeCellsMakesATiming) {
    const std::initializer_list<std::string_view> heads[] = {
        {"01", "00", "00"}, {"00", "01", "00"}, {"00", "00", "01"}};
    for (const auto& head : heads) {
        set(40, head);
        workbench.ExtDetailedBlockText(0) = "old";
        decodeDetailedTiming(screen, slotRules);
        EXPECT_NE(report(), "old");
        EXPECT_NE(report(), "descriptor");
    }
}

TEST_F(Slot, TheInterlaceBitAloneCounts) {
    decode("81");
    EXPECT_EQ(screen.DT1.value(), 1);
    EXPECT_EQ(reportLine(4), "         Refreshed Mode: Interlaced        Normal Display - No Stereo");
    decode("7F");
    EXPECT_EQ(screen.DT1.value(), 0);
    EXPECT_EQ(reportLine(4), "         Refreshed Mode: Non-Interlaced    Stereo");
}

TEST_F(Slot, SeparateSyncAloneHasTwoLinesAndNoSerration) {
    for (const auto& [flags, separate] :
         {std::pair{"18", true}, {"00", false}, {"08", false}, {"18", true}, {"10", false}}) {
        decode(flags);
        EXPECT_EQ(screen.VSyncLine.ownVisible(), separate) << flags;
        EXPECT_EQ(screen.SyncSerrate.ownVisible(), !separate) << flags;
    }
}

TEST_F(Slot, AClockBelow1MHzHasItsRates) {
    decode("1E");
    set(40, {"32", "00"}); // 0.50 MHz
    decodeDetailedTiming(screen, slotRules);
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 0.23 KHz"); // 2200 pixels of 2 microseconds
    EXPECT_EQ(screen.Freq(1).caption(), "Vertical - 0.40 Hz");
}

TEST_F(Slot, TheDescriptorFlagPlaysNoPart) {
    screen.CurrentBlockIsDescriptor = flagTrue;
    decode("1E");
    EXPECT_EQ(screen.DT(1).caption(), "Active Time - 1920 pixels");
}

struct StereoCase {
    std::string_view flags;
    int option;
    std::string_view words;
};

class SlotStereo : public Slot, public testing::WithParamInterface<StereoCase> {};

TEST_P(SlotStereo, BitsSixAndFiveClearAreANormalDisplay) {
    decode(GetParam().flags);
    EXPECT_EQ(screen.DTStereo.firstSelected(), GetParam().option);
    EXPECT_EQ(screen.frmStereo.caption(), GetParam().words);
    EXPECT_EQ(reportLine(4), "         Refreshed Mode: Non-Interlaced    " + std::string(GetParam().words));
}

INSTANTIATE_TEST_SUITE_P(Rows, SlotStereo,
                         testing::Values(StereoCase{"18", 6, "Normal Display - No Stereo"},
                                         StereoCase{"01", -1, "Normal Display - No Stereo"},
                                         StereoCase{"19", -1, "Normal Display - No Stereo"},
                                         StereoCase{"38", 0, "Stereo"}, StereoCase{"39", 2, "Stereo"},
                                         StereoCase{"58", 1, "Stereo"}, StereoCase{"59", 3, "Stereo"},
                                         StereoCase{"78", 4, "Stereo"}, StereoCase{"79", 5, "Stereo"}));

TEST_F(Slot, AFieldThatCannotBeReadIsPassedOver) {
    screen.DT(2).setCaption("before");
    set(43, {"18"});
    set(40,
        {"01", "1D", "80", "ZZ", "71", "1C", "16", "20", "58", "2C", "25", "00", "09", "25", "21", "00", "00", "1E"});
    decodeDetailedTiming(screen, slotRules);
    EXPECT_EQ(boxes(), (Lines{invalidCall, invalidCall}));
    EXPECT_EQ(screen.DT(2).caption(), "before");
    EXPECT_EQ(reportLine(7), "         Active Time: 1920 pixels          ");
    // Without the blanking a line has 1920 pixels.
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 38.67 KHz");
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_EQ(screen.txtEdit(127).text(), "CS");
}

TEST_F(Slot, AnAmountThatCannotBeReadCountsAsNothing) {
    struct Case {
        int cell;
        const char* horizontal;
        const char* vertical;
    };
    const Case cases[] = {
        {40, "Horizontal - 1000.00 KHz", "Vertical - 1779.36 Hz"}, // no clock: 562 lines of a microsecond
        {42, "Horizontal - 265.18 KHz", "Vertical - 471.85 Hz"},   // 280 pixels
        {45, "Horizontal - 33.75 KHz", "Vertical - 1534.09 Hz"}};  // 22 lines
    for (const Case& unreadable : cases) {
        decode("1E");
        boxes();
        set(unreadable.cell, {"ZZ"});
        decodeDetailedTiming(screen, slotRules);
        EXPECT_EQ(boxes(), (Lines{invalidCall, invalidCall}));
        EXPECT_EQ(screen.Freq(0).caption(), unreadable.horizontal);
        EXPECT_EQ(screen.Freq(1).caption(), unreadable.vertical);
    }
}

TEST_F(Slot, AFlagCellThatCannotBeReadCountsAsZero) {
    decode("9E");
    decode("ZZ");
    EXPECT_EQ(boxes(), (Lines{invalidCall, invalidCall})) << "it is read once";
    EXPECT_EQ(screen.DT1.value(), 1) << "the interlace step is left";
    EXPECT_EQ(reportLine(1), "                   1920x540  Pixel Clock: 74.25 MHz");
    EXPECT_EQ(reportLine(4), "                                           Normal Display - No Stereo");
    EXPECT_EQ(screen.DTStereo.firstSelected(), 6);
    EXPECT_EQ(reportLine(16), "Analog Composite Sync On Green");
}

TEST_F(Slot, AFlagCellPastTheGridEndsWithoutStereoOption) {
    select(1, 111);
    set(111, {"01"});
    decodeDetailedTiming(screen, slotRules);
    EXPECT_EQ(boxes(), (Lines{missingControl, missingControl})) << "the interlace step and the stereo step";
    EXPECT_EQ(screen.DTStereo.firstSelected(), -1);
    EXPECT_EQ(screen.frmStereo.caption(), "Stereo");
    EXPECT_NE(workbench.ExtDetailedBlockText(1), "");
    EXPECT_EQ(screen.txtEdit(127).text(), "CS");
}

TEST_F(Slot, ABlockWhollyPastTheGridIsNoDescriptor) {
    select(6, 148);
    decodeDetailedTiming(screen, slotRules);
    // The test of the first cells, the interlace step, thirteen fields, the stereo step.
    EXPECT_EQ(boxes(), Lines(16, missingControl));
    EXPECT_NE(workbench.ExtDetailedBlockText(6), "");
}

} // namespace
} // namespace wb::report
