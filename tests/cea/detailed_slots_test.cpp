#include "cea/detailed_slots.h"

#include <gmock/gmock.h>

#include "cea/definitions.h"
#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::cellRange;
using test::ExtensionTest;
using test::noElement;
using test::selectedOf;
using testing::HasSubstr;
using Texts = std::vector<std::string>;

/// 1920x1080 at 148.50 MHz, blanking 280 and 45, sync 88/44 and 4/5, 930 x 523 mm, separate sync of both polarities
/// (+).
const Texts fullHd = {"02", "3A", "80", "18", "71", "38", "2D", "40", "58",
                      "2C", "45", "00", "A2", "0B", "32", "00", "00", "1E"};

class Slots : public ExtensionTest {
protected:
    void setSlot(int base, const Texts& bytes) {
        for (const std::string& byte : bytes) {
            setCell(base++, byte);
        }
    }
    /// Decodes the cells from 40 on as slot 1.
    void decode(const Texts& bytes) {
        setSlot(40, bytes);
        screen().CurrentBlockBase = 40;
        screen().CurrentBlockNumber = 1;
        ConvertDetailedTiming(wb);
    }
    const std::string& text() { return wb.ExtDetailedBlockText(1); }
    std::string firstLine() { return text().substr(0, text().find("\r\n")); }
    static Texts with(Texts bytes, int offset, const std::string& byte) {
        bytes[static_cast<std::size_t>(offset)] = byte;
        return bytes;
    }
};

TEST_F(Slots, ATimingIsReportedWithItsScan) {
    wb.ExtDetailedBlockNote(1) = "old";
    decode(fullHd);
    const std::string rule(70, '_');
    const std::string pad(9, ' ');
    // The title has 35 characters: 35 - 17.5 is 17.5, which gives 18 blanks.
    EXPECT_EQ(text(), std::string(18, ' ') + "1920x1080p  Pixel Clock: 148.50 MHz\r\n" + rule + "\r\n" + pad +
                          "Horizontal Image Size: 930 mm     Vertical Image Size: 523 mm\r\n" + pad +
                          "Refreshed Mode: Non-Interlaced    Normal Display - No Stereo\r\n\r\nHorizontal:\r\n" + pad +
                          "Active Time: 1920 pixels          Blanking Time: 280 pixels\r\n" + pad +
                          "Sync Offset: 88 pixels            Sync Pulse Width: 44 pixels\r\n" + pad +
                          "Border: 0 pixels                  Frequency: 67.50 KHz\r\n\r\nVertical:\r\n" + pad +
                          "Active Time: 1080 lines           Blanking Time: 45 lines\r\n" + pad +
                          "Sync Offset: 4 lines              Sync Pulse Width: 5 lines\r\n" + pad +
                          "Border: 0 lines                   Frequency: 60.00 Hz\r\n\r\n"
                          "Digital Separate, Horizontal Polarity (+) Vertical Polarity (+)\r\n\r\n");
    EXPECT_EQ(wb.ExtDetailedBlockNote(1), "");
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Slots, AnInterlacedTitleTellsTheWholeFrame) {
    decode(with(with(with(fullHd, 5, "1C"), 7, "20"), 17, "9E")); // 540 lines
    EXPECT_EQ(firstLine(), std::string(18, ' ') + "1920x1080i  Pixel Clock: 148.50 MHz");
    EXPECT_THAT(text(), HasSubstr("Active Time: 540 lines"));
    EXPECT_THAT(text(), HasSubstr("Refreshed Mode: Interlaced"));
    EXPECT_EQ(screen().DT(3).caption(), "Active Time - 540 lines");
    EXPECT_EQ(screen().DT1.value(), 1);
    // 585 lines of 14.81 us: the title changes no rate
    EXPECT_THAT(text(), HasSubstr("Frequency: 115.38 Hz"));
    decode(with(with(with(fullHd, 5, "1C"), 7, "20"), 17, "1E"));
    EXPECT_EQ(firstLine(), std::string(18, ' ') + "1920x540p  Pixel Clock: 148.50 MHz");
}

TEST_F(Slots, BitZeroAloneIsANormalDisplay) {
    screen().DTStereo(3).changeValue(-1);
    decode(with(fullHd, 17, "01"));
    EXPECT_EQ(screen().frmStereo.caption(), "Normal Display - No Stereo");
    EXPECT_THAT(text(), HasSubstr("Normal Display - No Stereo"));
    EXPECT_TRUE(selectedOf(screen().DTStereo).empty());
}

