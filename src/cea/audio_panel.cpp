#include "cea/audio_panel.h"

#include <algorithm>

#include "cea/digits.h"
#include "cea/flag_list.h"
#include "cea/handlers.h"
#include "cea/panels.h"
#include "cea/procedure.h"
#include "cea/short_audio.h"
#include "core/base/bits.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"

namespace wb::cea {

namespace {

bool hasLastDescriptor(const Workbench& workbench) {
    return workbench.AudioBlockLength >= longDataBlock && workbench.LastAudioDescriptor > workbench.AudioBlockStart;
}

bool lastInFocus(const Workbench& workbench) {
    return hasLastDescriptor(workbench) && workbench.LastAudioFocus != flagFalse;
}

int audioCell(const Workbench& workbench, bool last, int byte) {
    return last ? lastAudioCell(workbench, byte) : firstAudioCell(workbench, byte);
}

std::string keptChannels(const Procedure& run, int cellIndex) {
    return std::string(channelDigits(run.readText(cellIndex)));
}

void writeDigits(const Procedure& run, int cellIndex, const std::string& digits) {
    run.write(cellIndex, ByteToHex2(binaryNumber(run.workbench, digits)));
}

} // namespace

void AudioFormat_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const int cellIndex = firstAudioCell(run.workbench, 1);
        const std::string channels = keptChannels(run, cellIndex);
        if (run.screen.AudioFormat(index).selected()) {
            writeDigits(run, cellIndex, (index == 0 ? "00001" : "00000") + channels);
        }
    });
}

void AudFormCode_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const int cellIndex = audioCell(run.workbench, hasLastDescriptor(run.workbench), 1);
        const std::string channels = keptChannels(run, cellIndex);
        writeDigits(run, cellIndex, "0" + binaryDigits(index, 4) + channels);
        run.screen.AudFormCode(index).setValue(flagTrue);
        run.captionPanel(panels::audioChannels, cellIndex,
                         index == 1 ? "Uncompressed Audio (" : "Compressed Audio Codes(");
    });
}

void AudChCBox_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        const bool last = lastInFocus(run.workbench);
        const int cellIndex = audioCell(run.workbench, last, 1);
        if (last) {
            run.colour(cellIndex, cellIndex, CellColour::Group);
            run.colour(cellIndex, cellIndex, CellColour::Field);
        }
        const int row = std::max(shownRow(run.screen.AudChCBox), 0);
        run.workbench.AudioChannelDigit = std::to_string(row + 1);
        const std::string old = run.readText(cellIndex);
        const std::string digits = joined({firstDigits(lowerDigits(old), 1), binaryDigits(row, 3)});
        run.write(cellIndex, leftPart(old, 1) + hexadecimal16(int16From(binaryNumber(run.workbench, digits))));
    });
}

void SampFreq_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const bool last = lastInFocus(run.workbench);
        const int cellIndex = audioCell(run.workbench, last, 2);
        constexpr BitRange withoutReserved{6, 0};
        writeFlag(run, cellIndex, withoutReserved, index, run.screen.SampFreq(index));
        if (last) {
            BuildLastSampFreq(run.workbench);
        } else {
            BuildSampFreq(run.workbench);
        }
    });
}

void bitrate_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const bool last = lastInFocus(run.workbench);
        const int cellIndex = audioCell(run.workbench, last, 3);
        constexpr BitRange sizeBits{2, 0};
        writeFlag(run, cellIndex, sizeBits, index, run.screen.bitrate(index));
        if (last) {
            BuildLastBitRate(run.workbench);
        } else {
            BuildBitRate(run.workbench);
        }
    });
}

void bitrateCBox_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        const int row = std::max(shownRow(run.screen.bitrateCBox), 0);
        run.write(audioCell(run.workbench, run.workbench.LastAudioFocus != flagFalse, 3), ByteToHex2(row));
    });
}

} // namespace wb::cea
