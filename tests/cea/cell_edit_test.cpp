#include "cea/cell_edit.h"

#include <gmock/gmock.h>

#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using testing::HasSubstr;
using Texts = std::vector<std::string>;

class CellEdit : public test::EveryBlockTest {
protected:
    void SetUp() override {
        EveryBlockTest::SetUp();
        modify();
    }
    void typeInto(int index, const std::string& text) {
        focusOn(index);
        program.type(text);
    }
    const std::string& offsetCaption() { return screen().lbEDID(5).caption(); }
};

struct EditCase {
    int index;
    std::string typed;
    std::string SharedVariables::*text;
    std::string expected;
};

class EditedText : public CellEdit, public testing::WithParamInterface<EditCase> {};

TEST_P(EditedText, FollowsTheSecondCharacter) {
    const EditCase& edit = GetParam();
    focusOn(edit.index);
    std::string& text = wb.*edit.text;
    text = "old";
    program.type(edit.typed.substr(0, 1));
    EXPECT_EQ(text, "old");
    program.type(edit.typed.substr(1));
    EXPECT_EQ(text, edit.expected);
    EXPECT_TRUE(boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cells, EditedText,
    testing::Values(
        EditCase{2, "1b", &SharedVariables::ExtDtdOffsetText, "27"},
        EditCase{4, "43", &SharedVariables::VideoTagText,
                 "Video Data Block/Short Video Descriptors, Number of Data Byte to Follow: 3  \r\n"},
        EditCase{7, "27", &SharedVariables::AudioTagText, "Audio Data Block, Number of Data Byte to Follow: 7  , \r\n"},
        EditCase{8, "1f", &SharedVariables::AudioChannelsText, "Audio Channels: 8"},
        EditCase{9, "02", &SharedVariables::SampFreqText, " 44.1KHz,"},
        EditCase{10, "02", &SharedVariables::BitRateText, "Sampling bit rate: 16 bit"},
        EditCase{11, "0f", &SharedVariables::LastAudioChannelsText, "Audio Channels: 8"},
        EditCase{12, "02", &SharedVariables::LastSampFreqText, " 44.1KHz,"},
        EditCase{13, "03", &SharedVariables::LastBitRateText, "Maximum Sampling bit rate: 24 kbps"},
        EditCase{14, "82", &SharedVariables::SpeakerTagText,
                 "Speaker Data Block, Number of Data Byte to Follow: 2  \r\n"},
        EditCase{15, "04", &SharedVariables::SpeakerText, " FC,"},
        EditCase{18, "66", &SharedVariables::VendorTagText,
                 "Vendor Specific Data Block, Number of Data Byte to Follow: 6  \r\n"},
        EditCase{19, "ab", &SharedVariables::VendorIDText, "Vendor IEEE Registration ID: 000CAB Hexadecimal"},
        EditCase{21, "ab", &SharedVariables::VendorIDText, "Vendor IEEE Registration ID: AB0C03 Hexadecimal"},
        EditCase{22, "ab", &SharedVariables::VendorDataText, "old"}, // 22 is above 7 - 1
        EditCase{23, "ab", &SharedVariables::VendorDataText, "old"},
        EditCase{24, "08", &SharedVariables::VSDBExtText, " DC_Y444,"},
        EditCase{25, "08", &SharedVariables::VSDBExtText, "old"}),
    [](const auto& edit) { return "Cell" + std::to_string(edit.param.index); });

TEST_F(CellEdit, TheOtherFields) {
    typeInto(1, "02");
    EXPECT_EQ(screen().VerRev.text(), "2");
    typeInto(3, "00");
    EXPECT_THAT(wb.DTVSupportText, HasSubstr("There are no Native Format Specified."));
    typeInto(5, "84");
    EXPECT_EQ(wb.ShortVideoText(1), "1280x720p 59.94/60Hz 16:9 861   Native\r\n");
    typeInto(26, "64");
    typeInto(27, "19");
    EXPECT_EQ(screen().DT(0).caption(), "Pixel Clock - 65.00 MHz");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(CellEdit, CellsOfNoFieldDecodeNothing) {
    for (const int index : {0, 16, 17, 25, 126, 127}) {
        focusOn(index);
        boxes();
        setCell(index, "ZZ");
        txtEdit_KeyUp(wb, index, 'Z');
        EXPECT_TRUE(boxes().empty()) << index;
    }
}

TEST_F(CellEdit, ALocationOf0CountsLikeAnyOther) {
    wb.VideoBlockStart = 0;
    wb.VideoTagText = "old";
    txtEdit_KeyUp(wb, 0, '2');
    EXPECT_EQ(wb.VideoTagText, "Reserved, Number of Data Byte to Follow: 2  \r\n");
}

TEST_F(CellEdit, TheFirstRowThatMatchesDecides) {
    wb.LastAudioDescriptor = 9; // both its first byte and the second of the first descriptor
    wb.SampFreqText = wb.LastAudioChannelsText = "old";
    txtEdit_KeyUp(wb, 9, '7');
    EXPECT_EQ(wb.SampFreqText, "old");
    EXPECT_EQ(wb.LastAudioChannelsText, "Audio Channels: 8");
}

TEST_F(CellEdit, WhereTheAudioDescriptorsOverlapTheOrderOfTheRowsDecides) {
    struct Case {
        std::int16_t last; ///< first cell of the last descriptor; the first one stands at 41 to 43
        int index;
        std::string SharedVariables::*decoded;
    };
    const Case cases[] = {
        {40, 41, &SharedVariables::AudioChannelsText},     {40, 42, &SharedVariables::SampFreqText},
        {41, 41, &SharedVariables::AudioChannelsText},     {41, 42, &SharedVariables::LastSampFreqText},
        {41, 43, &SharedVariables::BitRateText},           {42, 42, &SharedVariables::LastAudioChannelsText},
        {42, 43, &SharedVariables::LastSampFreqText},      {42, 44, &SharedVariables::LastBitRateText},
        {43, 43, &SharedVariables::LastAudioChannelsText}, {43, 44, &SharedVariables::LastSampFreqText}};
    wb.AudioBlockStart = 40;
    for (const Case& edited : cases) {
        wb.LastAudioDescriptor = edited.last;
        for (const auto text : {&SharedVariables::AudioChannelsText, &SharedVariables::SampFreqText,
                                &SharedVariables::BitRateText, &SharedVariables::LastAudioChannelsText,
                                &SharedVariables::LastSampFreqText, &SharedVariables::LastBitRateText}) {
            wb.*text = "old";
            txtEdit_KeyUp(wb, edited.index, '0');
            EXPECT_EQ(wb.*text != "old", text == edited.decoded) << edited.last << ' ' << edited.index;
        }
    }
}

TEST_F(CellEdit, VendorDataOfALongBlockNearTheStart) {
    wb.VendorBlockStart = 8;
    wb.VideoBlockStart = wb.VideoBlockLength = wb.AudioBlockStart = wb.LastAudioDescriptor = wb.SpeakerBlockStart = 60;
    wb.VendorBlockLength = 14;
    for (const auto& [index, decoded] : {std::pair(12, true), std::pair(13, true), std::pair(14, false)}) {
        wb.VendorDataText = "old";
        txtEdit_KeyUp(wb, index, '0');
        EXPECT_EQ(wb.VendorDataText != "old", decoded) << index;
    }
}

TEST_F(CellEdit, TypedLettersBecomeCapitals) {
    typeInto(60, "ab");
    EXPECT_EQ(cell(60), "AB");
}

TEST_F(CellEdit, AThirdCharacterIsToldWhenTheCellIsLeft) {
    typeInto(60, "ab");
    program.type("c");
    EXPECT_EQ(cell(60), "ABC");
    EXPECT_TRUE(boxes().empty());
    focusOn(61);
    EXPECT_EQ(boxes(), Texts{"Please Enter Your Values In Hex"});
    EXPECT_EQ(wb.focus.current(), &screen().txtEdit(60));
    EXPECT_EQ(cell(60), "ABC");
}

TEST_F(CellEdit, DigitsAreNotChecked) {
    typeInto(25, "zz");
    EXPECT_EQ(cell(25), "ZZ");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(CellEdit, WithoutModifyModeTheCellsAreLocked) {
    wb.ModifyEDIDOn = flagFalse;
    typeInto(60, "ab");
    EXPECT_EQ(cell(60), "00");
}

} // namespace
} // namespace wb::cea