TEST_F(Slots, StereoKinds) {
    const std::pair<const char*, int> kinds[] = {{"20", 0}, {"21", 2}, {"40", 1}, {"41", 3}, {"60", 4}, {"61", 5}};
    for (const auto& [flags, option] : kinds) {
        decode(with(fullHd, 17, flags));
        EXPECT_EQ(screen().frmStereo.caption(), "Stereo") << flags;
        EXPECT_EQ(selectedOf(screen().DTStereo), std::vector<int>{option}) << flags;
        EXPECT_THAT(text(), HasSubstr("Refreshed Mode: Non-Interlaced    Stereo\r\n")) << flags;
    }
}

TEST_F(Slots, HeadingsOfWhatIsNoTiming) {
    const std::pair<const char*, const char*> headings[] = {{"FF", "Monitor Serial Number:"},
                                                            {"FE", "ASCII Data:"},
                                                            {"FD", "Monitor Range Limits:"},
                                                            {"FC", "Monitor Name:"},
                                                            {"fc", "Monitor Name:"},
                                                            {"FB", "Color Point:"},
                                                            {"FA", "Standard Timing Identifiers:"},
                                                            {"00", "Defined by Manufacturer:"},
                                                            {"10", "No Data:"}};
    for (const auto& [tag, heading] : headings) {
        screen().DT(0).setCaption("kept");
        decode({"00", "00", "00", tag});
        EXPECT_EQ(text(), heading) << tag;
        EXPECT_EQ(screen().DT(0).caption(), "kept");
        EXPECT_EQ(screen().InFocusDispatch, flagFalse);
    }
}

TEST_F(Slots, TheDescriptorFlagPlaysNoPart) {
    screen().CurrentBlockIsDescriptor = flagTrue;
    decode(fullHd);
    EXPECT_EQ(firstLine(), std::string(18, ' ') + "1920x1080p  Pixel Clock: 148.50 MHz");
}

TEST_F(Slots, ASlotPastTheGridGoesOnStatementByStatement) {
    setSlot(120, {"02", "3A", "80", "18", "71", "38", "2D", "40"});
    screen().CurrentBlockBase = 120;
    screen().CurrentBlockNumber = 0;
    screen().frmStereo.setCaption("old");
    screen().DTStereo(2).changeValue(-1);
    ConvertDetailedTiming(wb);
    // Eight fields, the flags, and the digit of the stereo step.
    EXPECT_EQ(boxes(), Texts(10, noElement));
    EXPECT_EQ(screen().DT(4).caption(), "Blanking Time - 45 lines");
    EXPECT_EQ(screen().frmStereo.caption(), "Stereo");
    EXPECT_TRUE(selectedOf(screen().DTStereo).empty());
    EXPECT_EQ(screen().Freq(0).caption(), "Horizontal - 67.50 KHz");
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
}

TEST_F(Slots, ASlotNumberWithoutATextStillRaisesTheFlag) {
    // The walk over eight audio descriptors leaves the number 7, and there are seven texts.
    Texts collection(27, "07");
    collection[0] = "41";
    collection[2] = "38";
    loadCollection(collection);
    focusOn(wb.LastAudioDescriptor);
    ASSERT_EQ(screen().CurrentBlockNumber, 7);
    setSlot(40, fullHd);
    screen().CurrentBlockBase = 40;
    screen().SyncSerrate.changeValue(0);
    boxes();
    ConvertDetailedTiming(wb);
    // Emptied, begun and written; without the flag the click of a sync option would decode the slot again, and again.
    EXPECT_EQ(boxes(), Texts(3, "Subscript out of range"));
    EXPECT_EQ(cell(57), "1E");
    EXPECT_EQ(selectedOf(screen().DTSync), std::vector<int>{3});
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
}

TEST_F(Slots, TheSlotCountIsWorkedOutTowardsZero) {
    const std::pair<int, int> counts[] = {{4, 6}, {17, 6}, {18, 5}, {107, 1}, {108, 0}, {125, 0}, {142, 0}, {143, -1}};
    for (const auto& [start, count] : counts) {
        wb.ExtDtdStart = static_cast<std::int16_t>(start);
        EXPECT_EQ(lastSlotOf(wb), count) << start;
    }
}

class SlotWalk : public Slots {
protected:
    Texts headings() {
        Texts texts;
        for (int i = 0; i < wb.ExtDetailedBlockText.size(); ++i) {
            texts.push_back(wb.ExtDetailedBlockText(i));
            wb.ExtDetailedBlockText(i) = "kept";
        }
        return texts;
    }
};

TEST_F(SlotWalk, CoversTheTimingArea) {
    headings();
    load({"02", "03", "28"}); // 40: slots 0 to 4, the last one at 112
    EXPECT_EQ(wb.ExtDtdSlotCount, 4);
    EXPECT_EQ(screen().CurrentBlockBase, 112);
    EXPECT_EQ(screen().CurrentBlockNumber, 4);
    const std::string zeros = "Defined by Manufacturer:";
    EXPECT_EQ(headings(), (Texts{zeros, zeros, zeros, zeros, zeros, "kept", "kept"}));
}

