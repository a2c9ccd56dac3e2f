#include "cea/data_blocks.h"

#include "cea/definitions.h"
#include "cea/extension_fixture.h"
#include "core/base/text.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using test::noElement;
using Texts = std::vector<std::string>;

/// A block whose cells hold their own numbers, but for the head, with the timings at `offset`.
Texts numberedBlock(const std::string& offset) {
    Texts bytes;
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        bytes.push_back(ByteToHex2(i));
    }
    bytes[0] = "02";
    bytes[1] = "03";
    bytes[2] = offset;
    return bytes;
}

class Offset : public ExtensionTest {
protected:
    void moveTo(const std::string& offset) {
        boxes();
        setCell(2, offset);
        LocateDataBlocks(wb);
    }
    Texts cells(int first, int last) {
        Texts texts;
        for (int i = first; i <= last; ++i) {
            texts.push_back(cell(i));
        }
        return texts;
    }
    Texts numbers(int first, int last) {
        Texts texts;
        for (int i = first; i <= last; ++i) {
            texts.push_back(ByteToHex2(i));
        }
        return texts;
    }
    static Texts zeros(int count) { return Texts(static_cast<std::size_t>(count), "00"); }
};

TEST_F(Offset, IsToldInDecimal) {
    load({"02", "03", "1A"});
    EXPECT_EQ(wb.ExtDtdOffsetText, "26");
    EXPECT_EQ(wb.ExtDtdStart, 26);
    EXPECT_EQ(wb.CEADtdOffset, 26);
    EXPECT_EQ(screen().lbEDID(5).caption(), "Detailed Timing Start at - 26");
}

TEST_F(Offset, ZeroMeansNoTimings) {
    load({"02", "03", "00"});
    EXPECT_EQ(wb.ExtDtdOffsetText, "0");
    EXPECT_EQ(wb.ExtDtdStart, 4);
    EXPECT_EQ(screen().lbEDID(5).caption(), "No Detailed Timings provided");
    EXPECT_EQ(wb.VideoBlockStart, 4);
}

TEST_F(Offset, ABlockOfAnotherTagHasFixedStarts) {
    setCell(0, "F0");
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.ExtDtdStart, 2);
    EXPECT_EQ(wb.ExtDtdOffsetText, "2");
    setCell(2, "01");
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.ExtDtdStart, 3);
    EXPECT_EQ(wb.ExtDtdOffsetText, "3");
    EXPECT_EQ(screen().lbEDID(5).caption(), "No Detailed Timings provided");
}

TEST_F(Offset, AnUnreadableOneKeepsTheOldLocation) {
    load({"02", "03", "1A"});
    moveTo("ZZ");
    EXPECT_EQ(boxes(), (Texts{test::invalidCall, test::invalidCall}));
    EXPECT_EQ(wb.ExtDtdOffsetText, "26");
    EXPECT_EQ(wb.ExtDtdStart, 26);
}

TEST_F(Offset, UnchangedNothingMoves) {
    load(numberedBlock("0A"));
    setCell(50, "EE");
    const Texts before = cells(0, 127);
    moveTo("0A");
    EXPECT_EQ(cells(0, 127), before);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Offset, NothingMovesWhereTheImageHadNone) {
    load(numberedBlock("00"));
    moveTo("0A");
    EXPECT_EQ(cells(3, 127), numbers(3, 127));
}

TEST_F(Offset, MovingUpBlanksTheGapAndRunsPastTheGrid) {
    load(numberedBlock("0A"));
    moveTo("0C");
    EXPECT_EQ(cells(3, 9), numbers(3, 9));
    EXPECT_EQ(cells(10, 11), zeros(2));
    EXPECT_EQ(cells(12, 127), numbers(10, 125)); // the loaded cell 127 is left out
    EXPECT_EQ(boxes(), Texts{noElement});        // 117 cells from 12 on end at 128
}

TEST_F(Offset, ALargeMoveUpTellsEachCellPastTheGrid) {
    load(numberedBlock("0A"));
    moveTo("1E");
    EXPECT_EQ(cells(10, 29), zeros(20));
    EXPECT_EQ(cells(30, 127), numbers(10, 107));
    EXPECT_EQ(boxes(), Texts(19, noElement)); // 128 to 146
}

