#include "cea/tag_panel.h"

#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::cellRange;
using test::ExtensionTest;
using test::noElement;
using test::selectedOf;
using Texts = std::vector<std::string>;

struct HeaderCase {
    std::string cell;
    int option; ///< -1: none
    int length;
    std::string text;
};

class TagDecoder : public ExtensionTest, public testing::WithParamInterface<HeaderCase> {};

TEST_P(TagDecoder, ShowsTagAndLength) {
    clearColours();
    setCell(40, GetParam().cell);
    wb.VideoBlockStart = 40;
    BuildVideoTag(wb);
    EXPECT_EQ(selectedOf(screen().optButTag),
              GetParam().option < 0 ? std::vector<int>{} : std::vector<int>{GetParam().option});
    EXPECT_EQ(screen().TagCBox.value(), GetParam().length);
    EXPECT_EQ(wb.VideoBlockLength, GetParam().length);
    EXPECT_EQ(wb.VideoTagText, GetParam().text);
    EXPECT_EQ(cellsOfColour(CellColour::Group), cellRange(41, 40 + GetParam().length));
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
    EXPECT_TRUE(boxes().empty());
}

// "Number of Data Byte to Follow: " has 31 characters, so that two or three blanks fill up to 34.
INSTANTIATE_TEST_SUITE_P(
    Headers, TagDecoder,
    testing::Values(HeaderCase{"00", 0, 0, "Reserved, Number of Data Byte to Follow: 0  \r\n"},
                    HeaderCase{"1F", 0, 31, "Reserved, Number of Data Byte to Follow: 31 \r\n"},
                    HeaderCase{"23", 1, 3, "Audio Data Block, Number of Data Byte to Follow: 3  \r\n"},
                    HeaderCase{"5F", 2, 31,
                               "Video Data Block/Short Video Descriptors, Number of Data Byte to Follow: 31 \r\n"},
                    HeaderCase{"65", 3, 5, "Vendor Specific Data Block, Number of Data Byte to Follow: 5  \r\n"},
                    HeaderCase{"83", 4, 3, "Speaker Data Block, Number of Data Byte to Follow: 3  \r\n"},
                    HeaderCase{"A2", -1, 2, ", Number of Data Byte to Follow: 2  \r\n"},
                    HeaderCase{"C2", -1, 2, ", Number of Data Byte to Follow: 2  \r\n"},
                    HeaderCase{"F2", -1, 18, ", Number of Data Byte to Follow: 18 \r\n"},
                    HeaderCase{"ZZ", -1, 0, ", Number of Data Byte to Follow: 0  \r\n"},
                    HeaderCase{"", -1, 0, ", Number of Data Byte to Follow: 0  \r\n"}),
    [](const auto& header) { return test::cellName(header.param.cell); });

class TagPanel : public ExtensionTest {};

TEST_F(TagPanel, EachKindHasItsOwnPlace) {
    wb.SpeakerBlockStart = 50;
    wb.VendorBlockStart = 60;
    setCell(50, "82");
    setCell(60, "67");
    BuildSpeakerTag(wb);
    BuildVendorTag(wb);
    EXPECT_EQ(wb.SpeakerBlockLength, 2);
    EXPECT_EQ(wb.SpeakerTagText, "Speaker Data Block, Number of Data Byte to Follow: 2  \r\n");
    EXPECT_EQ(wb.VendorBlockLength, 7);
    EXPECT_EQ(wb.VendorTagText, "Vendor Specific Data Block, Number of Data Byte to Follow: 7  \r\n");
}

TEST_F(TagPanel, AudioHasACommaMoreAndItsKind) {
    wb.AudioBlockStart = 50;
    setCell(50, "23");
    setCell(51, "0F"); // 0 0001 111: linear PCM
    BuildAudioTag(wb);
    EXPECT_EQ(wb.AudioTagText, "Audio Data Block, Number of Data Byte to Follow: 3  , \r\n");
    EXPECT_EQ(wb.AudioBlockLength, 3);
    EXPECT_EQ(wb.AudioKindText, "Uncompressed");
    EXPECT_EQ(selectedOf(screen().AudioFormat), std::vector<int>{0});
    setCell(51, "17"); // 0 0010 111
    BuildAudioTag(wb);
    EXPECT_EQ(wb.AudioKindText, "Compressed");
    EXPECT_EQ(selectedOf(screen().AudioFormat), std::vector<int>{1});
    setCell(51, "8F"); // bit 7 is no part of the code
    BuildAudioTag(wb);
    EXPECT_EQ(wb.AudioKindText, "Uncompressed");
    EXPECT_EQ(cell(51), "8F"); // the options changed no cell
}

