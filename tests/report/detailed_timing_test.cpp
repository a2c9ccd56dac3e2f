#include "report/detailed_timing.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

class DetailedTiming : public Block0 {
protected:
    DetailedTiming() { select(0); }

    void select(int number) {
        screen.CurrentBlockBase = static_cast<std::int16_t>(54 + 18 * number);
        screen.CurrentBlockNumber = static_cast<std::int16_t>(number);
    }
    /// 1920 x 1080 at 148.50 MHz, blanking 280 and 45.
    void setFullHd(std::string_view flags) {
        set(54, {"02", "3A", "80", "18", "71", "38", "2D", "40", "58", "2C", "45", "00", "09", "25", "21", "00", "00",
                 flags});
    }
    void decodeFlags(std::string_view flags) {
        setFullHd(flags);
        ConvertDetailedTiming(workbench);
    }
    std::string report() { return workbench.DetailedBlockText(0); }
    /// A line of the report, from 1 on.
    std::string reportLine(int number) {
        std::string rest = report();
        for (int i = 1; i < number; ++i) {
            rest.erase(0, rest.find("\r\n") + 2);
        }
        return rest.substr(0, rest.find("\r\n"));
    }
};

TEST_F(DetailedTiming, TheReport) {
    decodeFlags("1E");
    EXPECT_EQ(report(), text({
                            "                  1920x1080  Pixel Clock: 148.50 MHz",
                            "______________________________________________________________________",
                            "         Horizontal Image Size: 521 mm     Vertical Image Size: 293 mm",
                            "         Refreshed Mode: Non-Interlaced    Normal Display - No Stereo",
                            "",
                            "Horizontal:",
                            "         Active Time: 1920 pixels          Blanking Time: 280 pixels",
                            "         Sync Offset: 88 pixels            Sync Pulse Width: 44 pixels",
                            "         Border: 0 pixels                  Frequency: 67.50 KHz",
                            "",
                            "Vertical:",
                            "         Active Time: 1080 lines           Blanking Time: 45 lines",
                            "         Sync Offset: 4 lines              Sync Pulse Width: 5 lines",
                            "         Border: 0 lines                   Frequency: 60.00 Hz",
                            "",
                            "Digital Separate, Horizontal Polarity (+) Vertical Polarity (+)",
                            "",
                        }));
}