TEST_F(SlotWalk, TheSixthAndSeventhSlotMustBeWhole) {
    headings();
    load({"02", "03", "0F"}); // 15: slot 5 at 105, slot 6 at 123
    EXPECT_EQ(wb.ExtDtdSlotCount, 6);
    EXPECT_EQ(screen().CurrentBlockBase, 123);
    const std::string zeros = "Defined by Manufacturer:";
    EXPECT_EQ(headings(), (Texts{zeros, zeros, zeros, zeros, zeros, zeros, "kept"}));
    load({"02", "03", "12"}); // 18: slot 5 at 108, one cell short
    EXPECT_EQ(wb.ExtDtdSlotCount, 5);
    EXPECT_EQ(headings(), (Texts{zeros, zeros, zeros, zeros, zeros, "kept", "kept"}));
}

TEST_F(SlotWalk, WithoutTimingsItStartsAtCell0AndLeavesSlotsAt90) {
    headings();
    load({"02", "03", "00"});
    EXPECT_EQ(wb.ExtDtdSlotCount, 6);
    EXPECT_EQ(screen().CurrentBlockBase, 108);
    const Texts texts = headings();
    EXPECT_THAT(texts[0], HasSubstr("Pixel Clock: 7.70 MHz")); // 0302 from cell 0 on
    EXPECT_EQ(texts[1], "Defined by Manufacturer:");
    EXPECT_EQ(texts[4], "Defined by Manufacturer:");
    EXPECT_EQ(texts[5], "kept");
    EXPECT_EQ(texts[6], "kept");
}

TEST_F(SlotWalk, BehindTheAreaThereIsNone) {
    headings();
    boxes();
    load({"02", "03", "8F"}); // 143
    EXPECT_EQ(wb.ExtDtdSlotCount, -1);
    EXPECT_EQ(headings(), Texts(7, "kept"));
}

class SlotDispatch : public Slots {
protected:
    void SetUp() override {
        load({"02", "03", "28"});
        wb.VideoBlockStart = 0;
        setSlot(40, fullHd);
        setSlot(58, fullHd);
    }
};

struct SlotField {
    int offset;
    int option; ///< -1: none
    bool input;
};

const SlotField slotFields[] = {{0, 0, true},  {1, 0, true},   {2, 1, true},   {3, 2, true},   {4, -1, false},
                                {5, 3, true},  {6, 4, true},   {7, -1, false}, {8, 5, true},   {9, 6, true},
                                {10, 7, true}, {11, 8, true},  {12, 11, true}, {13, 12, true}, {14, -1, false},
                                {15, 9, true}, {16, 10, true}, {17, -1, true}};

