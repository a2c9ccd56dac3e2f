#include "cea/dispatch.h"

#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::cellRange;
using test::noElement;
using test::selectedOf;
using Cells = std::vector<int>;
using Texts = std::vector<std::string>;

class Dispatch : public test::EveryBlockTest {
protected:
    /// Cells `first` to `last` without one of them.
    static Cells without(int first, int last, int cell) {
        Cells cells = cellRange(first, last);
        std::erase(cells, cell);
        return cells;
    }
};

struct RowCase {
    int index;
    int panel; ///< -1: none
    std::string caption;
    Cells group;
    std::string kind; ///< of the block whose header was in focus
    bool last;        ///< the last audio descriptor is in focus
};

class DispatchRow : public Dispatch, public testing::WithParamInterface<RowCase> {};

TEST_P(DispatchRow, ShowsPanelAndColours) {
    const RowCase& row = GetParam();
    wb.LastAudioFocus = flagTrue;
    focusOn(row.index);
    EXPECT_EQ(panels(), row.panel < 0 ? Cells{} : Cells{row.panel});
    if (row.panel >= 0) {
        EXPECT_EQ(screen().Hints(row.panel).caption(), row.caption);
    }
    EXPECT_EQ(cellsOfColour(CellColour::Group), row.group);
    EXPECT_EQ(cellsOfColour(CellColour::Field), Cells{row.index});
    EXPECT_EQ(wb.DataBlockKind, row.kind);
    EXPECT_EQ(wb.LastAudioFocus, flag(row.last));
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
    EXPECT_EQ(screen().txtEdit(row.index).selLength(), 2);
    EXPECT_TRUE(boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DispatchRow,
    testing::Values(RowCase{0, -1, "", {}, "", false}, RowCase{1, 2, "Version Number (1)", {}, "", false},
                    RowCase{2, 3, "Detailed Timing Offset (2)", {}, "", false},
                    RowCase{3, 14, "Native Formats (3)", {}, "", false},
                    RowCase{4, 15, "Data Block Tag Codes (4)", {5, 6}, "ShortVideo", false},
                    RowCase{5, 16, "CEA Short Video Descriptor (5)", {6}, "", false},
                    RowCase{6, 16, "CEA Short Video Descriptor (6)", {5}, "", false},
                    RowCase{7, 15, "Data Block Tag Codes (7)", cellRange(8, 13), "ShortAudio", false},
                    RowCase{8, 0, "Compressed Audio Codes (8)", cellRange(9, 13), "", false},
                    RowCase{9, 5, "Audio Sampling Frequency (9)", {8, 10, 11, 12, 13}, "", false},
                    RowCase{10, 6, "Compressed Sampl bit rate (10)", {8, 9, 11, 12, 13}, "", false},
                    RowCase{11, 0, "Compressed Audio Codes (11)", {8, 9, 10, 12, 13}, "", true},
                    RowCase{12, 5, "Audio Sampling Frequency (12)", {8, 9, 10, 11, 13}, "", true},
                    RowCase{13, 6, "Compressed Sampl bit rate (13)", cellRange(8, 12), "", true},
                    RowCase{14, 15, "Data Block Tag Codes (14)", cellRange(15, 17), "ShortSpeaker", false},
                    RowCase{15, 4, "Speaker (15)", {16, 17}, "", false},
                    RowCase{16, 1, "Speaker (16)", {15, 17}, "", false},
                    RowCase{17, 1, "Speaker (17)", {15, 16}, "", false},
                    RowCase{18, 15, "Data Block Tag Codes (18)", cellRange(19, 25), "ShortVendor", false},
                    RowCase{19, 13, "Vendor Specific Data Block (19)", cellRange(20, 25), "", false},
                    RowCase{20, 13, "Vendor Specific Data Block (20)", {19, 21, 22, 23, 24, 25}, "", false},
                    RowCase{21, 13, "Vendor Specific Data Block (21)", {19, 20, 22, 23, 24, 25}, "", false},
                    RowCase{22, 7, "Vendor Specific Data Block (22)", {19, 20, 21, 23, 24, 25}, "", false},
                    RowCase{23, 7, "Vendor Specific Data Block (23)", {19, 20, 21, 22, 24, 25}, "", false},
                    RowCase{24, 8, "VSDB Extension (24)", {19, 20, 21, 22, 23, 25}, "", false},
                    RowCase{28,
                            9,
                            "Detailed Timing (26-43)",
                            {26, 27, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43},
                            "",
                            false},
                    RowCase{43, 10, "Detailed Timing (26-43)", cellRange(26, 42), "", false}),
    [](const auto& row) { return "Cell" + std::to_string(row.param.index); });

TEST_F(Dispatch, ACellWithoutARowShowsTheTagPanelAsItWas) {
    focusOn(14);
    focusOn(25);
    EXPECT_EQ(panels(), Cells{15});
    EXPECT_EQ(screen().Hints(15).caption(), "Data Block Tag Codes (14)");
    EXPECT_EQ(selectedOf(screen().optButTag), Cells{4});
    EXPECT_TRUE(cellsOfColour(CellColour::Group).empty());
    EXPECT_TRUE(cellsOfColour(CellColour::Field).empty());
    EXPECT_EQ(wb.DataBlockKind, "ShortSpeaker");
}

TEST_F(Dispatch, TheLastTwoCellsAskForLabelsThatAreNotThere) {
    for (const int index : {126, 127}) {
        focusOn(index);
        EXPECT_EQ(boxes(), Texts(2, noElement));
        EXPECT_TRUE(panels().empty());
        EXPECT_EQ(cellsOfColour(CellColour::Group), Cells{253 - index});
        EXPECT_EQ(cellsOfColour(CellColour::Field), Cells{index});
        EXPECT_EQ(screen().InFocusDispatch, flagFalse);
        EXPECT_EQ(screen().txtEdit(index).selLength(), 2);
    }
}

TEST_F(Dispatch, TheGateFollowsTheSwitch) {
    screen().DTHelp.setVisible(true);
    focusOn(5);
    EXPECT_FALSE(screen().DTHelp.ownVisible());
    for (const int panel : {0, 15, 16}) {
        EXPECT_FALSE(screen().Hints(panel).enabled());
    }
    for (const int index : {0, 1, 127}) {
        EXPECT_TRUE(screen().txtEdit(index).locked());
    }
    EXPECT_TRUE(screen().txtBrand.locked());
    EXPECT_TRUE(screen().txtModel.locked());
    modify();
    focusOn(6);
    for (const int panel : {0, 15, 16}) {
        EXPECT_TRUE(screen().Hints(panel).enabled());
    }
    EXPECT_TRUE(screen().txtEdit(0).locked()); // keeps the lock of the earlier focus
    EXPECT_FALSE(screen().txtEdit(1).locked());
    EXPECT_FALSE(screen().txtEdit(127).locked());
    EXPECT_FALSE(screen().txtBrand.locked());
}

TEST_F(Dispatch, Cell0IsNotLockedByAFocusInModifyMode) {
    modify();
    focusOn(6);
    EXPECT_FALSE(screen().txtEdit(0).locked());
}

TEST_F(Dispatch, Version) {
    setCell(1, "02");
    focusOn(1);
    EXPECT_EQ(screen().VerRev.text(), "2");
    EXPECT_EQ(screen().txtVersion.text(), "2");
    EXPECT_EQ(screen().lbEDID(0).caption(), "Version Number - 2");
    EXPECT_TRUE(screen().lbEDID(0).ownVisible());
    for (int i = 1; i <= 3; ++i) {
        EXPECT_FALSE(screen().lbEDID(i).ownVisible());
    }
    EXPECT_FALSE(screen().VerRel.enabled());
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(1));
}

