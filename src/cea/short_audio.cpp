#include "cea/short_audio.h"

#include <array>

#include "cea/digits.h"
#include "cea/flag_list.h"

namespace wb::cea {

namespace {

/// By format code. Two names lack their closing bracket in the report, though not on the panel.
constexpr std::array<std::string_view, 15> formatNames = {"Reserved",
                                                          "Linear PCM (IEC60958)",
                                                          "AC-3",
                                                          "MPEG1 (Layer 1 and 2)",
                                                          "MP3 (MPEG1 Layer 3",
                                                          "MPEG2 (multichannel",
                                                          "AAC",
                                                          "DTS",
                                                          "ATRAC",
                                                          "One Bit Audio",
                                                          "Dolby Digital +",
                                                          "DTS-HD",
                                                          "MAT (MLP)",
                                                          "DST",
                                                          "WMA Pro"};

constexpr std::array<ListedFlag, 7> frequencies = {{{1, "32KHz,"},
                                                    {2, " 44.1KHz,"},
                                                    {4, " 48KHz,"},
                                                    {8, " 88.2KHz,"},
                                                    {16, " 96KHz,"},
                                                    {32, " 176.4KHz,"},
                                                    {64, " 192KHz"}}};

/// The prefix stands with the first size only.
constexpr std::array<ListedFlag, 3> sampleSizes = {
    {{1, "Sampling bit rate: 16 bit,"}, {2, " 20 bit,"}, {4, " 24 bit,"}}};

bool isCompressed(FrmCeaExt& screen) {
    return screen.AudioFormat(1).selected();
}

void decodeChannels(const Procedure& run, int cellIndex, std::string& channels) {
    const std::string digits = channelDigits(run.readText(cellIndex));
    if (digits.size() == 3) {
        const int row = binaryNumber(run.wb, digits);
        run.screen.AudChCBox.setValue(row);
        channels = "Audio Channels: " + std::to_string(row + 1);
    }
}

/// The code "1111" has no option and no name.
void decodeFormatName(const Procedure& run, int cellIndex, std::string& name) {
    run.screen.AudFormCode.deselect();
    const std::string digits = formatDigits(run.readText(cellIndex));
    const int code = binaryNumber(run.wb, digits);
    if (digits.size() == 4 && code < static_cast<int>(formatNames.size())) {
        run.screen.AudFormCode(code).setValue(flagTrue);
        name = formatNames[static_cast<std::size_t>(code)];
    }
}

void captionChannels(FrmCeaExt& screen, std::string_view words, int cellIndex) {
    screen.Hints(0).setCaption(std::string(words) + std::to_string(cellIndex) + ")");
}

/// Shows a maximum bit rate; gives it in kilobits per second.
std::string decodeRate(const Procedure& run, int cellIndex) {
    const int value = run.readByte(cellIndex);
    run.screen.bitrateCBox.setValue(value);
    return std::to_string(8 * value);
}

void decodeSampleSizes(const Procedure& run) {
    run.screen.bitrate.deselect();
    const int value = run.readByte(firstAudioCell(run.wb, 3));
    for (int i = 0; i < static_cast<int>(sampleSizes.size()); ++i) {
        const ListedFlag& size = sampleSizes[static_cast<std::size_t>(i)];
        if ((value & size.bit) != 0) {
            run.screen.bitrate(i).setValue(1);
            run.wb.BitRateText += size.listed;
        }
    }
}

} // namespace

std::string formatDigits(std::string_view cellText) {
    return rightPart(upperDigits(cellText), 3) + leftPart(lowerDigits(cellText), 1);
}

std::string channelDigits(std::string_view cellText) {
    return rightPart(lowerDigits(cellText), 3);
}

int firstAudioCell(const Workbench& workbench, int byte) {
    return location(workbench.AudioBlockStart, byte);
}

int lastAudioCell(const Workbench& workbench, int byte) {
    return location(workbench.LastAudioDescriptor, byte - 1);
}

void LocateAudioDescriptors(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        run.wb.AudioDescriptorCount = int16From(run.wb.AudioBlockLength / 3);
        constexpr int lastWalked = 12;
        for (int n = 2; n <= run.wb.AudioDescriptorCount && n <= lastWalked; ++n) {
            run.wb.LastAudioDescriptor =
                int16From(n == 2 ? location(run.wb.AudioBlockStart, 4) : location(run.wb.LastAudioDescriptor, 3));
            run.screen.CurrentBlockNumber = int16From(n - 1);
            ConvertCompressAudio(run.wb);
        }
    });
}

void ConvertCompressAudio(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const bool linear = formatDigits(run.readText(lastAudioCell(run.wb, 1))) == linearFormat;
        run.wb.LastAudioKindText = linear ? "Uncompressed" : "Compressed";
    });
}

void BuildAudioChannels(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const int cellIndex = firstAudioCell(run.wb, 1);
        decodeChannels(run, cellIndex, run.wb.AudioChannelsText);
        const bool compressed = isCompressed(run.screen);
        run.screen.FrmAudFormCode.setVisible(compressed);
        captionChannels(run.screen, compressed ? "Compressed Audio Codes(" : "Uncompressed Audio (", cellIndex);
        if (compressed) {
            BuildAudioFormatName(run.wb);
        } else {
            run.wb.AudioFormatText = "Linear PCM (IEC60958)";
        }
    });
}

void BuildLastAudioChannels(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeChannels(run, lastAudioCell(run.wb, 1), run.wb.LastAudioChannelsText);
        BuildLastAudioFormatName(run.wb);
    });
}

void BuildAudioFormatName(Workbench& workbench) {
    decoder(workbench,
            [](const Procedure& run) { decodeFormatName(run, firstAudioCell(run.wb, 1), run.wb.AudioFormatText); });
}

void BuildLastAudioFormatName(Workbench& workbench) {
    decoder(workbench,
            [](const Procedure& run) { decodeFormatName(run, lastAudioCell(run.wb, 1), run.wb.LastAudioFormatText); });
}

void BuildSampFreq(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFlags(run, firstAudioCell(run.wb, 2), frequencies, run.screen.SampFreq, run.wb.SampFreqText);
    });
}

void BuildLastSampFreq(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFlags(run, lastAudioCell(run.wb, 2), frequencies, run.screen.SampFreq, run.wb.LastSampFreqText);
    });
}

void BuildBitRate(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        run.wb.BitRateText.clear();
        if (isCompressed(run.screen)) {
            BuildCompressedBitRate(run.wb);
        } else {
            decodeSampleSizes(run);
        }
    });
}

void BuildCompressedBitRate(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const std::string rate = decodeRate(run, firstAudioCell(run.wb, 3));
        run.wb.BitRateText += "Sampling bit rate: " + rate + " bit";
    });
}

void BuildLastBitRate(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const std::string rate = decodeRate(run, lastAudioCell(run.wb, 3));
        run.wb.LastBitRateText = "Maximum Sampling bit rate: " + rate + " kbps";
    });
}

} // namespace wb::cea