TEST_F(SlotDispatch, EachCellHasItsOption) {
    for (const SlotField& field : slotFields) {
        screen().DTInput.setText("old");
        focusOn(58 + field.offset);
        EXPECT_EQ(panels(), std::vector<int>{field.offset == 17 ? 10 : 9}) << field.offset;
        EXPECT_EQ(selectedOf(screen().DT), field.option < 0 ? std::vector<int>{} : std::vector<int>{field.option})
            << field.offset;
        EXPECT_EQ(screen().DTInput.ownVisible(), field.input) << field.offset;
        EXPECT_EQ(screen().DTInput.text(), "");
        EXPECT_EQ(cellsOfColour(CellColour::Field),
                  field.offset <= 1 ? (std::vector<int>{58, 59}) : std::vector<int>{58 + field.offset});
        EXPECT_EQ(cellsOfColour(CellColour::Group).size(), field.offset <= 1 ? 16 : 17);
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(SlotDispatch, FindsTheSlotAndCaptionsIt) {
    screen().CurrentBlockIsDescriptor = flagTrue;
    focusOn(40);
    EXPECT_EQ(screen().CurrentBlockBase, 40);
    EXPECT_EQ(screen().CurrentBlockNumber, 0);
    EXPECT_EQ(screen().Hints(9).caption(), "Detailed Timing (40-57)");
    EXPECT_EQ(screen().Hints(10).caption(), "Detailed Timing (40-57)");
    EXPECT_EQ(screen().CurrentBlockIsDescriptor, flagFalse);
    focusOn(58);
    EXPECT_EQ(screen().CurrentBlockNumber, 1);
    focusOn(112);
    EXPECT_EQ(screen().CurrentBlockNumber, 4);
    EXPECT_EQ(screen().CurrentBlockBase, 112);
}

TEST_F(SlotDispatch, AStartAt4GivesItsCaptions) {
    load({"02", "03", "04"});
    focusOn(7);
    EXPECT_EQ(screen().Hints(9).caption(), "Detailed Timing (4-21)");
}

TEST_F(SlotDispatch, AnIncompleteLastSlotRunsIntoTheEnd) {
    load({"02", "03", "6F"}); // 111
    wb.VideoBlockStart = 0;
    boxes();
    focusOn(125);
    EXPECT_EQ(screen().CurrentBlockBase, 111);
    EXPECT_EQ(screen().Hints(9).caption(), "Detailed Timing (111-128)");
    EXPECT_EQ(cellsOfColour(CellColour::Group),
              (std::vector<int>{111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 126, 127}));
    EXPECT_EQ(boxes(), Texts{noElement}); // colour of 128; the zeros are no timing
}

TEST_F(SlotDispatch, ZerosAreShownAsATimingToo) {
    focusOn(76);
    EXPECT_EQ(panels(), std::vector<int>{9});
    EXPECT_EQ(wb.ExtDetailedBlockText(2), "Defined by Manufacturer:");
}

TEST_F(SlotDispatch, AllStereoOptionsAreCleared) {
    screen().DTStereo(6).changeValue(-1);
    focusOn(76); // no timing, so that the decoder selects none
    EXPECT_TRUE(selectedOf(screen().DTStereo).empty());
}

TEST_F(SlotDispatch, SeekGoesOnToTheInputBox) {
    modify(true);
    focusOn(41);
    EXPECT_EQ(wb.focus.current(), &screen().DTInput);
    focusOn(44);
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(44));
}

TEST_F(SlotDispatch, AnEntryIsWrittenAndDecoded) {
    visit(58);
    enter(screen().DTInput, "65");
    EXPECT_EQ(cell(58), "64");
    EXPECT_EQ(cell(59), "19");
    EXPECT_EQ(screen().DT(0).caption(), "Pixel Clock - 65.00 MHz");
    EXPECT_THAT(wb.ExtDetailedBlockText(1), HasSubstr("Pixel Clock: 65.00 MHz"));
    enter(screen().DTInput, "655.35");
    EXPECT_EQ(boxes(), Texts{"Invalid Value"});
    EXPECT_EQ(cell(58), "64");
}

TEST_F(SlotDispatch, AnEntryThatCannotBeReadCountsAsNothingAndAClockIsReadTwice) {
    visit(60);
    enter(screen().DTInput, "1E400");
    EXPECT_EQ(boxes(), Texts{"Overflow"});
    EXPECT_EQ(cell(60), "00");
    EXPECT_EQ(cell(62), "01"); // the blanking part of "71" stays
    visit(58);
    enter(screen().DTInput, "1E400");
    EXPECT_EQ(boxes(), Texts(2, "Overflow"));
    EXPECT_EQ(cell(58), "00");
    EXPECT_EQ(cell(59), "00");
}

TEST_F(SlotDispatch, AnOptionLeadsToItsCell) {
    visit(58);
    choose(screen().DT(11), -1);
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(70));
}

TEST_F(SlotDispatch, TheFlagByteIsEdited) {
    visit(57);
    choose(screen().DT1, 1);
    EXPECT_EQ(cell(57), "9E");
    choose(screen().DTStereo(5), -1);
    EXPECT_EQ(cell(57), "FF");
    EXPECT_EQ(screen().frmStereo.caption(), "Stereo");
    choose(screen().DTStereo(6), -1);
    EXPECT_EQ(cell(57), "9E");
    EXPECT_EQ(screen().frmStereo.caption(), "Normal Display - No Stereo");
    ASSERT_TRUE(input::click(screen().VSyncLine));
    EXPECT_EQ(cell(57), "9A");
    ASSERT_TRUE(input::click(screen().VSyncLine));
    EXPECT_EQ(cell(57), "9E");
    choose(screen().DTSync(2), -1); // polarities stay, the second one now is the serration
    EXPECT_EQ(cell(57), "96");
    EXPECT_EQ(screen().SyncSerrate.value(), 1);
    EXPECT_EQ(screen().SyncLine.caption(), "Composite Polarity (+)");
    ASSERT_TRUE(input::click(screen().SyncLine));
    EXPECT_EQ(cell(57), "94");
    choose(screen().SyncSerrate, 0);
    EXPECT_EQ(cell(57), "90");
    choose(screen().SyncSerrate, 1);
    EXPECT_EQ(cell(57), "94");
    EXPECT_THAT(wb.ExtDetailedBlockText(0), HasSubstr("Digital Composite (Serrate) Composite Polarity (-)"));
}

} // namespace
} // namespace wb::cea