TEST_F(Offset, MovingDownTakesTheCheckSumAlong) {
    load(numberedBlock("0C"));
    moveTo("0B");
    EXPECT_EQ(cells(11, 125), numbers(12, 126));
    EXPECT_EQ(cell(126), "00"); // had the loaded cell 127
    EXPECT_EQ(cell(127), "7F");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Offset, MovingDownBy3RunsTheCopyASecondTime) {
    load(numberedBlock("0D"));
    moveTo("0A");
    EXPECT_EQ(cells(10, 123), numbers(13, 126));
    EXPECT_EQ(cells(124, 126), zeros(3));
    EXPECT_EQ(cell(127), "0E");                // second run: 126 from 13, 127 from 14
    EXPECT_EQ(boxes(), Texts(113, noElement)); // 128 to 240
}

TEST_F(Offset, ZeroAfterALoadedOffsetOverwritesTheHead) {
    load(numberedBlock("0A"));
    moveTo("00");
    EXPECT_EQ(cells(0, 116), numbers(10, 126));
    EXPECT_EQ(cells(117, 126), zeros(10));
    EXPECT_EQ(cell(127), "12");                // second run from 119 on: 127 from 18
    EXPECT_EQ(boxes(), Texts(109, noElement)); // 128 to 236
}

TEST_F(Offset, ASecondMoveCopiesFromTheSameLoadedCells) {
    load(numberedBlock("0A"));
    moveTo("0C");
    moveTo("0B");
    EXPECT_EQ(cell(10), "00");
    EXPECT_EQ(cells(11, 127), numbers(10, 126));
    EXPECT_EQ(wb.CEADtdOffset, 10);
    EXPECT_TRUE(boxes().empty()); // 117 cells from 11 on end at 127
}

struct Collection {
    const char* name;
    Texts bytes;
    std::string offset;
    std::vector<int> starts; ///< video, audio, speaker, vendor
};

class Scan : public ExtensionTest, public testing::WithParamInterface<Collection> {};

TEST_P(Scan, FindsTheFirstHeaderOfEachKind) {
    loadCollection(GetParam().bytes, GetParam().offset);
    EXPECT_EQ((std::vector<int>{wb.VideoBlockStart, wb.AudioBlockStart, wb.SpeakerBlockStart, wb.VendorBlockStart}),
              GetParam().starts);
}

INSTANTIATE_TEST_SUITE_P(
    Collections, Scan,
    testing::Values(
        Collection{"VideoAndAudio", {"43", "84", "85", "86", "23", "09", "07", "07"}, "14", {4, 8, 0, 0}},
        Collection{"SpeakersAreNotFoundAtFirst",
                   {"41", "90", "23", "09", "07", "07", "83", "01", "00", "00", "65", "03", "0C", "00", "10", "00"},
                   "14",
                   {4, 6, 0, 14}},
        Collection{"VendorBehindVideo", {"41", "90", "65", "03", "0C", "00", "10", "00"}, "0C", {4, 0, 0, 6}},
        // The screen starts with the video block at 4, which hides an audio header there.
        Collection{
            "AudioFirstHidesBehindTheEmptyVideoBlock", {"23", "09", "07", "07", "42", "90", "04"}, "0B", {4, 0, 0, 0}},
        Collection{"SecondVideoHeaderIsIgnored", {"41", "90", "42", "04", "05"}, "09", {4, 0, 0, 0}},
        Collection{"AudioDataIsNoVendorHeader", {"41", "90", "23", "65", "07", "65", "65"}, "0B", {4, 6, 0, 10}},
        Collection{"OffsetEndsTheScan", {"41", "90", "23", "09", "07", "07"}, "06", {4, 0, 0, 0}},
        Collection{"Offset4", {"41", "90"}, "04", {0, 0, 0, 0}},
        Collection{"NoOffset", {"41", "90"}, "00", {4, 0, 0, 0}}, // where it stood
        Collection{"VideoAloneIsTakenToStartAt4", {"00", "00", "43", "84"}, "08", {4, 0, 0, 0}},
        Collection{"UnknownTags", {"A1", "E1", "C1"}, "0A", {4, 0, 0, 0}}),
    [](const auto& collection) { return collection.param.name; });

class ScanState : public ExtensionTest {};