TEST_F(Dispatch, AnUnreadableVersionIsToldByDecoderAndDispatch) {
    setCell(1, "ZZ");
    focusOn(1);
    EXPECT_EQ(boxes(), Texts(4, test::invalidCall));
    EXPECT_EQ(screen().VerRev.text(), "0");
}

TEST_F(Dispatch, OffsetDisablesTheVersionBox) {
    focusOn(2);
    EXPECT_EQ(screen().DetailOffset.text(), "26");
    EXPECT_EQ(screen().lbEDID(5).caption(), "Detailed Timing Start at - 26");
    EXPECT_TRUE(screen().lbEDID(5).ownVisible());
    EXPECT_FALSE(screen().lbEDID(1).ownVisible());
    EXPECT_FALSE(screen().VerRev.enabled());
    EXPECT_FALSE(screen().VerRel.enabled());
    modify(true);
    focusOn(1);
    EXPECT_TRUE(screen().VerRev.enabled());
    EXPECT_EQ(wb.focus.current(), &screen().VerRev);
}

TEST_F(Dispatch, OffsetIsShownAsItStandsAfterTheMove) {
    setCell(2, "00"); // moves the timings over the head: cell 2 takes the loaded cell 28
    wb.EDIDCells(128 + 28) = "0A";
    focusOn(2);
    EXPECT_EQ(cell(2), "0A");
    EXPECT_EQ(screen().DetailOffset.text(), "10");
    EXPECT_EQ(screen().lbEDID(5).caption(), "Detailed Timing Start at - 10");
}

