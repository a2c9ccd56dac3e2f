#include "report/color_point.h"

#include "descriptor_fixture.h"

namespace wb::report {
namespace {

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

} // namespace
} // namespace wb::report
