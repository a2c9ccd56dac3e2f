#include "report/range_limits.h"

#include <gmock/gmock.h>

#include "descriptor_fixture.h"

namespace wb::report {
namespace {

using testing::HasSubstr;

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
    EXPECT_THAT(report(), HasSubstr("         Reserved for EDID 1.4 Timings\r\n"));
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

} // namespace
} // namespace wb::report
