#include "cea/dispatch_audio.h"

#include "cea/dispatch_steps.h"
#include "cea/location.h"
#include "cea/panels.h"
#include "cea/procedure.h"
#include "cea/short_audio.h"
#include "cea/tag_panel.h"
#include "core/base/numbers.h"

namespace wb::cea {

namespace {

void colourInAudio(const Procedure& run, int index) {
    colourInBlock(run, index, run.workbench.AudioBlockStart, run.workbench.AudioBlockLength);
}

void openFrequencyPanel(const Procedure& run, int index) {
    showPanel(run, panels::frequencies, index, "Audio Sampling Frequency (");
    colourInAudio(run, index);
    run.screen.Hints(panels::audioChannels).setVisible(false);
    run.screen.FrmAudioFormat.setVisible(false);
}

/// Bit rate and sample sizes share a panel.
void showRateControls(const Procedure& run, bool rate, bool sizes) {
    run.screen.lbbitrate.setVisible(rate);
    run.screen.bitrateCBox.setVisible(rate);
    run.screen.Frmbitrate.setVisible(sizes);
}

} // namespace

void openAudioHeader(const Procedure& run, int index) {
    openHeader(run, index, "ShortAudio");
    run.screen.FrmAudioFormat.setVisible(true);
    run.screen.Hints(panels::videoDescriptor).setVisible(false);
    BuildAudioTag(run.workbench);
}

void openAudioChannels(const Procedure& run, int index) {
    showPanel(run, panels::audioChannels);
    colourInAudio(run, index);
    BuildAudioChannels(run.workbench);
    run.captionPanel(panels::audioChannels, index,
                     isCompressed(run.screen) ? "Compressed Audio Codes (" : "Uncompressed Audio (");
    run.screen.FrmAudFormCode.setVisible(isCompressed(run.screen));
}

void openLastAudioChannels(const Procedure& run, int index) {
    showPanel(run, panels::audioChannels, index, "Compressed Audio Codes (");
    run.screen.FrmAudFormCode.setVisible(true);
    run.screen.FrmAudioFormat.setVisible(false);
    colourInAudio(run, index);
    run.workbench.LastAudioFocus = flagTrue;
    LocateAudioDescriptors(run.workbench);
    BuildLastAudioChannels(run.workbench);
}

void openFrequencies(const Procedure& run, int index) {
    openFrequencyPanel(run, index);
    BuildSampFreq(run.workbench);
}

void openLastFrequencies(const Procedure& run, int index) {
    run.workbench.LastAudioFocus = flagTrue;
    openFrequencyPanel(run, index);
    BuildLastSampFreq(run.workbench);
}

void openBitRate(const Procedure& run, int index) {
    Workbench& workbench = run.workbench;
    showPanel(run, panels::bitRate);
    colourInAudio(run, index);
    showRateControls(run, false, false);
    run.screen.Hints(panels::frequencies).setVisible(false);
    BuildBitRate(workbench);
    const bool compressed = isCompressed(run.screen);
    run.captionPanel(panels::bitRate, index,
                     compressed ? "Compressed Sampl bit rate (" : "Uncompressed Sampl bit rate (");
    showRateControls(run, compressed, !compressed);
    if (workbench.AudioBlockStart != 0 && workbench.VideoBlockStart != 0) {
        workbench.SpeakerBlockStart = int16From(location(workbench.AudioBlockStart, 4));
    }
}

void openLastBitRate(const Procedure& run, int index) {
    Workbench& workbench = run.workbench;
    showPanel(run, panels::bitRate, index, "Compressed Sampl bit rate (");
    showRateControls(run, true, false);
    colourInAudio(run, index);
    workbench.LastAudioFocus = flagTrue;
    run.screen.Hints(panels::frequencies).setVisible(false);
    BuildLastBitRate(workbench);
    if (workbench.AudioBlockStart != 0 && workbench.VideoBlockStart != 0 && workbench.LastAudioDescriptor != 0) {
        workbench.SpeakerBlockStart = 0;
    }
}

} // namespace wb::cea