TEST_F(TagPanel, ALongBlockAtTheEndTellsEachCellPastTheGrid) {
    clearColours();
    wb.VideoBlockStart = 100;
    setCell(100, "5F");
    BuildVideoTag(wb);
    EXPECT_EQ(boxes(), Texts(4, noElement)); // 128 to 131
    EXPECT_EQ(wb.VideoBlockLength, 31);
    EXPECT_EQ(cellsOfColour(CellColour::Group), cellRange(101, 127));
}

TEST_F(TagPanel, AHeaderPastTheGridCountsAsEmpty) {
    wb.VendorBlockStart = 128;
    BuildVendorTag(wb);
    EXPECT_EQ(boxes(), Texts(2, noElement)); // its tag, its length
    EXPECT_EQ(wb.VendorBlockLength, 0);
    EXPECT_EQ(wb.VendorTagText, ", Number of Data Byte to Follow: 0  \r\n");
}

TEST_F(TagPanel, ALocationOutOf16BitsStopsTheDecoder) {
    wb.VideoBlockStart = 32767;
    BuildVideoTag(wb);
    EXPECT_EQ(boxes(), (Texts{noElement, noElement, "Overflow"}));
    EXPECT_EQ(screen().InFocusDispatch, flagTrue);
}

TEST_F(TagPanel, BeforeAnyHeaderTheHandlersOnlyRunTheCheckSum) {
    modify();
    optButTag_Click(wb, 3);
    EXPECT_EQ(cell(127), "FB");
    setCell(127, "00");
    screen().TagCBox.changeValue(5);
    TagCBox_Click(wb, 0);
    EXPECT_EQ(cell(127), "FB");
    for (int i = 2; i < 127; ++i) {
        EXPECT_EQ(cell(i), "00");
    }
}

TEST_F(TagPanel, TheHandlersRestWhileADecoderRuns) {
    modify();
    wb.DataBlockKind = "ShortVideo";
    screen().InFocusDispatch = flagTrue;
    optButTag_Click(wb, 3);
    TagCBox_Click(wb, 0);
    EXPECT_EQ(cell(4), "00");
    EXPECT_EQ(cell(127), "00");
}

struct KindCase {
    std::string kind;
    std::int16_t SharedVariables::*start;
};

class TagChoice : public ExtensionTest, public testing::WithParamInterface<KindCase> {};

TEST_P(TagChoice, PutsTheTagBeforeTheOldLength) {
    wb.*GetParam().start = 20;
    setCell(20, "45");
    visit(20);
    EXPECT_EQ(wb.DataBlockKind, GetParam().kind);
    choose(screen().optButTag(3), -1);
    EXPECT_EQ(cell(20), "65");
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(20));
    choose(screen().optButTag(0), -1);
    EXPECT_EQ(cell(20), "05");
    choose(screen().optButTag(4), -1);
    EXPECT_EQ(cell(20), "85");
    EXPECT_TRUE(boxes().empty());
}

const KindCase kinds[] = {{"ShortVideo", &SharedVariables::VideoBlockStart},
                          {"ShortAudio", &SharedVariables::AudioBlockStart},
                          {"ShortSpeaker", &SharedVariables::SpeakerBlockStart},
                          {"ShortVendor", &SharedVariables::VendorBlockStart}};

INSTANTIATE_TEST_SUITE_P(Kinds, TagChoice, testing::ValuesIn(kinds), [](const auto& kind) { return kind.param.kind; });

TEST_F(TagPanel, ThePanelShowsTheOldHeaderAfterAChoice) {
    loadCollection({"41", "90"}, "10");
    visit(4);
    EXPECT_EQ(selectedOf(screen().optButTag), std::vector<int>{2});
    choose(screen().optButTag(1), -1);
    EXPECT_EQ(cell(4), "21");
    EXPECT_EQ(selectedOf(screen().optButTag), std::vector<int>{2});
}

TEST_F(TagPanel, AShortHeaderKeepsTheDigitsItHas) {
    wb.VendorBlockStart = 20;
    setCell(20, "6"); // 0110, all of it kept
    visit(20);
    choose(screen().optButTag(2), -1);
    EXPECT_EQ(cell(20), "26"); // 010 0110
}

