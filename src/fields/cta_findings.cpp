#include <bitset>

#include "fields/extensions.h"

namespace wb::fields {

namespace {

constexpr unsigned basicAudio = 0x40;
constexpr unsigned ycbcr444 = 0x20;
constexpr unsigned ycbcr422 = 0x10;
constexpr unsigned nativeMask = 0x0F;

Scope headerOf(const CtaExtension& extension) {
    return extension.block.inner(0, "header");
}

/// What all extensions of an image tell together.
struct Together {
    unsigned flags = 0; ///< that one of them has
    bool hasAudioDescriptors = false;
    bool hasSpeakers = false;
    bool hasHdmi = false;
    std::size_t timings = 0; ///< those of block 0 too
    std::size_t videoDescriptors = 0;
    std::bitset<256> videoCodes{};
};

Together togetherOf(const CtaExtensions& extensions) {
    Together together;
    for (const CtaExtension& extension : extensions) {
        const CtaState& state = extension.state;
        together.flags |= state.flags;
        together.hasAudioDescriptors = together.hasAudioDescriptors || state.audioDescriptors > 0;
        together.hasSpeakers = together.hasSpeakers || state.has("speakers");
        together.hasHdmi = together.hasHdmi || state.has("hdmi");
        together.timings = state.timings;
        together.videoDescriptors += state.videoCodes.size();
        for (const ReadVideoCode& read : state.videoCodes) {
            together.videoCodes.set(read.code);
        }
    }
    return together;
}

void checkAudio(const CtaExtension& extension, const Together& all) {
    const CtaState& state = extension.state;
    const Scope header = headerOf(extension);
    if ((state.audioDescriptors > 0 || state.has("speakers")) && (all.flags & basicAudio) == 0) {
        header.tell(Severity::Warning, "cta.basic_audio_missing", 3, "",
                    "Data blocks about audio stand here, yet basic audio, which every display with audio takes, is not "
                    "told, so that sources may send no sound; set bit 6.");
    }
    if ((state.flags & basicAudio) != 0 && !all.hasAudioDescriptors) {
        header.tell(Severity::Note, "cta.audio_block_missing", 3, "basic_audio",
                    "Basic audio is told and no audio data block stands here, so that some sources send no sound; add "
                    "one with L-PCM of 2 channels.");
    }
    if (state.mostPcmChannels > 2 && !all.hasSpeakers) {
        extension.block.tell(
            Severity::Warning, "cta.speakers_missing", 0, "",
            "L-PCM of more than 2 channels is told and no speaker allocation data block, which has to go "
            "with it, so that sources keep to 2 channels; add one.",
            "CTA-861-H, 7.5.3");
    }
}

void checkNativeCount(const CtaExtension& extension, const Together& all) {
    const unsigned native = extension.state.flags & nativeMask;
    if (native > all.timings) {
        headerOf(extension).tell(Severity::Warning, "cta.native_count", 3, "native_count",
                                 "The number of native detailed timings is " + std::to_string(native) +
                                     " and that of all in block 0 and the CTA-861 extensions is " +
                                     std::to_string(all.timings) +
                                     ", so that readers cannot tell which ones are meant; correct the count.");
    }
}

void checkHdmi(const CtaExtension& extension, const Together& all) {
    const CtaState& state = extension.state;
    if (state.has("hdmi_forum") && !all.hasHdmi) {
        extension.block.tell(
            Severity::Warning, "cta.hdmi_missing", 0, "",
            "A data block of the HDMI Forum stands here without the HDMI data block, which has to come "
            "before it, so that sources take the display for DVI; add it.",
            "HDMI 2.1, 10.3.2");
    }
    const bool has444 = (state.flags & ycbcr444) != 0;
    const bool has422 = (state.flags & ycbcr422) != 0;
    if (all.hasHdmi && has444 != has422) {
        headerOf(extension).tell(
            Severity::Warning, "cta.ycbcr_flags", 3, has444 ? "ycbcr_444" : "ycbcr_422",
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

void check420(const CtaExtension& extension, const Together& all) {
    const CtaState& state = extension.state;
    for (const auto& [code, field] : state.videoCodes420) {
        if (all.videoCodes.test(code)) {
            warnOf(extension.block, "cta.video_420_repeated", field,
                   "Video code " + std::to_string(code) +
                       " is told for YCbCr 4:2:0 alone and also for all encodings, so that readers cannot "
                       "tell which is meant; use the capability map for what goes both ways.",
                   "CTA-861-H, 7.5.10");
        }
    }
    if (state.mapReach > all.videoDescriptors) {
        warnOf(extension.block, "cta.capability_map_long", state.mapReachField,
               "The YCbCr 4:2:0 capability map names video descriptor " + std::to_string(state.mapReach) + " where " +
                   std::to_string(all.videoDescriptors) +
                   " stand in the image, so that readers may run past their list; clear the bits without a "
                   "descriptor.",
               "CTA-861-H, 7.5.11");
    }
}

} // namespace

void checkCta(const CtaExtensions& extensions) {
    const Together all = togetherOf(extensions);
    for (const CtaExtension& extension : extensions) {
        checkAudio(extension, all);
        checkNativeCount(extension, all);
        checkHdmi(extension, all);
        check420(extension, all);
    }
}

} // namespace wb::fields
