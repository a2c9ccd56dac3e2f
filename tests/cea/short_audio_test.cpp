#include "cea/short_audio.h"

#include "cea/definitions.h"
#include "cea/extension_fixture.h"
#include "core/base/text.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using test::FlagsCase;
using test::noElement;
using test::selectedOf;
using Texts = std::vector<std::string>;

struct FormatName {
    int code;
    std::string name;
};

const FormatName formatNames[] = {{0, "Reserved"},
                                  {1, "Linear PCM (IEC60958)"},
                                  {2, "AC-3"},
                                  {3, "MPEG1 (Layer 1 and 2)"},
                                  {4, "MP3 (MPEG1 Layer 3"},
                                  {5, "MPEG2 (multichannel"},
                                  {6, "AAC"},
                                  {7, "DTS"},
                                  {8, "ATRAC"},
                                  {9, "One Bit Audio"},
                                  {10, "Dolby Digital +"},
                                  {11, "DTS-HD"},
                                  {12, "MAT (MLP)"},
                                  {13, "DST"},
                                  {14, "WMA Pro"}};

class AudioFormatName : public ExtensionTest, public testing::WithParamInterface<FormatName> {};

TEST_P(AudioFormatName, OfTheFirstAndTheLastDescriptor) {
    wb.AudioBlockStart = 40;
    wb.LastAudioDescriptor = 60;
    setCell(41, ByteToHex2(GetParam().code * 8 + 5));
    BuildAudioFormatName(wb);
    EXPECT_EQ(wb.AudioFormatText, GetParam().name);
    EXPECT_EQ(selectedOf(screen().AudFormCode), std::vector<int>{GetParam().code});
    setCell(60, ByteToHex2(128 + GetParam().code * 8)); // bit 7 is no part of it
    screen().AudFormCode(3).setValue(0);
    BuildLastAudioFormatName(wb);
    EXPECT_EQ(wb.LastAudioFormatText, GetParam().name);
    EXPECT_EQ(selectedOf(screen().AudFormCode), std::vector<int>{GetParam().code});
    EXPECT_EQ(cell(41), ByteToHex2(GetParam().code * 8 + 5));
}

INSTANTIATE_TEST_SUITE_P(Codes, AudioFormatName, testing::ValuesIn(formatNames),
                         [](const auto& format) { return "Code" + std::to_string(format.param.code); });

class ShortAudio : public ExtensionTest {
protected:
    /// An audio block at cell 10, behind a video block without data at 9.
    void loadAudio(const std::vector<std::string>& audio) {
        std::vector<std::string> collection(6, "00");
        collection[5] = "40";
        collection.insert(collection.end(), audio.begin(), audio.end());
        loadCollection(collection, "50");
        ASSERT_EQ(wb.AudioBlockStart, 10);
    }
};

TEST_F(ShortAudio, Code15HasNoNameAndKeepsTheOldOne) {
    wb.AudioBlockStart = 40;
    wb.AudioFormatText = "old";
    setCell(41, "78");
    BuildAudioFormatName(wb);
    EXPECT_EQ(wb.AudioFormatText, "old");
    EXPECT_TRUE(selectedOf(screen().AudFormCode).empty());
}