TEST_F(DetailedTiming, ThePanel) {
    decodeFlags("1E");
    const Lines captions = {"Pixel Clock - 148.50 MHz",
                            "Active Time - 1920 pixels",
                            "Blanking Time - 280 pixels",
                            "Active Time - 1080 lines",
                            "Blanking Time - 45 lines",
                            "Sync Offset - 88 pixels",
                            "Sync Pulse Width - 44 pixels",
                            "Sync Offset - 4 lines",
                            "Sync Pulse Width - 5 lines",
                            "Border - 0 pixels",
                            "Border - 0 lines",
                            "Image Size - 521 mm",
                            "Image Size - 293 mm"};
    for (int i = 0; i <= 12; ++i) {
        EXPECT_EQ(screen.DT(i).caption(), captions[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 67.50 KHz");
    EXPECT_EQ(screen.Freq(1).caption(), "Vertical - 60.00 Hz");
    EXPECT_EQ(screen.DT1.value(), 0);
}

// Every cell holds a value that no other has, so that each field tells which bits it takes.
TEST_F(DetailedTiming, EachFieldHasItsBits) {
    set(54,
        {"11", "22", "33", "44", "5A", "66", "77", "8B", "99", "AA", "BC", "9B", "DD", "EE", "6C", "12", "34", "00"});
    ConvertDetailedTiming(workbench);
    const Lines captions = {
        "Pixel Clock - 87.21 MHz",       // 2211 hexadecimal, 8721
        "Active Time - 1331 pixels",     // 533
        "Blanking Time - 2628 pixels",   // A44
        "Active Time - 2150 lines",      // 866
        "Blanking Time - 2935 lines",    // B77
        "Sync Offset - 665 pixels",      // 9B is 10 01 10 11: 2 x 256 + 99
        "Sync Pulse Width - 426 pixels", // 1 x 256 + AA
        "Sync Offset - 43 lines",        // 2 x 16 + B
        "Sync Pulse Width - 60 lines",   // 3 x 16 + C
        "Border - 18 pixels",
        "Border - 52 lines",
        "Image Size - 1757 mm", // 6DD
        "Image Size - 3310 mm", // CEE
    };
    for (int i = 0; i <= 12; ++i) {
        EXPECT_EQ(screen.DT(i).caption(), captions[static_cast<std::size_t>(i)]);
    }
}

TEST_F(DetailedTiming, EachBlockHasItsText) {
    select(3);
    set(108, {"01"});
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(workbench.DetailedBlockText(0), "");
    EXPECT_NE(workbench.DetailedBlockText(3), "");
    EXPECT_EQ(screen.CurrentBlockBase, 108);
}

TEST_F(DetailedTiming, AZeroClockCountsWithLinesOfOneMicrosecond) {
    set(54, {"00", "00", "01"});
    set(60, {"28"}); // 40 blank lines
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(screen.DT(0).caption(), "Pixel Clock - 0.00 MHz");
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 1000.00 KHz");
    EXPECT_EQ(screen.Freq(1).caption(), "Vertical - 25000.00 Hz");
    EXPECT_EQ(reportLine(9), "         Border: 0 pixels                  Frequency: 1000.00 KHz");
}

TEST_F(DetailedTiming, AClockWithoutPixelsOrLines) {
    set(54, {"01"});
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(screen.DT(0).caption(), "Pixel Clock - 0.01 MHz");
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 1000.00 KHz");
    EXPECT_EQ(screen.Freq(1).caption(), "Vertical - 1000000.00 Hz");
    EXPECT_EQ(reportLine(1), "                      0x0  Pixel Clock: 0.01 MHz"); // 26 characters, 22 blanks
}

TEST_F(DetailedTiming, TheInterlaceBitChangesTheWordsOnly) {
    decodeFlags("9E");
    EXPECT_EQ(screen.DT1.value(), 1);
    EXPECT_EQ(reportLine(4), "         Refreshed Mode: Interlaced        Normal Display - No Stereo");
    EXPECT_EQ(reportLine(1), "                  1920x1080  Pixel Clock: 148.50 MHz");
    EXPECT_EQ(screen.Freq(1).caption(), "Vertical - 60.00 Hz");
    decodeFlags("1E");
    EXPECT_EQ(screen.DT1.value(), 0);
}

struct StereoCase {
    std::string_view flags;
    int option;
    std::string_view words;
};

class Stereo : public DetailedTiming, public testing::WithParamInterface<StereoCase> {};

TEST_P(Stereo, FollowsBits65And0) {
    decodeFlags(GetParam().flags);
    EXPECT_EQ(screen.DTStereo.firstSelected(), GetParam().option);
    EXPECT_EQ(screen.frmStereo.caption(), GetParam().words);
    EXPECT_EQ(reportLine(4), "         Refreshed Mode: Non-Interlaced    " + std::string(GetParam().words));
}

INSTANTIATE_TEST_SUITE_P(Rows, Stereo,
                         testing::Values(StereoCase{"18", 6, "Normal Display - No Stereo"},
                                         StereoCase{"19", -1, "Stereo"}, StereoCase{"38", 0, "Stereo"},
                                         StereoCase{"39", 2, "Stereo"}, StereoCase{"58", 1, "Stereo"},
                                         StereoCase{"59", 3, "Stereo"}, StereoCase{"78", 4, "Stereo"},
                                         StereoCase{"79", 5, "Stereo"}));

TEST_F(DetailedTiming, NoStereoStaysSelectedWhereNothingElseIs) {
    decodeFlags("18");
    decodeFlags("19");
    EXPECT_TRUE(screen.DTStereo(6).selected());
    EXPECT_EQ(screen.frmStereo.caption(), "Stereo");
    decodeFlags("38");
    decodeFlags("19");
    EXPECT_EQ(screen.DTStereo.firstSelected(), -1);
}

struct SyncCase {
    std::string_view flags;
    int kind;
    std::string_view line, vertical;
    int serrate;
    std::string_view words;
};

class Sync : public DetailedTiming, public testing::WithParamInterface<SyncCase> {};

TEST_P(Sync, FollowsBits4To1) {
    decodeFlags(GetParam().flags);
    EXPECT_EQ(screen.DTSync.firstSelected(), GetParam().kind);
    EXPECT_EQ(screen.SyncLine.caption(), GetParam().line);
    EXPECT_EQ(screen.VSyncLine.caption(), GetParam().vertical);
    EXPECT_EQ(screen.SyncSerrate.value(), GetParam().serrate);
    EXPECT_EQ(screen.VSyncLine.ownVisible(), GetParam().kind == 3);
    EXPECT_EQ(screen.SyncSerrate.ownVisible(), GetParam().kind != 3);
    EXPECT_EQ(reportLine(16), GetParam().words);
    EXPECT_EQ(cell(71), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Sync,
    testing::Values(
        SyncCase{"00", 0, "Sync On Green", "", 0, "Analog Composite Sync On Green"},
        SyncCase{"02", 0, "Sync on RGB", "", 0, "Analog Composite Sync on RGB"},
        SyncCase{"04", 0, "Sync On Green", "", 1, "Analog Composite (Serrate) Sync On Green"},
        SyncCase{"06", 0, "Sync on RGB", "", 1, "Analog Composite (Serrate) Sync on RGB"},
        SyncCase{"08", 1, "Sync On Green", "", 0, "Bipolar Analog Composite Sync On Green"},
        SyncCase{"0A", 1, "Sync on RGB", "", 0, "Bipolar Analog Composite Sync on RGB"},
        SyncCase{"0C", 1, "Sync On Green", "", 1, "Bipolar Analog Composite (Serrate) Sync On Green"},
        SyncCase{"0E", 1, "Sync on RGB", "", 1, "Bipolar Analog Composite (Serrate) Sync on RGB"},
        SyncCase{"10", 2, "Composite Polarity (-)", "", 0, "Digital Composite Composite Polarity (-)"},
        SyncCase{"12", 2, "Composite Polarity (+)", "", 0, "Digital Composite Composite Polarity (+)"},
        SyncCase{"14", 2, "Composite Polarity (-)", "", 1, "Digital Composite (Serrate) Composite Polarity (-)"},
        SyncCase{"16", 2, "Composite Polarity (+)", "", 1, "Digital Composite (Serrate) Composite Polarity (+)"},
        SyncCase{"18", 3, "Horizontal Polarity (-)", "Vertical Polarity (-)", 0,
                 "Digital Separate, Horizontal Polarity (-) Vertical Polarity (-)"},
        SyncCase{"1A", 3, "Horizontal Polarity (+)", "Vertical Polarity (-)", 0,
                 "Digital Separate, Horizontal Polarity (+) Vertical Polarity (-)"},
        SyncCase{"1C", 3, "Horizontal Polarity (-)", "Vertical Polarity (+)", 0,
                 "Digital Separate, Horizontal Polarity (-) Vertical Polarity (+)"},
        SyncCase{"1E", 3, "Horizontal Polarity (+)", "Vertical Polarity (+)", 0,
                 "Digital Separate, Horizontal Polarity (+) Vertical Polarity (+)"}));

TEST_F(DetailedTiming, TheVerticalCaptionKeepsItsTextWhereTheTableHasNone) {
    decodeFlags("18");
    decodeFlags("00");
    EXPECT_EQ(screen.VSyncLine.caption(), "Vertical Polarity (-)");
}

// The click of the check tests no flag: it writes bit 2 of the flags and decodes the block inside the run.
TEST_F(DetailedTiming, ASeparateSyncAfterASerratedOneLosesItsVerticalPolarity) {
    decodeFlags("04");
    EXPECT_EQ(screen.SyncSerrate.value(), 1);
    decodeFlags("1E");
    EXPECT_EQ(cell(71), "1A") << "also while editing is off";
    EXPECT_EQ(screen.SyncSerrate.value(), 0);
    EXPECT_EQ(screen.SyncLine.caption(), "Horizontal Polarity (+)");
    EXPECT_EQ(screen.VSyncLine.caption(), "Vertical Polarity (-)");
    EXPECT_EQ(reportLine(16), "Digital Separate, Horizontal Polarity (+) Vertical Polarity (-)");
    EXPECT_TRUE(screen.VSyncLine.ownVisible());
    EXPECT_FALSE(screen.SyncSerrate.ownVisible());
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
}

TEST_F(DetailedTiming, ASerratedSyncKeepsItsBitWhenItsCheckIsSet) {
    decodeFlags("18");
    decodeFlags("16");
    EXPECT_EQ(cell(71), "16");
    EXPECT_EQ(reportLine(16), "Digital Composite (Serrate) Composite Polarity (+)");
}

TEST_F(DetailedTiming, ThreeZeroCellsAreADescriptorByTheirText) {
    set(57, {"FF", "00", "41", "0A"});
    screen.DT(0).setCaption("before");
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(report(), "\r\n         Monitor Serial Number:\r\n         A\r\n\r\n");
    EXPECT_EQ(screen.DT(0).caption(), "before");
    set(54, {"0", "0", "00"});
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(screen.DT(0).caption(), "Pixel Clock - 0.00 MHz") << "four digits are no six";
}

TEST_F(DetailedTiming, WhileADescriptorIsShownEveryBlockIsOne) {
    screen.CurrentBlockIsDescriptor = flagTrue;
    setFullHd("1E");
    set(57, {"FE", "00", "41", "0A"});
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(report(), "\r\n         ASCII Data:\r\n         A\r\n\r\n");
}

TEST_F(DetailedTiming, AFailureLeavesTheTextAsFarAsItWasBuilt) {
    set(54, {"01", "ZZ"});
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(report(), "");
    EXPECT_EQ(screen.InFocusDispatch, flagTrue);
    set(54, {"01", "00", "00", "ZZ"}); // horizontal blanking
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(report(), "Horizontal:\r\n\r\n");
    EXPECT_EQ(screen.DT(1).caption(), "Active Time - 0 pixels");
    EXPECT_EQ(screen.DT(2).caption(), "Blanking Time");
}

TEST_F(DetailedTiming, AFlagCellThatCannotBeReadKeepsTheRatesOfBefore) {
    decodeFlags("1E");
    setFullHd("ZZ");
    set(54, {"04", "74"}); // twice the clock
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.DT(0).caption(), "Pixel Clock - 297.00 MHz");
    EXPECT_EQ(screen.Freq(0).caption(), "Horizontal - 67.50 KHz");
}

class DetailedTimingSeek : public DetailedTiming {
protected:
    DetailedTimingSeek() {
        workbench.windows.show(screen);
        workbench.ModifyEDIDOn = flagTrue;
        workbench.AutoCellSeekOn = flagTrue;
        screen.Hints(9).setEnabled(true);
        screen.Hints(9).setVisible(true);
        setFullHd("1E");
    }
    std::string focused() { return workbench.focus.current()->fullName(); }
};

TEST_F(DetailedTimingSeek, GoesToTheInputBox) {
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(focused(), "frmEDID.DTInput");
    EXPECT_EQ(cell(127), "E0"); // cells 54 to 71 add up to 800, which is 32 modulo 256
}

TEST_F(DetailedTimingSeek, NeedsTheSwitchesAndTheInputBox) {
    workbench.AutoCellSeekOn = flagFalse;
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    workbench.AutoCellSeekOn = flagTrue;
    workbench.ModifyEDIDOn = flagFalse;
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    workbench.ModifyEDIDOn = flagTrue;
    screen.DTInput.setVisible(false);
    ConvertDetailedTiming(workbench);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

} // namespace
} // namespace wb::report
