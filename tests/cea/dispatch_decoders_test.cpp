// What the rows of the focus dispatch decode and set besides panel and colours.

#include "cea/dispatch.h"

#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::selectedOf;

using DispatchDecoder = test::EveryBlockTest;

struct DecodedText {
    int index;
    std::string SharedVariables::*text;
    std::string words;
};

class DecodedRow : public DispatchDecoder, public testing::WithParamInterface<DecodedText> {};

TEST_P(DecodedRow, IsDecodedAnew) {
    std::string& text = wb.*GetParam().text;
    text = "old";
    focusOn(GetParam().index);
    EXPECT_EQ(text, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecodedRow,
    testing::Values(
        DecodedText{3, &SharedVariables::DTVSupportText,
                    "DTV Does Not Support Underscan, DTV Does Not Support Basic Audio\r\n"
                    "   , DTV Does Not Support YCbCr 4:4:4, DTV Does Not Support YCbCr 4:2:2\r\n"
                    "   , There are no Native Format Specified."},
        DecodedText{4, &SharedVariables::VideoTagText,
                    "Video Data Block/Short Video Descriptors, Number of Data Byte to Follow: 2  \r\n"},
        DecodedText{7, &SharedVariables::AudioTagText, "Audio Data Block, Number of Data Byte to Follow: 6  , \r\n"},
        DecodedText{8, &SharedVariables::AudioChannelsText, "Audio Channels: 6"},
        DecodedText{9, &SharedVariables::SampFreqText, "32KHz, 44.1KHz, 48KHz,"},
        DecodedText{10, &SharedVariables::BitRateText, "Sampling bit rate: 640 bit"},
        DecodedText{11, &SharedVariables::LastAudioKindText, "Uncompressed"},
        DecodedText{11, &SharedVariables::LastAudioChannelsText, "Audio Channels: 6"},
        DecodedText{12, &SharedVariables::LastSampFreqText, "32KHz,"},
        DecodedText{13, &SharedVariables::LastBitRateText, "Maximum Sampling bit rate: 16 kbps"},
        DecodedText{14, &SharedVariables::SpeakerTagText, "Speaker Data Block, Number of Data Byte to Follow: 3  \r\n"},
        DecodedText{15, &SharedVariables::SpeakerText, "FL/FR, LFE, FC, RL/RR, RLC/RRC"},
        DecodedText{16, &SharedVariables::SpeakerText, "old"}, // the reserved bytes have no decoder
        DecodedText{18, &SharedVariables::VendorTagText,
                    "Vendor Specific Data Block, Number of Data Byte to Follow: 7  \r\n"},
        DecodedText{19, &SharedVariables::VendorIDText, "Vendor IEEE Registration ID: 000C03 Hexadecimal"},
        DecodedText{22, &SharedVariables::VendorDataText, "Vendor Specific Data: 1000 Hexadecimal"},
        DecodedText{24, &SharedVariables::VSDBExtText, "Supports_AI,"}),
    [](const auto& row) { return std::to_string(row.index) + "_Cell" + std::to_string(row.param.index); });

TEST_F(DispatchDecoder, AVideoCellDecodesTheWholeBlock) {
    wb.ShortVideoText(1) = "old";
    focusOn(6);
    EXPECT_EQ(wb.ShortVideoText(1), "1920x1080p 59.94/60Hz 16:9 861B   Native\r\n");
    EXPECT_EQ(wb.ShortVideoText(2), "1280x720p 59.94/60Hz 16:9 861   \r\n");
}

TEST_F(DispatchDecoder, WhereTheAudioDescriptorsOverlapTheOrderOfTheRowsDecides) {
    struct Case {
        std::int16_t last; ///< first cell of the last descriptor; the first one stands at 41 to 43
        int index;
        int panel;
        bool inLast;
    };
    const Case cases[] = {{38, 40, 15, false}, {39, 41, 0, false}, {40, 41, 0, false}, {40, 42, 5, false},
                          {41, 41, 0, false},  {41, 42, 5, false}, {41, 43, 6, false}, {42, 42, 0, true},
                          {42, 43, 5, true},   {42, 44, 6, true},  {43, 43, 0, true},  {43, 44, 5, true}};
    wb.AudioBlockStart = 40;
    wb.AudioBlockLength = 3; // so that no dispatch moves the last descriptor
    wb.SpeakerBlockStart = 60;
    wb.ExtDtdStart = 100;
    for (const Case& visit : cases) {
        wb.LastAudioDescriptor = visit.last;
        focusOn(visit.index == 40 ? 41 : 40);
        wb.AudioBlockLength = 3;
        wb.SpeakerBlockStart = 60;
        focusOn(visit.index);
        EXPECT_EQ(panels(), std::vector<int>{visit.panel}) << visit.last << ' ' << visit.index;
        EXPECT_EQ(wb.LastAudioFocus, flag(visit.inLast)) << visit.last << ' ' << visit.index;
    }
}

TEST_F(DispatchDecoder, TheAudioHeaderShowsTheAudioFormat) {
    screen().FrmAudioFormat.setVisible(false);
    focusOn(7);
    EXPECT_TRUE(screen().FrmAudioFormat.ownVisible());
}

TEST_F(DispatchDecoder, TheSpeakerHeaderHidesTheSampleSizes) {
    ASSERT_TRUE(screen().Frmbitrate.ownVisible());
    focusOn(14);
    EXPECT_FALSE(screen().Frmbitrate.ownVisible());
}

TEST_F(DispatchDecoder, VersionLeavesTheLabelsOfOtherPanels) {
    focusOn(1);
    EXPECT_TRUE(screen().lbEDID(4).ownVisible());
    EXPECT_TRUE(screen().lbEDID(5).ownVisible());
}

TEST_F(DispatchDecoder, OffsetHidesTwoLabelsAndShowsItsOwn) {
    screen().lbEDID(5).setVisible(false);
    focusOn(2);
    for (const int hidden : {1, 2}) {
        EXPECT_FALSE(screen().lbEDID(hidden).ownVisible()) << hidden;
    }
    for (const int shown : {0, 3, 4, 5}) {
        EXPECT_TRUE(screen().lbEDID(shown).ownVisible()) << shown;
    }
}

TEST_F(DispatchDecoder, ATimingCountsTheSlotsAnew) {
    wb.ExtDtdSlotCount = 99;
    focusOn(30);
    EXPECT_EQ(wb.ExtDtdSlotCount, 5); // (125 - 26) / 18
}

TEST_F(DispatchDecoder, ATimingStartsFromClearedOptions) {
    for (int option = 0; option <= 6; ++option) {
        screen().DTStereo(option).changeValue(-1);
        screen().DTSync(option % 4).changeValue(-1);
        screen().DT1.changeValue(1);
        focusOn(option % 2 == 0 ? 43 : 61); // zeros, which the decoder takes for no timing
        EXPECT_TRUE(selectedOf(screen().DTStereo).empty()) << option;
        EXPECT_TRUE(selectedOf(screen().DTSync).empty()) << option;
        EXPECT_EQ(screen().DT1.value(), 0) << option;
    }
    EXPECT_EQ(cell(43) + cell(61), "0000"); // the clicks of the cleared controls write nothing
}

} // namespace
} // namespace wb::cea