TEST_F(TagPanel, TheAudioKindHidesTheVideoPanel) {
    wb.DataBlockKind = "ShortAudio";
    wb.AudioBlockStart = 20;
    focusOn(20);
    screen().Hints(16).setVisible(true);
    wb.runAction([&] { optButTag_Click(wb, 1); });
    EXPECT_FALSE(screen().Hints(16).ownVisible());
    wb.DataBlockKind = "ShortVideo";
    wb.VideoBlockStart = 20;
    screen().Hints(16).setVisible(true);
    wb.runAction([&] { optButTag_Click(wb, 1); });
    EXPECT_TRUE(screen().Hints(16).ownVisible()); // the focus stays, so that no dispatch hides it
}

class LengthChoice : public ExtensionTest {
protected:
    void SetUp() override {
        loadCollection({}, "50");
        wb.VideoBlockStart = 0;
    }
    /// The user goes to a header and picks another length.
    void pick(int header, int row) {
        visit(header);
        choose(screen().TagCBox, row);
    }
};

TEST_F(LengthChoice, VideoAlwaysWritesCell4) {
    wb.VideoBlockStart = 10;
    setCell(10, "41");
    pick(10, 17);
    EXPECT_EQ(cell(4), "51"); // 010 10001
    EXPECT_EQ(cell(10), "41");
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(10));
    EXPECT_EQ(wb.AudioBlockStart, 21); // 17 + 4
    EXPECT_EQ(cellsOfColour(CellColour::Group), cellRange(11, 27));
    EXPECT_EQ(cellsOfColour(CellColour::Field), std::vector<int>{10});
    EXPECT_EQ(screen().TagCBox.value(), 1); // of the header as it stood
}

TEST_F(LengthChoice, AKnownNextStartStays) {
    wb.VideoBlockStart = 4;
    wb.AudioBlockStart = 9;
    pick(4, 2);
    EXPECT_EQ(wb.AudioBlockStart, 9);
}

TEST_F(LengthChoice, AudioCountsFromItsStart) {
    wb.VideoBlockStart = 4;
    wb.AudioBlockStart = 10;
    setCell(10, "23");
    pick(10, 6);
    EXPECT_EQ(cell(10), "26");
    EXPECT_EQ(wb.SpeakerBlockStart, 17);
    EXPECT_EQ(cellsOfColour(CellColour::Group), cellRange(10, 16)); // its header too
    EXPECT_TRUE(cellsOfColour(CellColour::Field).empty());
}

TEST_F(LengthChoice, SpeakersAreColouredByTheOldLength) {
    wb.SpeakerBlockStart = 10;
    setCell(10, "82");
    pick(10, 5);
    EXPECT_EQ(cell(10), "85");
    EXPECT_EQ(wb.VendorBlockStart, 16);
    EXPECT_EQ(cellsOfColour(CellColour::Group), cellRange(10, 12));
}

TEST_F(LengthChoice, VendorHasNoFollowUp) {
    wb.VendorBlockStart = 10;
    setCell(10, "65");
    pick(10, 31);
    EXPECT_EQ(cell(10), "7F");
    EXPECT_EQ(cellsOfColour(CellColour::Group), cellRange(10, 15));
    EXPECT_EQ(wb.SpeakerBlockStart, 0);
    EXPECT_EQ(wb.AudioBlockStart, 0);
}

TEST_F(LengthChoice, AShortByteHasOneDigit) {
    wb.VendorBlockStart = 10;
    setCell(10, "05");
    pick(10, 9);
    EXPECT_EQ(cell(10), "9");
    pick(10, 16);
    EXPECT_EQ(cell(10), "90"); // "9" gives the tag 100, and 100 10000 is 90
}

TEST_F(LengthChoice, ATextOfNoRowLeavesTheTagAlone) {
    wb.SpeakerBlockStart = 10;
    setCell(10, "82");
    visit(10);
    screen().TagCBox.setText("many");
    wb.runAction([&] { TagCBox_Click(wb, 0); });
    EXPECT_EQ(cell(10), "4");           // 100
    EXPECT_EQ(wb.VendorBlockStart, 11); // as for row 0
}

TEST_F(LengthChoice, IsTakenForTheLengthAtTheNextVisit) {
    loadCollection({"41", "90", "23"}, "50");
    pick(4, 2);
    EXPECT_EQ(cell(4), "42");
    EXPECT_EQ(wb.VideoBlockLength, 1);
    focusOn(5);
    focusOn(4);
    EXPECT_EQ(wb.VideoBlockLength, 2);
}

} // namespace
} // namespace wb::cea