TEST_F(ScanState, LengthsOfTheVideoHeaderOnly) {
    wb.AudioBlockLength = 9;
    load({"02", "03", "14", "00", "5F"});
    EXPECT_EQ(wb.VideoBlockLength, 31);
    wb.VideoBlockLength = 1;
    wb.AudioBlockLength = 9;
    setCell(4, "43");
    setCell(8, "26");
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.VideoBlockLength, 3);
    EXPECT_EQ(wb.AudioBlockStart, 8);
    EXPECT_EQ(wb.AudioBlockLength, 9);
}

TEST_F(ScanState, ASecondRunFindsTheSpeakers) {
    loadCollection({"41", "90", "23", "09", "07", "07", "83", "01", "00", "00", "65", "03", "0C", "00", "10", "00"},
                   "14");
    EXPECT_EQ(wb.SpeakerBlockStart, 0);
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.SpeakerBlockStart, 10);
}

TEST_F(ScanState, SpeakersBehindTheVendorBlockStayUnknown) {
    loadCollection({"41", "90", "23", "09", "07", "07", "63", "03", "0C", "00", "83", "01", "00", "00"}, "12");
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.VendorBlockStart, 10);
    EXPECT_EQ(wb.SpeakerBlockStart, 0);
}

TEST_F(ScanState, TheFirstVendorAndSpeakerHeadersCount) {
    loadCollection({"41", "90", "23", "09", "07", "07", "81", "01", "81", "01", "61", "03", "61", "03"}, "12");
    EXPECT_EQ(wb.VendorBlockStart, 14);
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.SpeakerBlockStart, 10);
    EXPECT_EQ(wb.VendorBlockStart, 14);
}

TEST_F(ScanState, OnlyTheAudioLengthOfTheSameWalkGuards) {
    wb.AudioBlockStart = 5; // of an earlier image
    wb.AudioBlockLength = 9;
    loadCollection({"41", "90", "61", "03"}, "08");
    EXPECT_EQ(wb.VendorBlockStart, 6);
}

TEST_F(ScanState, WithoutAVideoBlockAudioMayStandFirst) {
    loadCollection({}, "04"); // leaves no video block
    loadCollection({"23", "09", "07", "07", "42", "90", "04"}, "0B");
    EXPECT_EQ(wb.AudioBlockStart, 4);
    EXPECT_EQ(wb.VideoBlockStart, 8);
    EXPECT_EQ(wb.VideoBlockLength, 2);
}

TEST_F(ScanState, AKindThatIsNotMetKeepsItsPlace) {
    loadCollection({"41", "90", "23", "09", "07", "07"}, "0A");
    loadCollection({"00", "00", "42", "90", "04"}, "09");
    EXPECT_EQ(wb.VideoBlockStart, 6);
    EXPECT_EQ(wb.AudioBlockStart, 6);
}

TEST_F(ScanState, VideoStartReturnsTo4WhileNothingElseIsKnown) {
    wb.VideoBlockStart = 77;
    loadCollection({"00"}, "08");
    EXPECT_EQ(wb.VideoBlockStart, 4);
    wb.VideoBlockStart = 77;
    wb.SpeakerBlockStart = 9;
    LocateDataBlocks(wb);
    EXPECT_EQ(wb.VideoBlockStart, 77);
}

TEST_F(ScanState, RunsPastTheGridWithALargeOffset) {
    wb.frmCEA_EXT();
    setCell(2, "C8");
    LocateDataBlocks(wb);
    EXPECT_EQ(boxes(), Texts(72, noElement)); // 128 to 199
}

TEST(HeaderFields, TagAndLength) {
    test::Program program;
    EXPECT_EQ(tagDigits("5F"), "010");
    EXPECT_EQ(dataLength(program.workbench, "5F"), 31);
    EXPECT_EQ(tagDigits("4"), "010");
    EXPECT_EQ(dataLength(program.workbench, "5"), 1);   // no digits behind the first
    EXPECT_EQ(dataLength(program.workbench, "45F"), 5); // a third character is no digit of the byte
    EXPECT_EQ(tagDigits("ZZ"), "");
    EXPECT_EQ(dataLength(program.workbench, "ZZ"), 0);
    EXPECT_EQ(tagDigits("e3"), ""); // lower case has no digits
    EXPECT_EQ(dataLength(program.workbench, "e3"), 3);
}

} // namespace
} // namespace wb::cea
