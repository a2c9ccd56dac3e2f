#include "fields/cta_data_blocks.h"

namespace wb::fields {

namespace {

constexpr unsigned basicAudio = 0x40;
constexpr unsigned ycbcr444 = 0x20;
constexpr unsigned ycbcr422 = 0x10;
constexpr unsigned nativeMask = 0x0F;

void checkAudio(const Scope& extension, const Scope& header, const CtaState& state) {
    const bool flag = (state.flags & basicAudio) != 0;
    if ((state.audioDescriptors > 0 || state.has("speakers")) && !flag) {
        header.tell(Severity::Warning, "cta.basic_audio_missing", 3, "",
                    "Data blocks about audio stand here, yet basic audio, which every display with audio takes, is not "
                    "told, so that sources may send no sound; set bit 6.");
    }
    if (flag && state.audioDescriptors == 0) {
        header.tell(Severity::Note, "cta.audio_block_missing", 3, "basic_audio",
                    "Basic audio is told and no audio data block stands here, so that some sources send no sound; add "
                    "one with L-PCM of 2 channels.");
    }
    if (state.mostPcmChannels > 2 && !state.has("speakers")) {
        extension.tell(Severity::Warning, "cta.speakers_missing", 0, "",
                       "L-PCM of more than 2 channels is told and no speaker allocation data block, which has to go "
                       "with it, so that sources keep to 2 channels; add one.",
                       "CTA-861-H, 7.5.3");
    }
}

void checkNativeCount(const Scope& header, const CtaState& state) {
    const unsigned native = state.flags & nativeMask;
    if (native > state.timings) {
        header.tell(Severity::Warning, "cta.native_count", 3, "native_count",
                    "The number of native detailed timings is " + std::to_string(native) +
                        " and that of all in block 0 and here is " + std::to_string(state.timings) +
                        ", so that readers cannot tell which ones are meant; correct the count.");
    }
}

void checkHdmi(const Scope& extension, const Scope& header, const CtaState& state) {
    if (state.has("hdmi_forum") && !state.has("hdmi")) {
        extension.tell(Severity::Warning, "cta.hdmi_missing", 0, "",
                       "A data block of the HDMI Forum stands here without the HDMI data block, which has to come "
                       "before it, so that sources take the display for DVI; add it.",
                       "HDMI 2.1, 10.3.2");
    }
    const bool both444 = (state.flags & ycbcr444) != 0;
    const bool both422 = (state.flags & ycbcr422) != 0;
    if (state.has("hdmi") && both444 != both422) {
        header.tell(Severity::Warning, "cta.ycbcr_flags", 3, both444 ? "ycbcr_444" : "ycbcr_422",
                    "Only one of YCbCr 4:4:4 and 4:2:2 is told, which HDMI allows together alone, so that sources may "
                    "use neither; set both or clear both.",
                    "HDMI 1.4b, 6.2.3");
    }
}

/// A warning about a field of the extension that was read before, at the byte where it stands.
void warnOf(const Scope& extension, std::string_view code, std::size_t fieldIndex, std::string text,
            std::string_view clause) {
    const Field& field = extension.reading().fields[fieldIndex];
    const std::size_t offset = field.where.front().byte - extension.place(0);
    extension.tell(Severity::Warning, code, offset, field.path.substr(extension.path().size() + 1), std::move(text),
                   clause);
}

void check420(const Scope& extension, const CtaState& state) {
    for (const auto& [code, field] : state.videoCodes420) {
        if (hasCode(state.videoCodes, code)) {
            warnOf(extension, "cta.video_420_repeated", field,
                   "Video code " + std::to_string(code) +
                       " is told for YCbCr 4:2:0 alone and also for all encodings, so that readers cannot "
                       "tell which is meant; use the capability map for what goes both ways.",
                   "CTA-861-H, 7.5.10");
        }
    }
    if (state.mapReach > state.videoCodes.size()) {
        warnOf(extension, "cta.capability_map_long", state.mapReachField,
               "The YCbCr 4:2:0 capability map names video descriptor " + std::to_string(state.mapReach) + " where " +
                   std::to_string(state.videoCodes.size()) +
                   " stand in the extension, so that readers may run past their list; clear the bits without a "
                   "descriptor.",
               "CTA-861-H, 7.5.11");
    }
}

} // namespace

void checkCta(const Scope& extension, const Scope& header, const CtaState& state) {
    checkAudio(extension, header, state);
    checkNativeCount(header, state);
    checkHdmi(extension, header, state);
    check420(extension, state);
}

} // namespace wb::fields
