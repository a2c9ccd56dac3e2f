#include "cea/audio_panel.h"

#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using Texts = std::vector<std::string>;

/// Two descriptors: linear PCM at 11 to 13, AC-3 at 14 to 16.
class AudioPanel : public ExtensionTest {
protected:
    void SetUp() override {
        loadCollection({"40", "00", "00", "00", "00", "00", "26", "09", "07", "07", "15", "07", "50"}, "50");
        ASSERT_EQ(wb.AudioBlockStart, 10);
        ASSERT_EQ(wb.LastAudioDescriptor, 14);
    }
    /// The first descriptor is AC-3 of as many channels, too, and shows its panels.
    void compressFirst(int index) {
        setCell(11, "11");
        visit(10);
        visit(index);
    }
    void oneDescriptor() {
        setCell(10, "23");
        wb.AudioBlockLength = 3;
    }
};

TEST_F(AudioPanel, TheKindIsThatOfTheFirstDescriptor) {
    visit(10);
    choose(screen().AudioFormat(1), -1);
    EXPECT_EQ(cell(11), "01"); // code 0 until one is chosen
    choose(screen().AudioFormat(0), -1);
    EXPECT_EQ(cell(11), "09");
    setCell(11, "17");
    choose(screen().AudioFormat(0), -1);
    EXPECT_EQ(cell(11), "0F");
    EXPECT_EQ(cell(14), "15");
}

TEST_F(AudioPanel, AKindThatIsNotSelectedWritesNothing) {
    screen().AudioFormat(0).changeValue(0);
    AudioFormat_Click(wb, 0);
    EXPECT_EQ(cell(11), "09");
}

TEST_F(AudioPanel, TheFormatGoesToTheLastOfTwo) {
    compressFirst(11);
    choose(screen().AudFormCode(10), -1);
    EXPECT_EQ(cell(14), "55"); // 0 1010 101
    EXPECT_EQ(cell(11), "11");
    EXPECT_EQ(screen().Hints(0).caption(), "Compressed Audio Codes(14)");
    choose(screen().AudFormCode(1), -1);
    EXPECT_EQ(cell(14), "0D");
    EXPECT_EQ(screen().Hints(0).caption(), "Uncompressed Audio (14)");
}

TEST_F(AudioPanel, TheFormatIsSelected) {
    screen().AudFormCode(3).changeValue(-1);
    AudFormCode_Click(wb, 7);
    EXPECT_EQ(test::selectedOf(screen().AudFormCode), std::vector<int>{7});
    EXPECT_EQ(cell(14), "3D"); // 0 0111 101
}

TEST_F(AudioPanel, TheFormatOfASingleDescriptor) {
    oneDescriptor();
    compressFirst(11);
    choose(screen().AudFormCode(14), -1);
    EXPECT_EQ(cell(11), "71");
    EXPECT_EQ(screen().Hints(0).caption(), "Compressed Audio Codes(11)");
    EXPECT_EQ(cell(14), "15");
}

TEST_F(AudioPanel, AStaleLastDescriptorBeforeTheBlockDoesNotCount) {
    wb.LastAudioDescriptor = 10;
    compressFirst(11);
    choose(screen().AudFormCode(0), -1);
    EXPECT_EQ(cell(11), "01");
}

TEST_F(AudioPanel, ChannelsOfTheFirst) {
    visit(11);
    choose(screen().AudChCBox, 7);
    EXPECT_EQ(cell(11), "0F");
    EXPECT_EQ(wb.AudioChannelDigit, "8");
    choose(screen().AudChCBox, 0);
    EXPECT_EQ(cell(11), "08");
    EXPECT_EQ(wb.AudioChannelDigit, "1");
    EXPECT_EQ(cell(14), "15");
}

TEST_F(AudioPanel, ChannelsOfTheLastInFocus) {
    visit(14);
    EXPECT_EQ(wb.LastAudioFocus, flagTrue);
    clearColours();
    choose(screen().AudChCBox, 2);
    EXPECT_EQ(cell(14), "12");
    EXPECT_EQ(cellsOfColour(CellColour::Field), std::vector<int>{14});
    EXPECT_EQ(cell(11), "09");
}

TEST_F(AudioPanel, ChannelsOfNoRowCountAsTheFirst) {
    screen().AudChCBox.setText("9");
    AudChCBox_Click(wb, 0);
    EXPECT_EQ(cell(11), "08");
}

TEST_F(AudioPanel, FrequenciesOfTheFirst) {
    visit(12);
    setCell(12, "87");
    choose(screen().SampFreq(0), 0);
    EXPECT_EQ(cell(12), "06"); // bit 7 goes too
    EXPECT_EQ(wb.SampFreqText, " 44.1KHz, 48KHz,");
    choose(screen().SampFreq(6), 1);
    EXPECT_EQ(cell(12), "46");
    EXPECT_EQ(wb.SampFreqText, " 44.1KHz, 48KHz, 192KHz");
    EXPECT_EQ(cell(15), "07");
}

