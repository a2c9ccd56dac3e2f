#include "shell/enter_timing.h"

#include <gtest/gtest.h>

#include "core/base/text.h"
#include "core/cells.h"
#include "files/image_loading.h"
#include "support/program.h"
#include "support/silent_view.h"
#include "support/temporary_folder.h"

namespace wb::shell {
namespace {

using fields::Modeline;

class EnterTiming : public testing::Test {
protected:
    EnterTiming() {
        const std::string bytes = test::TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.bin");
        program.platform.queueAnswer(platform::Answer::Yes);
        input::choose(workbench.frmMain().mnuFileNew);
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            workbench.EDIDCells(static_cast<int>(i)) = ByteToHex2(static_cast<unsigned char>(bytes[i]));
        }
        files::LoadBlock0Cells(workbench);
        files::LoadExtensionCells(workbench);
        program.takeBoxes(); // New has switched editing on
    }
    void TearDown() override { EXPECT_EQ(program.takeBoxes(), std::vector<std::string>()); }

    /// The 18 cells from one on, with a blank between them.
    static std::string cells(BlockScreen& screen, int base) {
        std::string text;
        for (int i = base; i < base + detailedBlockSize; ++i) {
            text += screen.txtEdit(i).text();
            text += i + 1 < base + detailedBlockSize ? " " : "";
        }
        return text;
    }
    std::string block0(int base) { return cells(workbench.frmEDID(), base); }
    int sumOfBlock0() {
        int sum = 0;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            sum += byteAt(workbench.frmEDID(), i);
        }
        return sum % 256;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
};

// 138.50 MHz are 13850 steps, 361A; 1920 and 160 are 780 and 0A0, 1080 and 31 are 438 and 01F; front porches 48 and 3,
// pulses 32 and 5. Digital separate syncs are 18, a positive horizontal one 02 besides.
const Modeline reduced{"", 138500, {1920, 1968, 2000, 2080, true}, {1080, 1083, 1088, 1111, false}, false};

// 600 MHz are EA60; 4000 and 2600 are FA0 and A28, 2000 and 100 are 7D0 and 064. Front porches of 300 (12C) and 20
// (14), pulses of 520 (208) and 33 (21): the upper bits are 01, 10, 01 and 10, which make 66.
const Modeline wide{"", 600000, {4000, 4300, 4820, 6600, false}, {2000, 2020, 2053, 2100, false}, false};

TEST_F(EnterTiming, WritesTheNumbersAndKeepsTheSize) {
    ASSERT_EQ(block0(54), "02 3A 80 18 71 38 2D 40 58 2C 45 00 7A F4 31 00 00 1E");
    EXPECT_TRUE(enterTiming(workbench, 54, reduced));
    EXPECT_EQ(block0(54), "1A 36 80 A0 70 38 1F 40 30 20 35 00 7A F4 31 00 00 1A");
    EXPECT_EQ(sumOfBlock0(), 0);
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(54)");
    EXPECT_EQ(workbench.frmEDID().DT(0).caption(), "Pixel Clock - 138.50 MHz") << "the panel has been decoded";
}

/// Notes from which controls the focus went on to the box of the panel.
class WaysToThePanel : public test::SilentView {
public:
    explicit WaysToThePanel(Workbench& workbench) : workbench_(workbench) { workbench.view = this; }
    WaysToThePanel(const WaysToThePanel&) = delete;
    WaysToThePanel& operator=(const WaysToThePanel&) = delete;
    ~WaysToThePanel() override { workbench_.view = nullptr; }

    std::vector<std::string> from;

private:
    void focusChanged() override {
        const Control* const now = workbench_.focus.current();
        if (now == &workbench_.frmEDID().DTInput) {
            from.push_back(last_);
        }
        last_ = now == nullptr ? "" : now->fullName();
    }