TEST_F(ShortAudio, LinearDescriptor) {
    loadAudio({"23", "09", "07", "07"});
    EXPECT_EQ(wb.AudioKindText, "Uncompressed");
    EXPECT_EQ(wb.AudioFormatText, "Linear PCM (IEC60958)");
    EXPECT_EQ(wb.AudioChannelsText, "Audio Channels: 2");
    EXPECT_EQ(wb.SampFreqText, "32KHz, 44.1KHz, 48KHz,");
    EXPECT_EQ(wb.BitRateText, "Sampling bit rate: 16 bit, 20 bit, 24 bit,");
    EXPECT_EQ(screen().AudChCBox.value(), 1);
    EXPECT_EQ(selectedOf(screen().SampFreq), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(selectedOf(screen().bitrate), (std::vector<int>{0, 1, 2}));
    EXPECT_FALSE(screen().FrmAudFormCode.ownVisible());
    EXPECT_EQ(screen().Hints(0).caption(), "Uncompressed Audio (11)");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(ShortAudio, CompressedDescriptor) {
    loadAudio({"23", "17", "42", "FF"});
    EXPECT_EQ(wb.AudioKindText, "Compressed");
    EXPECT_EQ(wb.AudioFormatText, "AC-3");
    EXPECT_EQ(wb.AudioChannelsText, "Audio Channels: 8");
    EXPECT_EQ(wb.SampFreqText, " 44.1KHz, 192KHz");
    EXPECT_EQ(wb.BitRateText, "Sampling bit rate: 2040 bit");
    EXPECT_EQ(screen().bitrateCBox.text(), "2040");
    EXPECT_TRUE(screen().FrmAudFormCode.ownVisible());
    EXPECT_EQ(screen().Hints(0).caption(), "Compressed Audio Codes(11)");
    EXPECT_EQ(selectedOf(screen().AudFormCode), std::vector<int>{2});
}

class Frequencies : public ShortAudio, public testing::WithParamInterface<FlagsCase> {};

TEST_P(Frequencies, OfTheFirstAndTheLastDescriptor) {
    wb.AudioBlockStart = 40;
    wb.LastAudioDescriptor = 60;
    setCell(42, GetParam().cell);
    BuildSampFreq(wb);
    EXPECT_EQ(wb.SampFreqText, GetParam().text);
    EXPECT_EQ(selectedOf(screen().SampFreq), GetParam().checks);
    setCell(42, "00");
    BuildSampFreq(wb);
    setCell(61, GetParam().cell);
    BuildLastSampFreq(wb);
    EXPECT_EQ(wb.LastSampFreqText, GetParam().text);
    EXPECT_EQ(selectedOf(screen().SampFreq), GetParam().checks);
    EXPECT_EQ(cell(61), GetParam().cell);
    EXPECT_EQ(wb.SampFreqText, "");
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, Frequencies,
    testing::Values(FlagsCase{"00", {}, ""}, FlagsCase{"80", {}, ""}, FlagsCase{"01", {0}, "32KHz,"},
                    FlagsCase{"02", {1}, " 44.1KHz,"}, FlagsCase{"04", {2}, " 48KHz,"},
                    FlagsCase{"08", {3}, " 88.2KHz,"}, FlagsCase{"10", {4}, " 96KHz,"},
                    FlagsCase{"20", {5}, " 176.4KHz,"}, FlagsCase{"40", {6}, " 192KHz"},
                    FlagsCase{"05", {0, 2}, "32KHz, 48KHz,"}, FlagsCase{"42", {1, 6}, " 44.1KHz, 192KHz"},
                    FlagsCase{"7F", {0, 1, 2, 3, 4, 5, 6}, "32KHz, 44.1KHz, 48KHz, 88.2KHz, 96KHz, 176.4KHz, 192KHz"}),
    [](const auto& frequencies) { return test::cellName(frequencies.param.cell); });

TEST_F(ShortAudio, SampleSizes) {
    struct Case {
        const char* cell;
        std::vector<int> checks;
        const char* text;
    };
    const Case cases[] = {{"00", {}, ""},
                          {"F8", {}, ""},
                          {"01", {0}, "Sampling bit rate: 16 bit,"},
                          {"02", {1}, " 20 bit,"},
                          {"04", {2}, " 24 bit,"},
                          {"06", {1, 2}, " 20 bit, 24 bit,"},
                          {"05", {0, 2}, "Sampling bit rate: 16 bit, 24 bit,"}};
    wb.AudioBlockStart = 40;
    screen().AudioFormat(0).changeValue(-1);
    for (const Case& one : cases) {
        setCell(43, one.cell);
        BuildBitRate(wb);
        EXPECT_EQ(wb.BitRateText, one.text) << one.cell;
        EXPECT_EQ(selectedOf(screen().bitrate), one.checks) << one.cell;
    }
}

TEST_F(ShortAudio, ARateOfCompressedAudioIsAppended) {
    wb.AudioBlockStart = 40;
    setCell(43, "50");
    wb.BitRateText = "old ";
    BuildCompressedBitRate(wb);
    EXPECT_EQ(wb.BitRateText, "old Sampling bit rate: 640 bit");
    EXPECT_EQ(screen().bitrateCBox.text(), "640");
    screen().AudioFormat(1).changeValue(-1);
    BuildBitRate(wb);
    EXPECT_EQ(wb.BitRateText, "Sampling bit rate: 640 bit");
}

TEST_F(ShortAudio, TheLastRateIsInKilobitsWhateverTheKind) {
    wb.LastAudioDescriptor = 60;
    setCell(60, "09"); // linear
    for (int value = 0; value <= 255; ++value) {
        setCell(62, ByteToHex2(value));
        BuildLastBitRate(wb);
        EXPECT_EQ(wb.LastBitRateText, "Maximum Sampling bit rate: " + std::to_string(8 * value) + " kbps");
        EXPECT_EQ(screen().bitrateCBox.value(), value);
    }
    EXPECT_EQ(screen().bitrateCBox.rows()[0], "00");
    EXPECT_EQ(screen().bitrateCBox.rows()[1], "08");
    EXPECT_EQ(screen().bitrateCBox.rows()[2], "16");
}

TEST_F(ShortAudio, OneDescriptorLeavesTheLastTexts) {
    wb.LastAudioDescriptor = 99;
    wb.LastAudioKindText = wb.LastSampFreqText = "old";
    loadAudio({"23", "09", "07", "07"});
    EXPECT_EQ(wb.LastAudioDescriptor, 99);
    EXPECT_EQ(wb.LastAudioKindText, "old");
    EXPECT_EQ(wb.LastSampFreqText, "old");
    LocateAudioDescriptors(wb);
    EXPECT_EQ(wb.AudioDescriptorCount, 1);
    EXPECT_EQ(wb.LastAudioDescriptor, 99);
}

TEST_F(ShortAudio, TwoDescriptors) {
    loadAudio({"26", "09", "07", "07", "0F", "10", "32"});
    EXPECT_EQ(wb.AudioDescriptorCount, 2);
    EXPECT_EQ(wb.LastAudioDescriptor, 14);
    EXPECT_EQ(wb.LastAudioKindText, "Uncompressed");
    EXPECT_EQ(wb.LastAudioChannelsText, "Audio Channels: 8");
    EXPECT_EQ(wb.LastAudioFormatText, "Linear PCM (IEC60958)");
    EXPECT_EQ(wb.LastSampFreqText, " 96KHz,");
    EXPECT_EQ(wb.LastBitRateText, "Maximum Sampling bit rate: 400 kbps");
    EXPECT_EQ(wb.BitRateText, "Sampling bit rate: 16 bit, 20 bit, 24 bit,"); // of the first
}

TEST_F(ShortAudio, AnOddByteBehindTheDescriptorsIsIgnored) {
    loadAudio({"27", "09", "07", "07", "17", "10", "32", "55"});
    EXPECT_EQ(wb.AudioDescriptorCount, 2);
    EXPECT_EQ(wb.LastAudioDescriptor, 14);
    EXPECT_EQ(wb.LastAudioKindText, "Compressed");
    EXPECT_EQ(wb.LastAudioFormatText, "AC-3");
}

TEST_F(ShortAudio, TheWalkStopsAtTheLastDescriptor) {
    loadAudio({"2C", "09", "07", "07", "17", "10", "32", "1F", "01", "02", "3E", "06", "C0"});
    EXPECT_EQ(wb.AudioDescriptorCount, 4);
    EXPECT_EQ(wb.LastAudioDescriptor, 20);
    EXPECT_EQ(wb.LastAudioFormatText, "DTS");
    EXPECT_EQ(wb.LastAudioChannelsText, "Audio Channels: 7");
    EXPECT_EQ(wb.LastBitRateText, "Maximum Sampling bit rate: 1536 kbps");
    screen().CurrentBlockNumber = 0;
    LocateAudioDescriptors(wb);
    EXPECT_EQ(screen().CurrentBlockNumber, 3);
}

TEST_F(ShortAudio, ThirtyOneBytesHoldTen) {
    wb.AudioBlockStart = 10;
    wb.AudioBlockLength = 31;
    LocateAudioDescriptors(wb);
    EXPECT_EQ(wb.AudioDescriptorCount, 10);
    EXPECT_EQ(wb.LastAudioDescriptor, 38);
    EXPECT_EQ(screen().CurrentBlockNumber, 9);
}

TEST_F(ShortAudio, TheWalkKnowsTwelveDescriptors) {
    wb.AudioBlockStart = 10;
    wb.AudioBlockLength = 60;
    LocateAudioDescriptors(wb);
    EXPECT_EQ(wb.AudioDescriptorCount, 20);
    EXPECT_EQ(wb.LastAudioDescriptor, 44);
    EXPECT_EQ(screen().CurrentBlockNumber, 11);
}

TEST_F(ShortAudio, CellsPastTheGrid) {
    wb.LastAudioDescriptor = 126;
    setCell(126, "17");
    setCell(127, "01");
    BuildLastSampFreq(wb);
    EXPECT_EQ(wb.LastSampFreqText, "32KHz,");
    EXPECT_TRUE(boxes().empty());
    BuildLastBitRate(wb);
    EXPECT_EQ(boxes(), Texts{noElement});
    EXPECT_EQ(wb.LastBitRateText, "Maximum Sampling bit rate: 0 kbps");
    wb.AudioBlockStart = 126;
    BuildSampFreq(wb);
    EXPECT_EQ(boxes(), Texts(7, noElement)); // read afresh for each bit
}

TEST_F(ShortAudio, OddCharacters) {
    wb.AudioBlockStart = 40;
    wb.AudioChannelsText = wb.AudioFormatText = "old";
    screen().AudioFormat(1).changeValue(-1);
    setCell(41, "1x");
    BuildAudioChannels(wb);
    EXPECT_EQ(wb.AudioChannelsText, "old");
    EXPECT_EQ(wb.AudioFormatText, "old");
    EXPECT_TRUE(boxes().empty());
}

} // namespace
} // namespace wb::cea
