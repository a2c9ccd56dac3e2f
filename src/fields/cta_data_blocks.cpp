#include "fields/cta_data_blocks.h"

#include <algorithm>

namespace wb::fields {

namespace {

constexpr std::string_view tagClause = "CTA-861-H, table 60";
constexpr std::string_view extendedClause = "CTA-861-H, table 62";

constexpr unsigned extendedTag = 7;
/// Marks an extended tag in the tables of this file: 0x700 and the second byte.
constexpr unsigned extended = extendedTag << 8U;
constexpr std::uint32_t anyOui = 0xFFFFFFFF;

struct DataBlockKind {
    unsigned tag; ///< 0 to 7, or `extended` and the extended tag
    std::string_view name;
    std::string_view label;
    std::string_view clause;
    void (*read)(const DataBlock& block);
    std::size_t least = 1; ///< bytes of its content after the tags
    bool once = false;     ///< stands once in an image
    std::uint32_t oui = anyOui;
};

/// The first that fits counts. CTA-861-H, tables 60 and 62.
constexpr auto kinds = std::to_array<DataBlockKind>({
    {1, "audio", "audio data block", "CTA-861-H, 7.5.2", readAudioBlock, 3},
    {2, "video", "video data block", "CTA-861-H, 7.5.1", readVideoBlock},
    {3, "hdmi", "HDMI vendor-specific data block", "HDMI 1.4b, 8.3.2", readHdmi, 5, true, 0x000C03},
    {3, "hdmi_forum", "HDMI Forum vendor-specific data block", "HDMI 2.1, 10.3.2", readHdmiForum, 7, true, 0xC45DD8},
    {3, "vendor", "vendor-specific data block", "CTA-861-H, 7.5.4", readVendor, 3},
    {4, "speakers", "speaker allocation data block", "CTA-861-H, 7.5.3", readSpeakerAllocation, 3, true},
    {5, "dtc", "VESA display transfer characteristic data block", "VESA DTCDB 1.0", readTransferCharacteristic},
    {6, "video_format", "video format data block", "CTA-861.6, 7.5", readUnknownBlock},
    {extended | 0, "video_capability", "video capability data block", "CTA-861-H, 7.5.6", readVideoCapability, 1, true},
    {extended | 1, "vendor_video", "vendor-specific video data block", "CTA-861-H, 7.5.7", readVendor, 3},
    {extended | 2, "display_device", "VESA display device data block", "VESA DDDB 1.0", readDisplayDevice, 30, true},
    {extended | 3, "vesa_timing", "VESA video timing data block", extendedClause, readUnknownBlock},
    {extended | 4, "hdmi_video", "data block reserved for HDMI video", extendedClause, readUnknownBlock, 0},
    {extended | 5, "colorimetry", "colorimetry data block", "CTA-861-H, 7.5.5", readColorimetry, 2, true},
    {extended | 6, "hdr", "HDR static metadata data block", "CTA-861-H, 7.5.13", readHdrStatic, 2, true},
    {extended | 7, "hdr_dynamic", "HDR dynamic metadata data block", "CTA-861-H, 7.5.14", readHdrDynamic, 3},
    {extended | 8, "native_resolution", "native video resolution data block", "CTA-861.6, 7.5", readUnknownBlock},
    {extended | 13, "preference", "video format preference data block", "CTA-861-H, 7.5.12", readFormatPreference},
    {extended | 14, "video_420", "YCbCr 4:2:0 video data block", "CTA-861-H, 7.5.10", readVideo420Block},
    {extended | 15, "capability_map_420", "YCbCr 4:2:0 capability map data block", "CTA-861-H, 7.5.11",
     readCapabilityMap, 0, true},
    {extended | 17, "vendor_audio", "vendor-specific audio data block", "CTA-861-H, 7.5.8", readVendor, 3},
    {extended | 18, "hdmi_audio", "data block reserved for HDMI audio", extendedClause, readUnknownBlock, 0},
    {extended | 19, "room", "room configuration data block", "CTA-861-H, 7.5.15", readRoomConfiguration, 4, true},
    {extended | 20, "speaker_location", "speaker location data block", "CTA-861-H, 7.5.16", readSpeakerLocation, 2},
    {extended | 32, "infoframe", "InfoFrame data block", extendedClause, readUnknownBlock, 2},
    {extended | 34, "type_vii", "DisplayID type VII timing data block", extendedClause, readTypeVIIBlock, 21},
    {extended | 35, "type_viii", "DisplayID type VIII timing data block", extendedClause, readUnknownBlock, 2},
    {extended | 42, "type_x", "DisplayID type X timing data block", extendedClause, readUnknownBlock, 7},
    {extended | 0x78, "eeodb", "HDMI Forum EDID extension override data block", "HDMI 2.1, 10.3.6",
     readExtensionOverride, 1, true},
    {extended | 0x79, "hdmi_forum", "HDMI Forum sink capability data block", "HDMI 2.1, 10.3.3",
     readHdmiForumSinkCapability, 6, true},
});
constexpr DataBlockKind unknownKind = {0, "reserved", "data block with a reserved tag", tagClause, readUnknownBlock, 0};

constexpr Row tagRow = {.name = "tag", .label = "Tag of a data block", .parts = {{0, 7, 5}}};
constexpr Row lengthRow = {.name = "length", .label = "Bytes that follow", .parts = {{0, 4, 0}}};
constexpr Row extendedTagRow = {
    .name = "extended_tag", .label = "Extended tag", .parts = {{1}}, .clause = extendedClause};
constexpr std::size_t lengthMask = 0x1F;

/// `end` is that of the bytes that are there.
const DataBlockKind& kindOf(const Scope& scope, std::size_t end) {
    unsigned tag = scope.byte(0) >> 5U;
    if (tag == extendedTag && end > 1) {
        tag = extended | scope.byte(1);
    }
    const std::uint32_t oui = end > 3 ? scope.word(1) | static_cast<std::uint32_t>(scope.byte(3)) << 16U : anyOui;
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const DataBlockKind& kind) {
        return kind.tag == tag && (kind.oui == anyOui || kind.oui == oui);
    });
    return found == kinds.end() ? unknownKind : *found;
}