    Workbench& workbench_;
    std::string last_;
};

TEST_F(EnterTiming, EntersEachNumberThatDiffersAtThePanelOfItsCell) {
    WaysToThePanel all(workbench);
    EXPECT_TRUE(enterTiming(workbench, 54, wide));
    EXPECT_EQ(all.from,
              (std::vector<std::string>{"frmEDID.txtEdit(54)", "frmEDID.txtEdit(56)", "frmEDID.txtEdit(57)",
                                        "frmEDID.txtEdit(59)", "frmEDID.txtEdit(60)", "frmEDID.txtEdit(62)",
                                        "frmEDID.txtEdit(63)", "frmEDID.txtEdit(64)", "frmEDID.txtEdit(65)"}));
    WaysToThePanel none(workbench);
    EXPECT_TRUE(enterTiming(workbench, 54, wide));
    EXPECT_EQ(none.from, std::vector<std::string>());
}

TEST_F(EnterTiming, MendsWhatTheEntriesWipeAndLose) {
    EXPECT_TRUE(enterTiming(workbench, 72, wide));
    EXPECT_EQ(block0(72), "60 EA A0 28 FA D0 64 70 2C 08 41 66 7A F4 31 00 00 18");
    EXPECT_TRUE(enterTiming(workbench, 72, reduced));
    EXPECT_EQ(block0(72), "1A 36 80 A0 70 38 1F 40 30 20 35 00 7A F4 31 00 00 1A") << "bits are cleared again too";
    EXPECT_EQ(sumOfBlock0(), 0);
}

TEST_F(EnterTiming, WorksOnTheSlotsOfTheExtension) {
    // The slot begins with cell 29 and is an interlaced one, 9E: with stereo bits of 0.
    EXPECT_TRUE(enterTiming(workbench, 128 + 29, wide));
    EXPECT_EQ(cells(workbench.frmCEA_EXT(), 29), "60 EA A0 28 FA D0 64 70 2C 08 41 66 7A F4 31 00 00 18");
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmCEA_EXT.txtEdit(29)");
}

TEST_F(EnterTiming, KeepsTheKindOfStereo) {
    input::moveFocus(workbench.frmEDID().txtEdit(71));
    program.type("7E"); // bits 6 and 5 of it: interleaved on four ways
    EXPECT_TRUE(enterTiming(workbench, 54, reduced));
    EXPECT_EQ(program.cell(71), "7A");
}

TEST_F(EnterTiming, TakesACellOfOneDigitForNoByte) {
    workbench.frmEDID().txtEdit(54 + 12).setText("5"); // the lower byte of the width in millimetres
    EXPECT_TRUE(enterTiming(workbench, 54, reduced));
    EXPECT_EQ(block0(54), "1A 36 80 A0 70 38 1F 40 30 20 35 00 00 F4 31 00 00 1A");
}

TEST_F(EnterTiming, GoesToThePanelOfACellOfOneDigit) {
    // The pulse of 5 lines is the lower digit of cell 64, its front porch of 3 the upper one of it.
    EXPECT_TRUE(enterTiming(workbench, 54, reduced));
    ASSERT_EQ(program.cell(64), "35");
    const Modeline fewer{"", 138500, {1920, 1968, 2000, 2080, true}, {1080, 1080, 1085, 1111, false}, false};
    workbench.frmEDID().txtEdit(64).setText("5");
    WaysToThePanel ways(workbench);
    EXPECT_TRUE(enterTiming(workbench, 54, fewer));
    EXPECT_EQ(program.cell(64), "05");
    EXPECT_EQ(ways.from, std::vector<std::string>{"frmEDID.txtEdit(65)"})
        << "to the box of the pulse, which is that of the cell of its upper bits";
}

TEST_F(EnterTiming, TakesAnInterlacedOne) {
    // Half of 1080, 1084, 1094 and 1124 lines of the whole: 540 (21C), blanking 22 (16), 2 and 5.
    const Modeline interlaced{"", 74250, {1920, 2008, 2052, 2200, true}, {1080, 1084, 1094, 1125, true}, true};
    EXPECT_TRUE(enterTiming(workbench, 54, interlaced));
    EXPECT_EQ(block0(54), "01 1D 80 18 71 1C 16 20 58 2C 25 00 7A F4 31 00 00 9E");
}

TEST_F(EnterTiming, MakesATimingOfADescriptor) {
    EXPECT_TRUE(enterTiming(workbench, 90, reduced));
    EXPECT_EQ(block0(90), "1A 36 80 A0 70 38 1F 40 30 20 35 00 00 00 00 00 00 1A") << "letters are no size";
}

TEST_F(EnterTiming, IsNotLedAstrayByAnOpenReportOrByTheSeek) {
    input::click(workbench.frmMain().Command3);
    input::click(workbench.frmMain().Command1);
    EXPECT_TRUE(enterTiming(workbench, 54, wide));
    EXPECT_EQ(block0(54), "60 EA A0 28 FA D0 64 70 2C 08 41 66 7A F4 31 00 00 18");
    EXPECT_NE(workbench.AutoCellSeekOn, flagFalse);
    EXPECT_NE(workbench.frmDocument().rtftext.text().find("4000x2000  Pixel Clock: 600.00 MHz"), std::string::npos);
}

TEST_F(EnterTiming, RefusesWhatIsNoBlockOrCannotBeEdited) {
    const std::string before = block0(54);
    for (const int byte : {0, 53, 55, 126, 128, 128 + 30, 256}) {
        EXPECT_FALSE(enterTiming(workbench, byte, reduced)) << byte;
    }
    EXPECT_EQ(block0(0), "00 FF FF FF FF FF FF 00 6A 51 5A 4C 7B FE 12 01 01 15");
    Modeline tooWide = reduced;
    tooWide.horizontal = {5120, 5168, 5200, 5280, true};
    EXPECT_THROW(enterTiming(workbench, 54, tooWide), fields::ModelineError);
    input::click(workbench.frmMain().Command2);
    EXPECT_FALSE(enterTiming(workbench, 54, reduced)) << "editing is off";
    EXPECT_EQ(block0(54), before);
}

} // namespace
} // namespace wb::shell