TEST_F(Dispatch, OffsetOfABlockOfAnotherTagIsShownToo) {
    setCell(0, "F0");
    wb.CEADtdOffset = 0;
    setCell(2, "00");
    focusOn(2);
    EXPECT_EQ(wb.ExtDtdOffsetText, "2");
    EXPECT_EQ(screen().DetailOffset.text(), "0");
    EXPECT_EQ(screen().lbEDID(5).caption(), "No Detailed Timings provided");
}

TEST_F(Dispatch, SeekGoesToTheBoxOfThePanel) {
    modify(true);
    const std::pair<int, Control*> boxesOf[] = {
        {1, &screen().VerRev},          {2, &screen().DetailOffset},      {19, &screen().txtBoxVendorID},
        {21, &screen().txtBoxVendorID}, {22, &screen().txtBoxVendorData}, {23, &screen().txtBoxVendorData}};
    for (const auto& [index, box] : boxesOf) {
        box->setEnabled(false);
        focusOn(index);
        EXPECT_EQ(wb.focus.current(), box) << index;
        EXPECT_TRUE(box->enabled()) << index;
        EXPECT_EQ(box->selLength(), static_cast<int>(box->text().size())) << index;
    }
    for (const int index : {3, 4, 5, 8, 10, 15, 18, 24}) {
        focusOn(index);
        EXPECT_EQ(wb.focus.current(), &screen().txtEdit(index)) << index;
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dispatch, SeekNeedsBothSwitches) {
    wb.AutoCellSeekOn = flagTrue;
    focusOn(1);
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(1));
}

TEST_F(Dispatch, VideoCellsHideTheAudioFormat) {
    focusOn(7);
    EXPECT_TRUE(screen().FrmAudioFormat.ownVisible());
    focusOn(4);
    EXPECT_FALSE(screen().FrmAudioFormat.ownVisible());
    focusOn(7);
    focusOn(6);
    EXPECT_FALSE(screen().FrmAudioFormat.ownVisible());
    EXPECT_EQ(wb.ShortVideoCell, 6);
    focusOn(7);
    for (const int index : {9, 11, 12, 14}) {
        screen().FrmAudioFormat.setVisible(true);
        focusOn(index);
        EXPECT_FALSE(screen().FrmAudioFormat.ownVisible()) << index;
    }
    screen().FrmAudioFormat.setVisible(true);
    focusOn(18); // the vendor header leaves it
    EXPECT_TRUE(screen().FrmAudioFormat.ownVisible());
}

TEST_F(Dispatch, AVideoCellGivesAnUnknownAudioBlockItsPlace) {
    focusOn(5);
    EXPECT_EQ(wb.AudioBlockStart, 7); // known
    wb.AudioBlockStart = 0;
    focusOn(6);
    EXPECT_EQ(wb.AudioBlockStart, 7);
    wb.AudioBlockStart = 0;
    wb.ExtDtdOffsetText = "7"; // the timings are there
    focusOn(5);
    EXPECT_EQ(wb.AudioBlockStart, 0);
    wb.ExtDtdOffsetText = "26";
    wb.VideoBlockStart = 0;
    wb.VideoBlockLength = 6;
    focusOn(6);
    EXPECT_EQ(wb.AudioBlockStart, 0);
}

TEST_F(Dispatch, UncompressedAudioHasItsWords) {
    setCell(8, "0D");
    focusOn(7);
    focusOn(8);
    EXPECT_EQ(screen().Hints(0).caption(), "Uncompressed Audio (8)");
    EXPECT_FALSE(screen().FrmAudFormCode.ownVisible());
    focusOn(10);
    EXPECT_EQ(screen().Hints(6).caption(), "Uncompressed Sampl bit rate (10)");
    EXPECT_TRUE(screen().Frmbitrate.ownVisible());
    EXPECT_FALSE(screen().bitrateCBox.ownVisible());
    EXPECT_FALSE(screen().lbbitrate.ownVisible());
    focusOn(11); // a linear one too is called compressed here
    EXPECT_EQ(screen().Hints(0).caption(), "Compressed Audio Codes (11)");
    EXPECT_TRUE(screen().FrmAudFormCode.ownVisible());
}

TEST_F(Dispatch, CompressedAudioHasItsControls) {
    focusOn(8);
    EXPECT_TRUE(screen().FrmAudFormCode.ownVisible());
    EXPECT_EQ(selectedOf(screen().AudFormCode), Cells{2});
    focusOn(10);
    EXPECT_FALSE(screen().Frmbitrate.ownVisible());
    EXPECT_TRUE(screen().bitrateCBox.ownVisible());
    EXPECT_TRUE(screen().lbbitrate.ownVisible());
    EXPECT_EQ(screen().bitrateCBox.text(), "640");
    screen().Frmbitrate.setVisible(true);
    screen().lbbitrate.setVisible(false);
    screen().bitrateCBox.setVisible(false);
    focusOn(13);
    EXPECT_FALSE(screen().Frmbitrate.ownVisible());
    EXPECT_TRUE(screen().bitrateCBox.ownVisible());
    EXPECT_TRUE(screen().lbbitrate.ownVisible());
    EXPECT_EQ(screen().bitrateCBox.text(), "16");
}