/// "HDMI vendor-specific data block at byte 140".
std::string nameOf(const Scope& scope, const DataBlockKind& kind) {
    return std::string(kind.label) + " at byte " + std::to_string(scope.place(0));
}

void describe(Field& tag, std::string_view words) {
    tag.text += " (";
    tag.text += words;
    tag.text += ')';
}

void addHeader(const Scope& scope, const DataBlockKind& kind, bool isExtended) {
    Field& tag = scope.add(tagRow);
    describe(tag, isExtended ? "extended tag" : kind.label);
    scope.add(lengthRow);
    if (isExtended) {
        describe(scope.add(extendedTagRow), kind.label);
    }
}

void checkKind(const Scope& header, const DataBlockKind& kind, std::size_t begin, std::size_t declaredEnd,
               CtaState& state) {
    if (&kind == &unknownKind) {
        header.tell(Severity::Note, "cta.data_block_reserved", begin - 1, begin == 1 ? "tag" : "extended_tag",
                    "The tag of the data block at byte " + std::to_string(header.place(0)) +
                        " is reserved, so that readers pass over what it tells; take it out unless a later standard "
                        "gives it a meaning.");
    } else if (declaredEnd < begin + kind.least) {
        header.tell(Severity::Error, "cta.data_block_short", 0, "length",
                    "The " + nameOf(header, kind) + " has " + std::to_string(declaredEnd - begin) + " of at least " +
                        std::to_string(kind.least) +
                        " bytes of content, so that readers refuse or misread it; complete it or take it out.",
                    kind.clause);
    }
    if (kind.once && state.kinds[kind.name] + state.earlierKinds[kind.name] > 1) {
        header.tell(Severity::Warning, "cta.data_block_repeated", 0, "tag",
                    "The " + nameOf(header, kind) +
                        " is not the first of its kind, and readers differ in which one they take; keep a single one.",
                    kind.clause);
    }
}

/// Reads one and tells its size.
std::size_t readDataBlock(const Scope& scope, std::size_t limit, CtaState& state) {
    const std::size_t declaredEnd = 1 + (scope.byte(0) & lengthMask);
    const std::size_t end = std::min(declaredEnd, limit);
    const DataBlockKind& kind = kindOf(scope, end);
    const std::size_t begin = scope.byte(0) >> 5U == extendedTag && end > 1 ? 2 : 1;
    const std::size_t number = ++state.kinds[kind.name];
    const Scope header = scope.inner(0, numbered("data_block", ++state.dataBlocks), tagClause);
    addHeader(header, kind, begin == 2);
    if (declaredEnd > limit) {
        header.tell(Severity::Error, "cta.data_block_over", 0, "length",
                    "The " + nameOf(scope, kind) + " takes " + std::to_string(declaredEnd) + " bytes and runs " +
                        std::to_string(declaredEnd - limit) + " over the end of the data blocks at byte " +
                        std::to_string(scope.place(limit)) + ", which " + std::string(state.limit) +
                        " sets, so that readers misread it or what follows; correct its length or " +
                        std::string(state.limit) + ".");
    } else {
        checkKind(header, kind, begin, declaredEnd, state);
    }
    const Scope content =
        scope.inner(0, number == 1 ? std::string(kind.name) : numbered(kind.name, number), kind.clause);
    kind.read({.extension = scope, .content = content, .begin = begin, .end = end, .state = state});
    return end;
}

} // namespace

void readDataBlocks(const Scope& extension, std::size_t offset, std::size_t end, CtaState& state) {
    while (offset < end) {
        if (allZero(extension.bytes(offset, end - offset))) {
            extension.addBytes(offset, end, "data_block_padding", "Padding after the data blocks");
            extension.tell(Severity::Note, "cta.data_block_padding", offset, "data_block_padding",
                           "Zeros stand between the data blocks and the timings, which strict readers take for data "
                           "blocks with a reserved tag; let the timing offset point behind the last data block.",
                           tagClause);
            return;
        }
        offset += readDataBlock(extension.from(offset), end - offset, state);
    }
}

void readUnknownBlock(const DataBlock& block) {
    block.content.addBytes(block.begin, block.end, "bytes", "Content of the data block");
}

} // namespace wb::fields