TEST_F(AudioPanel, FrequenciesOfTheLastInFocus) {
    visit(15);
    choose(screen().SampFreq(1), 0);
    EXPECT_EQ(cell(15), "05");
    EXPECT_EQ(wb.LastSampFreqText, "32KHz, 48KHz,");
    EXPECT_EQ(cell(12), "07");
}

TEST_F(AudioPanel, LastModeNeedsTheFocusAndTwoDescriptors) {
    visit(15);
    visit(12);
    EXPECT_EQ(wb.LastAudioFocus, flagFalse);
    choose(screen().SampFreq(1), 0);
    EXPECT_EQ(cell(12), "05");
    visit(15);
    oneDescriptor();
    choose(screen().SampFreq(2), 0);
    EXPECT_EQ(cell(12), "01");
    EXPECT_EQ(cell(15), "07");
}

TEST_F(AudioPanel, EachFrequencyHasItsMask) {
    const Texts without = {"7E", "7D", "7B", "77", "6F", "5F", "3F"};
    for (int i = 0; i < 7; ++i) {
        setCell(12, "FF");
        visit(12);
        choose(screen().SampFreq(i), 0);
        EXPECT_EQ(cell(12), without[static_cast<std::size_t>(i)]);
        choose(screen().SampFreq(i), 1);
        EXPECT_EQ(cell(12), "7F");
    }
}

TEST_F(AudioPanel, SampleSizesKeepTheOtherTwoBits) {
    visit(13);
    setCell(13, "FF");
    choose(screen().bitrate(0), 0);
    EXPECT_EQ(cell(13), "06");
    EXPECT_EQ(wb.BitRateText, " 20 bit, 24 bit,");
    choose(screen().bitrate(1), 0);
    EXPECT_EQ(cell(13), "04");
    choose(screen().bitrate(2), 0);
    EXPECT_EQ(cell(13), "00");
    choose(screen().bitrate(0), 1);
    EXPECT_EQ(cell(13), "01");
    EXPECT_EQ(wb.BitRateText, "Sampling bit rate: 16 bit,");
}

TEST_F(AudioPanel, SampleSizesOfTheLastInFocus) {
    visit(16);
    setCell(16, "07");
    screen().bitrate(1).changeValue(0);
    bitrate_Click(wb, 1);
    EXPECT_EQ(cell(16), "05");
    EXPECT_EQ(wb.LastBitRateText, "Maximum Sampling bit rate: 40 kbps");
    EXPECT_EQ(cell(13), "07");
}

TEST_F(AudioPanel, TheRowIsTheByte) {
    compressFirst(13);
    choose(screen().bitrateCBox, 255);
    EXPECT_EQ(cell(13), "FF");
    choose(screen().bitrateCBox, 1);
    EXPECT_EQ(cell(13), "01");
    visit(16);
    choose(screen().bitrateCBox, 9);
    EXPECT_EQ(cell(16), "09");
    EXPECT_EQ(wb.LastBitRateText, "Maximum Sampling bit rate: 640 kbps"); // follows with the next decoding
    EXPECT_EQ(cell(13), "01");
}

TEST_F(AudioPanel, ARateOfNoRowCountsAsTheFirst) {
    compressFirst(13);
    choose(screen().bitrateCBox, 0);
    EXPECT_EQ(cell(13), "00");
    setCell(13, "07");
    screen().bitrateCBox.setText("2048");
    bitrateCBox_Click(wb, 0);
    EXPECT_EQ(cell(13), "00");
}

TEST_F(AudioPanel, TheRateOfTheLastNeedsOnlyTheFocus) {
    visit(16);
    oneDescriptor();
    choose(screen().bitrateCBox, 3);
    EXPECT_EQ(cell(16), "03");
}

TEST_F(AudioPanel, TheCheckSumFollows) {
    modify();
    setCell(126, "01");
    for (const auto handler :
         {AudioFormat_Click, AudFormCode_Click, AudChCBox_Click, SampFreq_Click, bitrate_Click, bitrateCBox_Click}) {
        setCell(127, "old");
        handler(wb, 0);
        EXPECT_NE(cell(127), "old");
    }
}

TEST_F(AudioPanel, TheHandlersRestWhileADecoderRuns) {
    modify();
    screen().InFocusDispatch = flagTrue;
    const std::string before = cell(127);
    for (const auto handler :
         {AudioFormat_Click, AudFormCode_Click, AudChCBox_Click, SampFreq_Click, bitrate_Click, bitrateCBox_Click}) {
        handler(wb, 1);
    }
    EXPECT_EQ(cell(11) + cell(12) + cell(13) + cell(14) + cell(15) + cell(16), "090707150750");
    EXPECT_EQ(cell(127), before);
}

} // namespace
} // namespace wb::cea