TEST_F(Dispatch, TheBitRateCellsMoveTheSpeakers) {
    focusOn(10);
    EXPECT_EQ(wb.SpeakerBlockStart, 11);
    focusOn(13);
    EXPECT_EQ(wb.SpeakerBlockStart, 0);
    wb.SpeakerBlockStart = 14;
    wb.VideoBlockStart = 0;
    wb.VideoBlockLength = 0;
    focusOn(10);
    focusOn(13);
    EXPECT_EQ(wb.SpeakerBlockStart, 14);
}

TEST_F(Dispatch, TheLastDescriptorIsLocatedAnew) {
    setCell(7, "29"); // nine bytes
    focusOn(7);
    wb.LastAudioFormatText = "old";
    focusOn(11);
    EXPECT_EQ(wb.LastAudioDescriptor, 14);
    EXPECT_EQ(wb.LastAudioFocus, flagTrue);
    EXPECT_EQ(wb.LastAudioFormatText, "Reserved"); // 83 at cell 14
}

TEST_F(Dispatch, VendorCells) {
    screen().lbVendorData.setVisible(false);
    screen().lbVendorBlock.setVisible(false);
    focusOn(19);
    EXPECT_TRUE(screen().lbVendorData.ownVisible());
    EXPECT_EQ(screen().txtBoxVendorID.text(), "000C03");
    focusOn(22);
    EXPECT_TRUE(screen().lbVendorBlock.ownVisible());
    EXPECT_EQ(screen().lbVendorBlock.caption(), "Enter your vendor specific data. ");
    EXPECT_EQ(screen().txtBoxVendorData.text(), "1000");
}

TEST_F(Dispatch, HigherRowsHideLowerOnes) {
    wb.AudioBlockStart = 4; // same cell as the video block
    focusOn(4);
    EXPECT_EQ(wb.DataBlockKind, "ShortVideo");
    wb.SpeakerBlockStart = 5;
    focusOn(5);
    EXPECT_EQ(panels(), Cells{16});
    wb.VendorBlockStart = 1;
    focusOn(3);
    EXPECT_EQ(panels(), Cells{14});
    wb.ExtDtdStart = 2;
    focusOn(3);
    EXPECT_EQ(panels(), Cells{14});
    focusOn(60);
    EXPECT_EQ(panels(), Cells{9});
}

TEST_F(Dispatch, ALocationOf0CountsLikeAnyOther) {
    loadCollection({}, "04"); // timings right behind the head, no video block
    wb.AudioBlockStart = wb.SpeakerBlockStart = wb.VendorBlockStart = wb.LastAudioDescriptor = 0;
    wb.VideoBlockLength = 0;
    focusOn(4); // vendor data of a block at 0
    EXPECT_EQ(panels(), Cells{7});
    focusOn(6);
    EXPECT_EQ(panels(), Cells{8});
    focusOn(7);
    EXPECT_EQ(panels(), Cells{9});
    wb.VideoBlockLength = 7; // of a block at 0
    focusOn(6);
    EXPECT_EQ(panels(), Cells{16});
}

TEST_F(Dispatch, ALocationOutOf16BitsStopsIt) {
    modify();
    wb.VideoBlockStart = 32767;
    setCell(127, "old");
    focusOn(30);
    EXPECT_EQ(boxes(), Texts{"Overflow"});
    EXPECT_EQ(screen().InFocusDispatch, flagTrue);
    EXPECT_EQ(cell(127), "old");
}

TEST_F(Dispatch, TheCheckSumFollowsInModifyMode) {
    setCell(127, "old");
    focusOn(0);
    EXPECT_EQ(cell(127), "old");
    modify();
    focusOn(25);
    EXPECT_NE(cell(127), "old");
}

TEST_F(Dispatch, AStaleReportIsMadeAnew) {
    input::choose(wb.frmMain().Command1);
    wb.EDIDRedecodeNeeded = flagFalse;
    wb.frmDocument().rtftext.setText("old");
    focusOn(5);
    EXPECT_EQ(wb.frmDocument().rtftext.text(), "old");
    wb.EDIDRedecodeNeeded = flagTrue;
    focusOn(6);
    EXPECT_NE(wb.frmDocument().rtftext.text(), "old");
    EXPECT_EQ(wb.EDIDRedecodeNeeded, flagFalse);
    EXPECT_EQ(wb.focus.current(), &wb.frmDocument().rtftext);
}

} // namespace
} // namespace wb::cea
