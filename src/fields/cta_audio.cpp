#include "fields/cta_data_blocks.h"

namespace wb::fields {

namespace {

constexpr std::size_t descriptorSize = 3;
constexpr unsigned linearPcm = 1;
constexpr unsigned lastOfBitRates = 8;
constexpr unsigned wmaPro = 14;
constexpr unsigned extendedFormat = 15;

constexpr unsigned firstAac = 4;
constexpr unsigned lastPlainAac = 6;
constexpr unsigned aacSurround = 8;
constexpr unsigned aacLcSurround = 10;
constexpr unsigned mpegH = 11;
constexpr unsigned pcm3d = 13;

/// CTA-861-H, table 37.
constexpr auto formats = std::to_array<Choice>({{1, "L-PCM"},
                                                {2, "AC-3"},
                                                {3, "MPEG-1"},
                                                {4, "MP3"},
                                                {5, "MPEG-2"},
                                                {6, "AAC LC"},
                                                {7, "DTS"},
                                                {8, "ATRAC"},
                                                {9, "One Bit Audio"},
                                                {10, "Enhanced AC-3"},
                                                {11, "DTS-HD"},
                                                {12, "MAT"},
                                                {13, "DST"},
                                                {14, "WMA Pro"},
                                                {15, "extended"}});
/// CTA-861-H, table 39; the last two are of CTA-861-I.
constexpr auto extendedFormats = std::to_array<Choice>({{4, "MPEG-4 HE AAC"},
                                                        {5, "MPEG-4 HE AAC v2"},
                                                        {6, "MPEG-4 AAC LC"},
                                                        {7, "DRA"},
                                                        {8, "MPEG-4 HE AAC + MPEG Surround"},
                                                        {10, "MPEG-4 AAC LC + MPEG Surround"},
                                                        {11, "MPEG-H 3D Audio"},
                                                        {12, "AC-4"},
                                                        {13, "L-PCM 3D Audio"},
                                                        {14, "Auro-Cx"},
                                                        {15, "MPEG-D USAC"}});

constexpr Row reservedTop = reservedAt(0, 7, 7, "reserved_1");
constexpr Row formatRow = {
    .name = "format", .label = "Audio format", .parts = {{0, 6, 3}}, .kind = Kind::Choice, .choices = formats};
constexpr Row channelsRow = {.name = "channels", .label = "Most channels", .parts = {{0, 2, 0}}, .bias = 1};
constexpr Row reservedRate = reservedAt(1, 7, 7, "reserved_2");

/// Bits 6 to 0 of byte 1.
struct Rate {
    double kilohertz;
    Row row;
};
constexpr std::array<Rate, 7> rates = {{{192, flagAt(1, 6, "rate_192", "192 kHz")},
                                        {176.4, flagAt(1, 5, "rate_176_4", "176.4 kHz")},
                                        {96, flagAt(1, 4, "rate_96", "96 kHz")},
                                        {88.2, flagAt(1, 3, "rate_88_2", "88.2 kHz")},
                                        {48, flagAt(1, 2, "rate_48", "48 kHz")},
                                        {44.1, flagAt(1, 1, "rate_44_1", "44.1 kHz")},
                                        {32, flagAt(1, 0, "rate_32", "32 kHz")}}};

constexpr std::array<Row, 4> pcmSizes = {{reservedAt(2, 7, 3, "reserved_3"), flagAt(2, 2, "size_24", "24 bit"),
                                          flagAt(2, 1, "size_20", "20 bit"), flagAt(2, 0, "size_16", "16 bit")}};
constexpr std::array<Row, 1> bitRate = {
    {{.name = "max_bit_rate", .label = "Most kilobits a second", .parts = {{2}}, .scale = 8}}};
constexpr std::array<Row, 1> formatDependent = {
    {{.name = "format_value", .label = "Value that the format defines", .parts = {{2}}}}};
constexpr std::array<Row, 2> wmaProfile = {
    {reservedAt(2, 7, 3, "reserved_3"), {.name = "profile", .label = "Profile", .parts = {{2, 2, 0}}}}};

constexpr Row extendedRow = {.name = "extended_format",
                             .label = "Extended audio format",
                             .parts = {{2, 7, 3}},
                             .kind = Kind::Choice,
                             .choices = extendedFormats};
constexpr std::array<Row, 3> aacLengths = {{flagAt(2, 2, "length_1024", "Transforms of 1024 samples"),
                                            flagAt(2, 1, "length_960", "Transforms of 960 samples"),
                                            reservedAt(2, 0, 0, "reserved_3")}};
constexpr auto surroundSignals = std::to_array<Choice>({{0, "implicit"}, {1, "implicit and explicit"}});
constexpr std::array<Row, 3> aacSurroundRows = {{flagAt(2, 2, "length_1024", "Transforms of 1024 samples"),
                                                 flagAt(2, 1, "length_960", "Transforms of 960 samples"),
                                                 {.name = "surround_signaling",
                                                  .label = "MPEG Surround signaling",
                                                  .parts = {{2, 0, 0}},
                                                  .kind = Kind::Choice,
                                                  .choices = surroundSignals}}};
constexpr std::array<Row, 3> mpegHProfiles = {{reservedAt(2, 2, 2, "reserved_3"),
                                               flagAt(2, 1, "baseline_profile", "Baseline profile"),
                                               flagAt(2, 0, "low_complexity_profile", "Low complexity profile")}};
constexpr std::array<Row, 3> pcm3dSizes = {
    {flagAt(2, 2, "size_24", "24 bit"), flagAt(2, 1, "size_20", "20 bit"), flagAt(2, 0, "size_16", "16 bit")}};
constexpr std::array<Row, 1> extendedValue = {
    {{.name = "format_value", .label = "Value that the format defines", .parts = {{2, 2, 0}}}}};

/// Level 0 is none; CTA-861-H, table 42.
constexpr auto noLevel = std::to_array<Choice>({{0, "not told"}});
constexpr Row levelRow = {.name = "level", .label = "MPEG-H 3D Audio level", .parts = {{0, 2, 0}}, .choices = noLevel};
/// Five bits in three places.
constexpr Row channels3dRow = {
    .name = "channels", .label = "Most channels", .parts = {{1, 7, 7}, {0, 7, 7}, {0, 2, 0}}, .bias = 1};

struct Descriptor {
    unsigned format;
    unsigned extension; ///< 0 where the format is no extended one
    int channels;
};

Descriptor descriptorOf(const Scope& scope) {
    const auto format = static_cast<unsigned>(scope.raw(formatRow.parts));
    const auto extension = format == extendedFormat ? static_cast<unsigned>(scope.raw(extendedRow.parts)) : 0U;
    if (extension == pcm3d) {
        return {format, extension, static_cast<int>(scope.raw(channels3dRow.parts)) + 1};
    }
    return {format, extension, extension == mpegH ? 0 : static_cast<int>(scope.raw(channelsRow.parts)) + 1};
}

std::span<const Row> lastByteRows(unsigned format) {
    if (format == linearPcm) {
        return pcmSizes;
    }
    if (format > linearPcm && format <= lastOfBitRates) {
        return bitRate;
    }
    if (format == wmaPro) {
        return wmaProfile;
    }
    return formatDependent;
}

std::span<const Row> extendedRows(unsigned extension) {
    if (extension >= firstAac && extension <= lastPlainAac) {
        return aacLengths;
    }
    switch (extension) {
        case aacSurround:
        case aacLcSurround:
            return aacSurroundRows;
        case mpegH:
            return mpegHProfiles;
        case pcm3d:
            return pcm3dSizes;
        default:
            return extendedValue;
    }
}

void addFields(const Scope& scope, const Descriptor& descriptor) {
    scope.add(formatRow);
    if (descriptor.extension == pcm3d) {
        scope.add(channels3dRow);
    } else {
        scope.add(reservedTop);
        scope.add(descriptor.extension == mpegH ? levelRow : channelsRow);
        scope.add(reservedRate);
    }
    for (const Rate& rate : rates) {
        scope.add(rate.row);
    }
    if (descriptor.format == extendedFormat) {
        scope.add(extendedRow);
        scope.add(extendedRows(descriptor.extension));
    } else {
        scope.add(lastByteRows(descriptor.format));
    }
}

std::string_view nameOf(const Descriptor& descriptor) {
    return descriptor.format == extendedFormat ? choiceText(extendedFormats, descriptor.extension)
                                               : choiceText(formats, descriptor.format);
}

void check(const Scope& scope, const AudioFormat& audio) {
    if (!audio.format.empty() && audio.ratesKilohertz.empty()) {
        scope.tell(Severity::Warning, "cta.audio_no_rate", 1, "rate_192",
                   "The descriptor of " + std::string(audio.format) +
                       " names no sampling rate, so that no source can send it; set the rates that are taken or take "
                       "it out.");
    }
}

void readDescriptor(const Scope& scope, CtaState& state) {
    const Descriptor descriptor = descriptorOf(scope);
    addFields(scope, descriptor);
    AudioFormat audio{.format = nameOf(descriptor), .channels = descriptor.channels};
    for (const Rate& rate : rates) {
        if (scope.raw(rate.row.parts) != 0) {
            audio.ratesKilohertz.push_back(rate.kilohertz);
        }
    }
    check(scope, audio);
    if (descriptor.format == linearPcm) {
        state.mostPcmChannels = std::max(state.mostPcmChannels, descriptor.channels);
    }
    if (!audio.format.empty()) {
        scope.summary().audio.push_back(std::move(audio));
    }
}

} // namespace

void readAudioBlock(const DataBlock& block) {
    for (std::size_t offset = block.begin; offset < block.end; offset += descriptorSize) {
        const Scope descriptor =
            block.extension.inner(offset, numbered("audio", ++block.state.audioDescriptors), block.content.clause());
        if (block.end - offset < descriptorSize) {
            descriptor.addBytes(0, block.end - offset, "rest", "Further bytes");
            descriptor.tell(Severity::Error, "cta.audio_incomplete", 0, "rest",
                            "The last audio descriptor has " + std::to_string(block.end - offset) +
                                " of its 3 bytes, so that readers refuse or misread it; complete it or take it out.");
        } else {
            readDescriptor(descriptor, block.state);
        }
    }
}

} // namespace wb::fields
