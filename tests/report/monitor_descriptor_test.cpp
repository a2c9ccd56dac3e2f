#include "report/monitor_descriptor.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

class Descriptor : public Block0 {
protected:
    Descriptor() { select(0); }

    void select(int number) {
        screen.CurrentBlockBase = static_cast<std::int16_t>(54 + 18 * number);
        screen.CurrentBlockNumber = static_cast<std::int16_t>(number);
    }
    /// Decodes block 0 with the tag and the payload from its first cell on.
    void decode(std::string_view tag, std::initializer_list<std::string_view> payload) {
        set(57, {tag});
        set(59, payload);
        ConvertDetailedTiminga(workbench);
    }
    std::string report() { return workbench.DetailedBlockText(0); }
};

struct TagCase {
    std::string_view tag;
    int option;
    std::string_view heading;
};

class DescriptorTag : public Descriptor, public testing::WithParamInterface<TagCase> {};

TEST_P(DescriptorTag, HasItsOptionAndHeading) {
    // A colour point moves the focus.
    workbench.windows.show(screen);
    screen.Hints(11).setVisible(true);
    screen.Hints(11).setEnabled(true);
    decode(GetParam().tag, {"41", "0A"});
    EXPECT_EQ(screen.DTa.firstSelected(), GetParam().option);
    const std::string heading = "\r\n" + blanks(9) + std::string(GetParam().heading) + "\r\n";
    EXPECT_EQ(report().substr(0, heading.size()), heading);
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_TRUE(boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, DescriptorTag,
                         testing::Values(TagCase{"FF", 0, "Monitor Serial Number:"}, TagCase{"FE", 1, "ASCII Data:"},
                                         TagCase{"FD", 2, "Monitor Range Limits:"}, TagCase{"FC", 3, "Monitor Name:"},
                                         TagCase{"FB", 4, "Color Point:"},
                                         TagCase{"FA", 5, "Standard Timing Identifiers:"},
                                         TagCase{"fd", 2, "Monitor Range Limits:"}));

TEST_F(Descriptor, ATagBelowEightRunsTheFamilyOfItsNumberWithoutHeading) {
    decode("00", {"41", "0A"});
    EXPECT_EQ(report(), "\r\n         A\r\n\r\n");
    EXPECT_TRUE(screen.DTa(0).selected());
    decode("01", {"42", "0A"});
    EXPECT_EQ(report(), "\r\n         B\r\n\r\n");
    EXPECT_TRUE(screen.DTa(1).selected());
}

TEST_F(Descriptor, TagsSixAndSevenDecodeNothingAndRunTheClosingSteps) {
    workbench.ModifyEDIDOn = flagTrue;
    for (const auto& [tag, option] : {std::pair{"06", 6}, std::pair{"07", 7}}) {
        set(127, {"AA"});
        screen.DTaInput.setText("before");
        decode(tag, {"41", "0A"});
        EXPECT_EQ(report(), "\r\n");
        EXPECT_TRUE(screen.DTa(option).selected());
        EXPECT_EQ(screen.DTaInput.text(), "");
        EXPECT_EQ(screen.InFocusDispatch, flagFalse);
        EXPECT_NE(cell(127), "AA");
        EXPECT_EQ(screen.DTaInput.bounds().height, 1200);
    }
}

TEST_F(Descriptor, AnyOtherTagFailsAtItsOption) {
    workbench.ModifyEDIDOn = flagTrue;
    decode("FF", {"41", "0A"});
    for (const std::string_view tag : {"10", "08", "F9", "0F", "1"}) {
        screen.DTAGTF.setVisible(true);
        set(127, {"AA"});
        decode(tag, {"41", "0A"});
        EXPECT_EQ(boxes(), Lines{"Control array element does not exist"}) << tag;
        EXPECT_EQ(report(), "\r\n");
        EXPECT_TRUE(screen.DTa(0).selected()) << "unchanged";
        EXPECT_EQ(screen.DTaInput.text(), "A");
        EXPECT_FALSE(screen.DTAGTF.ownVisible());
        EXPECT_EQ(screen.InFocusDispatch, flagTrue);
        EXPECT_EQ(cell(127), "AA");
    }
}

TEST_F(Descriptor, ATagThatCannotBeReadGivesTwoBoxes) {
    decode("ZZ", {"41", "0A"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(report(), "\r\n");
    EXPECT_EQ(screen.InFocusDispatch, flagTrue);
}

TEST_F(Descriptor, OnlyALineFeedEndsAText) {
    decode("FF", {"41", "20", "42", "20", "0D", "0A", "43"});
    EXPECT_EQ(screen.DTaInput.text(), "A B \r");
    EXPECT_EQ(report(), "\r\n         Monitor Serial Number:\r\n         A B \r\r\n\r\n");
}

TEST_F(Descriptor, ATextMayFillAllThirteenCells) {
    decode("FE", {"41", "42", "43", "44", "45", "46", "47", "48", "49", "4A", "4B", "4C", "4D"});
    EXPECT_EQ(screen.DTaInput.text(), "ABCDEFGHIJKLM");
    set(72, {"41"});
    ConvertDetailedTiminga(workbench);
    EXPECT_EQ(screen.DTaInput.text(), "ABCDEFGHIJKLM");
}

TEST_F(Descriptor, NulsAreCharactersOfTheText) {
    decode("FE", {"00", "41", "0A"});
    EXPECT_EQ(screen.DTaInput.text(), std::string("\0A", 2));
}

TEST_F(Descriptor, ATextThatFailsInTheMiddleStandsInTheInputBox) {
    decode("FE", {"41", "42", "ZZ", "0A"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.DTaInput.text(), "AB");
    EXPECT_EQ(report(), "\r\n         ASCII Data:\r\n");
    EXPECT_EQ(screen.InFocusDispatch, flagTrue);
}

TEST_F(Descriptor, TheModelJoinsTheNamesOfAllBlocks) {
    set(93, {"FC", "00", "43", "44", "0A"});
    decode("FC", {"41", "42", "0A", "20"});
    EXPECT_EQ(screen.txtModel.text(), "ABCD");
    EXPECT_EQ(screen.DTaInput.text(), "AB");
    EXPECT_EQ(report(), "\r\n         Monitor Name:\r\n         AB\r\n\r\n");
}

TEST_F(Descriptor, TheModelLooksForTheTagExactly) {
    set(75, {"FC", "00", "43", "0A"});
    screen.txtModel.setText("before");
    decode("fc", {"41", "42", "0A"});
    EXPECT_EQ(screen.txtModel.text(), "C") << "a lower-case tag is decoded as a name but not found as one";
    decode("FE", {"41", "0A"});
    EXPECT_EQ(screen.txtModel.text(), "C") << "only a name sets the model";
}

TEST_F(Descriptor, AModelNameMayFillTheBlockAndGoOnInTheNext) {
    set(75, {"FC", "00", "4E", "0A"});
    decode("FC", {"41", "42", "43", "44", "45", "46", "47", "48", "49", "4A", "4B", "4C", "4D"});
    EXPECT_EQ(screen.txtModel.text(), "ABCDEFGHIJKLMN");
}

TEST_F(Descriptor, AModelThatCannotBeReadEndsTheDecoder) {
    screen.txtModel.setText("before");
    set(111, {"FC", "00", "41", "ZZ"});
    decode("FC", {"41", "0A"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.txtModel.text(), "before");
    EXPECT_EQ(screen.DTaInput.text(), "");
}

class RangeLimits : public Descriptor {};

TEST_F(RangeLimits, WithoutSecondaryFormula) {
    decode("FD", {"38", "4B", "1E", "53", "0F", "00", "0A"});
    EXPECT_EQ(report(), "\r\n" + text({
                                     "         Monitor Range Limits:",
                                     "         Min Vertical Freq - 56 Hz",
                                     "         Max Vertical Freq - 75 Hz",
                                     "         Min Horiz. Freq - 30 KHz",
                                     "         Max Horiz. Freq - 83 KHz",
                                     "         Pixel Clock  - 150 MHz",
                                     "         Secondary GTF - Not Supported",
                                 }));
    EXPECT_EQ(screen.DtaOpt(0).caption(), "Min Vertical Freq - 56 Hz");
    EXPECT_EQ(screen.DtaOpt(4).caption(), "Pixel Clock  - 150 MHz");
    EXPECT_TRUE(screen.DTAGTF.ownVisible());
    EXPECT_TRUE(screen.DTAGTF.enabled());
    EXPECT_EQ(screen.DTAGTF.value(), 0);
    EXPECT_TRUE(screen.DTAFrame(0).enabled());
    EXPECT_FALSE(screen.DTAFrame(1).enabled());
    EXPECT_FALSE(screen.frmS_GTF(0).enabled());
    EXPECT_FALSE(screen.Windex(0).enabled());
    EXPECT_FALSE(screen.Windex(1).enabled());
    EXPECT_EQ(screen.DTaInput.bounds().top, 120);
    EXPECT_EQ(screen.DTaInput.bounds().height, 1200);
    EXPECT_FALSE(screen.txtEdit(64).locked());
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
}

TEST_F(RangeLimits, TheClockMayBeUnspecified) {
    decode("FD", {"00", "FF", "00", "FF", "FF", "00"});
    EXPECT_EQ(screen.DtaOpt(4).caption(), "Pixel Clock - Not Specified");
    EXPECT_EQ(screen.DtaOpt(1).caption(), "Max Vertical Freq - 255 Hz");
    decode("FD", {"00", "FF", "00", "FF", "FE", "00"});
    EXPECT_EQ(screen.DtaOpt(4).caption(), "Pixel Clock  - 2540 MHz");
}

TEST_F(RangeLimits, ReservedForLaterTimings) {
    screen.frmS_GTF(0).setEnabled(true);
    decode("FD", {"00", "00", "00", "00", "00", "04"});
    EXPECT_NE(report().find("         Reserved for EDID 1.4 Timings\r\n"), std::string::npos);
    EXPECT_FALSE(screen.frmS_GTF(0).enabled());
    EXPECT_TRUE(screen.DTAFrame(0).enabled());
    EXPECT_EQ(screen.DTAGTF.value(), 0);
    EXPECT_FALSE(screen.txtEdit(64).locked());
}

TEST_F(RangeLimits, WithSecondaryFormula) {
    decode("FD", {"38", "4B", "1E", "53", "FF", "02", "00", "20", "05", "58", "02", "80", "03"});
    EXPECT_EQ(report(), "\r\n" + text({
                                     "         Monitor Range Limits:", "         Min Vertical Freq - 56 Hz",
                                     "         Max Vertical Freq - 75 Hz", "         Min Horiz. Freq - 30 KHz",
                                     "         Max Horiz. Freq - 83 KHz", "         Pixel Clock - Not Specified",
                                     "         Secondary GTF - Supported", "            Start Hor Freq - 64 KHz",
                                     "            C - 3", // 2.5
                                     "            M - 600", "            K - 128",
                                     "            J - 2", // 1.5
                                 }));
    EXPECT_EQ(screen.S_GTF(0).caption(), "Start Hor Freq - 64 KHz");
    EXPECT_EQ(screen.S_GTF(2).caption(), "M - 600");
    EXPECT_EQ(screen.DTAGTF.value(), 1);
    EXPECT_TRUE(screen.frmS_GTF(0).enabled());
    EXPECT_FALSE(screen.DTAFrame(0).enabled());
    for (int i = 54; i <= 71; ++i) {
        EXPECT_EQ(screen.txtEdit(i).locked(), i >= 64) << i;
    }
}

TEST_F(RangeLimits, AnyOtherSupportTextIsASecondaryFormula) {
    decode("FD", {"00", "00", "00", "00", "00", "0"});
    EXPECT_EQ(screen.DTAGTF.value(), 1);
    EXPECT_EQ(screen.S_GTF(2).caption(), "M - 0");
}

TEST_F(RangeLimits, EditingKeepsTheCellsOpen) {
    workbench.ModifyEDIDOn = flagTrue;
    decode("FD", {"00", "00", "00", "00", "00", "02", "00"});
    EXPECT_FALSE(screen.txtEdit(64).locked());
    EXPECT_TRUE(boxes().empty());
}

TEST_F(RangeLimits, AFactorWithoutDigitsIsZero) {
    decode("FD", {"00", "00", "00", "00", "00", "02", "00", "00", "00", "ZZ", "zz", "00", "00"});
    EXPECT_EQ(screen.S_GTF(2).caption(), "M - 0");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(RangeLimits, AFailureLeavesTheFieldsBeforeIt) {
    decode("FD", {"38", "ZZ"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(report(), "\r\n" + text({"         Monitor Range Limits:", "         Min Vertical Freq - 56 Hz"}));
    EXPECT_TRUE(screen.DTAFrame(0).enabled());
    EXPECT_FALSE(screen.DTAGTF.enabled());
}

TEST_F(RangeLimits, TheSeekGoesToTheInputBoxOfTheFormula) {
    workbench.ModifyEDIDOn = flagTrue;
    workbench.AutoCellSeekOn = flagTrue;
    workbench.windows.show(screen);
    screen.Hints(11).setVisible(true);
    decode("FD", {"00", "00", "00", "00", "00", "00"});
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    decode("FD", {"00", "00", "00", "00", "00", "02", "00"});
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.DTaInput");
    EXPECT_TRUE(boxes().empty());
}

// The click of the check tests no flag but that of editing.
TEST_F(RangeLimits, SettingTheFormulaCheckWritesCellsWhileEditing) {
    workbench.ModifyEDIDOn = flagTrue;
    decode("FD", {"38", "4B", "1E", "53", "0F", "03", "11", "22"});
    EXPECT_EQ(cell(64) + cell(65) + cell(66), "020022");
    EXPECT_EQ(screen.S_GTF(0).caption(), "Start Hor Freq - 68 KHz");
    set(64, {"00", "11", "22", "33", "44", "55", "66", "77"});
    ConvertDetailedTiminga(workbench);
    EXPECT_EQ(screen.DTAGTF.value(), 0);
    std::string cells;
    for (int i = 64; i <= 71; ++i) {
        cells += cell(i);
    }
    EXPECT_EQ(cells, "000A202020202020");
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
}

TEST_F(RangeLimits, SettingTheFormulaCheckWritesNothingOtherwise) {
    decode("FD", {"38", "4B", "1E", "53", "0F", "03", "11", "22"});
    EXPECT_EQ(cell(64) + cell(65) + cell(66), "031122");
}

class ColorPoint : public Descriptor {
protected:
    /// The panel as it is shown once its block has been visited.
    void showPanel() {
        workbench.windows.show(screen);
        screen.Hints(11).setVisible(true);
        screen.Hints(11).setEnabled(true);
    }
    std::string enabledOptions() {
        std::string result;
        for (int i = 0; i <= 5; ++i) {
            result += screen.DtaOptWhite(i).enabled() ? '1' : '0';
        }
        return result;
    }
};

TEST_F(ColorPoint, AHiddenPanelEndsTheDecoder) {
    for (int i = 0; i <= 5; ++i) {
        screen.DtaOptWhite(i).setEnabled(false);
    }
    decode("FB", {"01", "0B", "80", "40", "78", "00", "11"});
    EXPECT_EQ(boxes(), Lines{"Invalid procedure call or argument"});
    EXPECT_EQ(report(), "\r\n         Color Point:\r\n");
    EXPECT_EQ(enabledOptions(), "100000");
    EXPECT_TRUE(screen.DTAFrame(1).enabled());
    EXPECT_TRUE(screen.Windex(1).enabled());
    EXPECT_TRUE(screen.NotUsed(0).enabled()) << "not reached";
    EXPECT_EQ(screen.InFocusDispatch, flagTrue);
    EXPECT_EQ(cell(65), "11") << "no white point was blanked";
}

TEST_F(ColorPoint, BothPointsUsed) {
    showPanel();
    // Low bits 0B: X 2, Y 3; low bits 04: X 1, Y 0.
    decode("FB", {"01", "0B", "80", "40", "78", "02", "04", "50", "54", "00", "AA", "BB", "CC"});
    EXPECT_EQ(report(), "\r\n" + text({
                                     "         Color Point:",
                                     "               White Point #1",
                                     "                    White X - 0.502", // 514/1024
                                     "                    White Y - 0.253", // 259/1024
                                     "                    Gamma  - 2.20",
                                     "               White Point #2",
                                     "                    White X - 0.313", // 321/1024
                                     "                    White Y - 0.328", // 336/1024
                                     "                    Gamma  - 1.00",
                                 }));
    EXPECT_EQ(screen.DtaOptWhite(0).caption(), "White X - 0.502");
    EXPECT_EQ(screen.DtaOptWhite(2).caption(), "Gamma  - 2.20");
    EXPECT_EQ(screen.DtaOptWhite(5).caption(), "Gamma  - 1.00");
    EXPECT_EQ(enabledOptions(), "111111");
    EXPECT_FALSE(screen.NotUsed(0).enabled());
    EXPECT_FALSE(screen.NotUsed(1).enabled());
    EXPECT_EQ(cell(69) + cell(70) + cell(71), "0A2020") << "also while editing is off";
    EXPECT_EQ(screen.DTaInput.bounds().height, 1095);
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.DTaInput") << "whatever the switches";
    EXPECT_TRUE(boxes().empty());
}

TEST_F(ColorPoint, UnusedPointsAreBlanked) {
    showPanel();
    decode("FB", {"00", "0B", "80", "40", "78", "00", "04", "50", "54", "11", "AA", "BB", "CC"});
    EXPECT_EQ(report(), "\r\n" + text({
                                     "         Color Point:",
                                     "               White Point #1",
                                     "                    Not Used",
                                     "               White Point #2",
                                     "                    Not Used",
                                 }));
    std::string cells;
    for (int i = 59; i <= 71; ++i) {
        cells += cell(i);
    }
    EXPECT_EQ(cells, "00000000000000000000AABBCC");
    EXPECT_EQ(enabledOptions(), "000000");
    EXPECT_TRUE(screen.NotUsed(0).enabled());
    EXPECT_TRUE(screen.NotUsed(1).enabled());
}

TEST_F(ColorPoint, OneUsedPointGetsNoPadding) {
    showPanel();
    decode("FB", {"01", "00", "80", "40", "78", "00", "04", "50", "54", "11", "AA", "BB", "CC"});
    EXPECT_EQ(enabledOptions(), "111000");
    EXPECT_FALSE(screen.NotUsed(0).enabled());
    EXPECT_TRUE(screen.NotUsed(1).enabled());
    EXPECT_EQ(cell(69) + cell(70) + cell(71), "AABBCC");
    EXPECT_EQ(cell(60) + cell(61), "0080");
}

TEST_F(ColorPoint, TheInputBoxTakesTheSelectedValue) {
    showPanel();
    screen.DtaOptWhite(2).changeValue(1);
    decode("FB", {"01", "00", "80", "40", "78", "00"});
    EXPECT_EQ(screen.DTaInput.text(), "2.20");
}

TEST_F(ColorPoint, ASelectedCaptionWithoutADashIsPassedOver) {
    showPanel();
    screen.DtaOptWhite(4).changeValue(1); // its caption is still "White Y"
    decode("FB", {"01", "00", "80", "40", "78", "00"});
    EXPECT_EQ(screen.DTaInput.text(), "");
}

class StandardTimingDescriptor : public Descriptor {};

TEST_F(StandardTimingDescriptor, SixPairsOnThePanelOfTheirOwn) {
    screen.Hints(11).setVisible(true);
    decode("FA", {"81", "80", "01", "01", "D1", "C0", "31", "40", "00", "00", "01", "FF"});
    const Lines expected = {"1280 X 1024 @60Hz", "Not Used",        "1920 X 1080 @60Hz",
                            "640 X 480 @60Hz",   "248 X 155 @60Hz", "Not Used"};
    std::string lines = "\r\n         Standard Timing Identifiers:\r\n";
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(screen.ExtSTOpt(i).caption(), expected[static_cast<std::size_t>(i)]);
        lines += blanks(9) + expected[static_cast<std::size_t>(i)] + "\r\n";
    }
    EXPECT_EQ(report(), lines);
    EXPECT_FALSE(screen.Hints(11).ownVisible());
    EXPECT_TRUE(screen.Hints(12).ownVisible());
    EXPECT_EQ(screen.ExtSTAOptb.firstSelected(), 2) << "of the first pair, since none is selected";
}

TEST_F(StandardTimingDescriptor, TheAspectFollowsTheSelectedPair) {
    screen.ExtSTOpt(2).changeValue(1);
    decode("FA", {"81", "80", "01", "01", "D1", "C0"});
    EXPECT_EQ(screen.ExtSTAOptb.firstSelected(), 3);
}

TEST_F(StandardTimingDescriptor, TheDisablingOptionIsDeselected) {
    screen.ExtSTOpt(6).changeValue(1);
    decode("FA", {"81", "40"});
    EXPECT_FALSE(screen.ExtSTOpt(6).selected());
    EXPECT_EQ(screen.ExtSTAOptb.firstSelected(), 1);
}

TEST_F(StandardTimingDescriptor, TheSeekGoesToItsInputBox) {
    workbench.ModifyEDIDOn = flagTrue;
    workbench.AutoCellSeekOn = flagTrue;
    workbench.windows.show(screen);
    decode("FA", {"81", "40"});
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.ExtStaInput");
}

TEST_F(Descriptor, EachBlockHasItsText) {
    select(2);
    set(93, {"FE", "00", "41", "0A"});
    ConvertDetailedTiminga(workbench);
    EXPECT_EQ(workbench.DetailedBlockText(2), "\r\n         ASCII Data:\r\n         A\r\n\r\n");
    EXPECT_EQ(workbench.DetailedBlockText(0), "");
}

} // namespace
} // namespace wb::report
