#include "cea/short_audio.h"

#include <array>

#include "cea/digits.h"
#include "cea/flag_list.h"
#include "cea/handlers.h"
#include "cea/location.h"
#include "cea/panels.h"
#include "cea/procedure.h"
#include "core/base/bits.h"
#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb::cea {

namespace {

/// By format code. Two names lack their closing bracket in the report, though not on the panel.
constexpr auto formatNames = std::to_array<std::string_view>({
    "Reserved",
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
    "WMA Pro",
});

constexpr std::array<ListedFlag, 7> frequencies = {{{0, "32KHz,"},
                                                    {1, " 44.1KHz,"},
                                                    {2, " 48KHz,"},
                                                    {3, " 88.2KHz,"},
                                                    {4, " 96KHz,"},
                                                    {5, " 176.4KHz,"},
                                                    {6, " 192KHz"}}};

/// The prefix stands with the first size only.
constexpr std::array<ListedFlag, 3> sampleSizes = {
    {{0, "Sampling bit rate: 16 bit,"}, {1, " 20 bit,"}, {2, " 24 bit,"}}};

/// Bits 6 to 3 of a descriptor's first byte as binary digits.
std::string formatDigits(std::string_view cellText) {
    return joined({lastDigits(upperDigits(cellText), 3), firstDigits(lowerDigits(cellText), 1)});
}

void decodeChannels(const Procedure& run, int cellIndex, std::string& channels) {
    const std::string_view digits = channelDigits(run.readText(cellIndex));
    if (digits.size() == 3) {
        const int row = binaryNumber(run.workbench, digits);
        run.screen.AudChCBox.setValue(row);
        join(channels, {"Audio Channels: ", std::to_string(row + 1)});
    }
}

/// The code "1111" has no option and no name.
void decodeFormatName(const Procedure& run, int cellIndex, std::string& name) {
    run.screen.AudFormCode.deselect();
    const std::string digits = formatDigits(run.readText(cellIndex));
    const int code = binaryNumber(run.workbench, digits);
    if (digits.size() == 4 && code < static_cast<int>(formatNames.size())) {
        run.screen.AudFormCode(code).setValue(flagTrue);
        name = formatNames[static_cast<std::size_t>(code)];
    }
}

/// Shows a maximum bit rate; gives it in kilobits per second.
std::string decodeRate(const Procedure& run, int cellIndex) {
    const int value = run.readByte(cellIndex);
    run.screen.bitrateCBox.setValue(value);
    return std::to_string(8 * value);
}

void decodeSampleSizes(const Procedure& run) {
    run.screen.bitrate.deselect();
    const int value = run.readByte(firstAudioCell(run.workbench, 3));
    for (int i = 0; i < static_cast<int>(sampleSizes.size()); ++i) {
        const ListedFlag& size = sampleSizes[static_cast<std::size_t>(i)];
        if (bit(value, size.place)) {
            run.screen.bitrate(i).setValue(1);
            run.workbench.BitRateText += size.listed;
        }
    }
}

} // namespace

bool isCompressed(FrmCeaExt& screen) {
    return screen.AudioFormat(1).selected();
}

bool isLinear(std::string_view cellText) {
    return formatDigits(cellText) == "0001";
}

std::string_view channelDigits(std::string_view cellText) {
    return lastDigits(lowerDigits(cellText), 3);
}

int firstAudioCell(const Workbench& workbench, int byte) {
    return location(workbench.AudioBlockStart, byte);
}

int lastAudioCell(const Workbench& workbench, int byte) {
    return location(workbench.LastAudioDescriptor, byte - 1);
}

void LocateAudioDescriptors(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        run.workbench.AudioDescriptorCount = int16From(run.workbench.AudioBlockLength / 3);
        constexpr int lastWalked = 12;
        for (int n = 2; n <= run.workbench.AudioDescriptorCount && n <= lastWalked; ++n) {
            run.workbench.LastAudioDescriptor = int16From(n == 2 ? location(run.workbench.AudioBlockStart, 4)
                                                                 : location(run.workbench.LastAudioDescriptor, 3));
            run.screen.CurrentBlockNumber = int16From(n - 1);
            ConvertCompressAudio(run.workbench);
        }
    });
}

void ConvertCompressAudio(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const bool linear = isLinear(run.readText(lastAudioCell(run.workbench, 1)));
        run.workbench.LastAudioKindText = linear ? "Uncompressed" : "Compressed";
    });
}

void BuildAudioChannels(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const int cellIndex = firstAudioCell(run.workbench, 1);
        decodeChannels(run, cellIndex, run.workbench.AudioChannelsText);
        const bool compressed = isCompressed(run.screen);
        run.screen.FrmAudFormCode.setVisible(compressed);
        run.captionPanel(panels::audioChannels, cellIndex,
                         compressed ? "Compressed Audio Codes(" : "Uncompressed Audio (");
        if (compressed) {
            BuildAudioFormatName(run.workbench);
        } else {
            run.workbench.AudioFormatText = "Linear PCM (IEC60958)";
        }
    });
}

void BuildLastAudioChannels(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeChannels(run, lastAudioCell(run.workbench, 1), run.workbench.LastAudioChannelsText);
        BuildLastAudioFormatName(run.workbench);
    });
}

void BuildAudioFormatName(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFormatName(run, firstAudioCell(run.workbench, 1), run.workbench.AudioFormatText);
    });
}

void BuildLastAudioFormatName(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFormatName(run, lastAudioCell(run.workbench, 1), run.workbench.LastAudioFormatText);
    });
}

void BuildSampFreq(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFlags(run, firstAudioCell(run.workbench, 2), frequencies, run.screen.SampFreq,
                    run.workbench.SampFreqText);
    });
}

void BuildLastSampFreq(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFlags(run, lastAudioCell(run.workbench, 2), frequencies, run.screen.SampFreq,
                    run.workbench.LastSampFreqText);
    });
}

void BuildBitRate(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        run.workbench.BitRateText.clear();
        if (isCompressed(run.screen)) {
            BuildCompressedBitRate(run.workbench);
        } else {
            decodeSampleSizes(run);
        }
    });
}

void BuildCompressedBitRate(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const std::string rate = decodeRate(run, firstAudioCell(run.workbench, 3));
        append(run.workbench.BitRateText, {"Sampling bit rate: ", rate, " bit"});
    });
}

void BuildLastBitRate(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const std::string rate = decodeRate(run, lastAudioCell(run.workbench, 3));
        join(run.workbench.LastBitRateText, {"Maximum Sampling bit rate: ", rate, " kbps"});
    });
}

} // namespace wb::cea
