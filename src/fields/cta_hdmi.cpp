#include <algorithm>

#include "fields/cta_data_blocks.h"

namespace wb::fields {

namespace {

/// Two bytes of four numbers, from the display on: "1.0.0.0".
std::string addressText(std::uint64_t raw) {
    std::string text;
    for (int shift = 12; shift >= 0; shift -= 4) {
        text += std::to_string(raw >> static_cast<unsigned>(shift) & 15U);
        text += shift == 0 ? "" : ".";
    }
    return text;
}

void describeAddress(const Scope&, std::uint64_t raw, Field& field) {
    field.text = addressText(raw);
    field.value = field.text;
}

/// HDMI 1.4b, table 8-16.
constexpr Row addressRow = {
    .name = "physical_address", .label = "Physical address", .parts = {{4}, {5}}, .read = describeAddress};
constexpr Row clockRow = {
    .name = "max_tmds_clock", .label = "Highest TMDS clock", .parts = {{7}}, .unit = "MHz", .scale = 5};
constexpr Row latencyFlag = flagAt(8, 7, "latency_present", "Latencies are told");
constexpr Row interlacedLatencyFlag =
    flagAt(8, 6, "interlaced_latency_present", "Latencies of interlaced formats are told");
constexpr Row videoFlag = flagAt(8, 5, "video_present", "HDMI video formats are told");
/// The deepest first.
constexpr std::array<Row, 3> deepColorRows = {{flagAt(6, 6, "deep_color_48", "Deep colour, 48 bit"),
                                               flagAt(6, 5, "deep_color_36", "Deep colour, 36 bit"),
                                               flagAt(6, 4, "deep_color_30", "Deep colour, 30 bit")}};
constexpr std::array<Row, 18> headRows = {{
    ouiRow(1),
    addressRow,
    flagAt(6, 7, "supports_ai", "Takes ACP, ISRC1 or ISRC2 packets"),
    deepColorRows[0],
    deepColorRows[1],
    deepColorRows[2],
    flagAt(6, 3, "deep_color_444", "Deep colour also in YCbCr 4:4:4"),
    reservedAt(6, 2, 1, "reserved_1"),
    flagAt(6, 0, "dvi_dual", "DVI dual link"),
    clockRow,
    latencyFlag,
    interlacedLatencyFlag,
    videoFlag,
    reservedAt(8, 4, 4, "reserved_2"),
    flagAt(8, 3, "content_game", "Processes content type game"),
    flagAt(8, 2, "content_cinema", "Processes content type cinema"),
    flagAt(8, 1, "content_photo", "Processes content type photo"),
    flagAt(8, 0, "content_graphics", "Processes content type graphics"),
}};
constexpr std::size_t headEnd = 9;

/// In steps of 2 ms, of which the first stands for 0 ms.
constexpr auto latencyWords = std::to_array<Choice>(
    {{0, "not told"}, reservedChoice(252), reservedChoice(253), reservedChoice(254), {255, "not supported"}});
constexpr Row latencyRow(std::size_t offset, std::string_view name, std::string_view label) {
    return {.name = name,
            .label = label,
            .parts = {{offset}},
            .unit = "ms",
            .scale = 2,
            .bias = -2,
            .choices = latencyWords};
}
constexpr std::array<Row, 2> latencyRows = {
    {latencyRow(0, "video_latency", "Video latency"), latencyRow(1, "audio_latency", "Audio latency")}};
constexpr std::array<Row, 2> interlacedLatencyRows = {
    {latencyRow(0, "interlaced_video_latency", "Video latency of interlaced formats"),
     latencyRow(1, "interlaced_audio_latency", "Audio latency of interlaced formats")}};

/// HDMI 1.4b, table 8-17.
constexpr auto multiWords = std::to_array<Choice>({{0, "none"},
                                                   {1, "structures for the first 16 video descriptors"},
                                                   {2, "structures for those video descriptors that a mask names"}});
constexpr auto imageSizes = std::to_array<Choice>({{0, "not told"},
                                                   {1, "of the right aspect ratio in block 0"},
                                                   {2, "right in block 0, in cm"},
                                                   {3, "right in block 0, in 5 cm"}});
constexpr Row vicLengthRow = {.name = "vic_length", .label = "HDMI video codes", .parts = {{1, 7, 5}}};
constexpr Row lengthRow3d = {.name = "three_d_length", .label = "Bytes about 3D", .parts = {{1, 4, 0}}};
constexpr Row multiRow = {.name = "three_d_multi",
                          .label = "3D structures common to formats",
                          .parts = {{0, 6, 5}},
                          .kind = Kind::Choice,
                          .choices = multiWords};
constexpr std::array<Row, 6> videoRows = {{
    flagAt(0, 7, "three_d_present", "Takes the mandatory 3D formats"),
    multiRow,
    {.name = "image_size", .label = "Image size", .parts = {{0, 4, 3}}, .kind = Kind::Choice, .choices = imageSizes},
    reservedAt(0, 2, 0, "reserved_3"),
    vicLengthRow,
    lengthRow3d,
}};

/// HDMI 1.4b, table 8-14: the same formats as these codes of CTA-861.
constexpr auto sameCodes = std::to_array<std::uint8_t>({95, 94, 93, 98});

const VideoFormat* hdmiFormat(std::uint64_t code) {
    return code >= 1 && code <= sameCodes.size() ? videoFormatOf(sameCodes[code - 1]) : nullptr;
}

void describeVic(const Scope&, std::uint64_t raw, Field& field) {
    const VideoFormat* format = hdmiFormat(raw);
    field.text += format == nullptr ? " (reserved)" : " (" + formatText(*format) + ")";
}

/// HDMI 1.4b, tables 8-18 and H-2.
constexpr auto structures = std::to_array<Choice>({{0, "frame packing"},
                                                   {1, "field alternative"},
                                                   {2, "line alternative"},
                                                   {3, "side by side, full"},
                                                   {4, "left and depth"},
                                                   {5, "left, depth, graphics and graphics depth"},
                                                   {6, "top and bottom"},
                                                   {8, "side by side, half"}});
constexpr std::array<Row, 10> allStructureRows = {{
    reservedAt(0, 7, 1, "reserved_4"),
    flagAt(0, 0, "three_d_all.side_by_side_half", "Side by side, half"),
    reservedAt(1, 7, 7, "reserved_5"),
    flagAt(1, 6, "three_d_all.top_and_bottom", "Top and bottom"),
    flagAt(1, 5, "three_d_all.left_depth_graphics", "Left, depth, graphics and graphics depth"),
    flagAt(1, 4, "three_d_all.left_depth", "Left and depth"),
    flagAt(1, 3, "three_d_all.side_by_side_full", "Side by side, full"),
    flagAt(1, 2, "three_d_all.line_alternative", "Line alternative"),
    flagAt(1, 1, "three_d_all.field_alternative", "Field alternative"),
    flagAt(1, 0, "three_d_all.frame_packing", "Frame packing"),
}};

constexpr auto details = std::to_array<Choice>({{0, "all horizontal and quincunx sub-samplings"},
                                                {1, "horizontal sub-sampling"},
                                                {6, "all quincunx sub-samplings"},
                                                {7, "quincunx, odd left, odd right"},
                                                {8, "quincunx, odd left, even right"},
                                                {9, "quincunx, even left, odd right"},
                                                {10, "quincunx, even left, even right"}});
constexpr Row structureRow = {
    .name = "structure", .label = "3D structure", .parts = {{0, 3, 0}}, .kind = Kind::Choice, .choices = structures};
constexpr std::array<Row, 2> structureRows = {
    {{.name = "video", .label = "Video descriptor", .parts = {{0, 7, 4}}, .bias = 1}, structureRow}};
constexpr std::array<Row, 2> detailRows = {{
    {.name = "detail", .label = "3D detail", .parts = {{1, 7, 4}}, .kind = Kind::Choice, .choices = details},
    reservedAt(1, 3, 0, "reserved"),
}};
constexpr std::uint64_t firstWithDetail = 8;

/// The reserved value announces neither structures nor a mask.
enum class Multi { None = 0, All = 1, Masked = 2, Reserved = 3 };

void readMask(const Scope& scope) {
    for (unsigned bit = 0; bit < 16; ++bit) {
        scope.add(flagAt(bit < 8 ? 1 : 0, static_cast<std::uint8_t>(bit % 8), numbered("three_d_mask", bit + 1),
                         "Video descriptor has those structures"));
    }
}

/// Reads what follows the head of a data block, as far as flags and lengths announce it and it is there.
class TailReader {
public:
    TailReader(const Scope& content, std::size_t end) : content_(content), end_(end) {}

    void read() {
        readLatencies(latencyFlag, latencyRows);
        readLatencies(interlacedLatencyFlag, interlacedLatencyRows);
        if (content_.raw(videoFlag.parts) != 0 && has(videoHeadSize, end_)) {
            readVideo();
        }
        content_.addBytes(offset_, end_, "padding", "Further bytes");
        if (isCut_) {
            content_.tell(Severity::Error, "cta.hdmi_short", 0, "oui",
                          "The HDMI data block ends before all that its flags and lengths announce, so that readers "
                          "refuse or misread it; complete it or clear the flags.");
        }
    }

private:
    /// Whether that many bytes, which are announced, stand before `end`.
    bool has(std::size_t count, std::size_t end) {
        const bool isThere = offset_ + count <= end;
        isCut_ = isCut_ || !isThere;
        return isThere;
    }

    /// Where that many bytes end, which are announced and may be cut.
    std::size_t endOf(std::size_t count) { return has(count, end_) ? offset_ + count : end_; }

    void readLatencies(const Row& flag, std::span<const Row> rows) {
        if (content_.raw(flag.parts) != 0) {
            content_.from(offset_).add(rows, end_ - offset_);
            offset_ = endOf(rows.size());
        }
    }

    /// Video formats and 3D.
    void readVideo() {
        const Scope head = content_.from(offset_);
        head.add(videoRows);
        offset_ += videoHeadSize;
        readVics(endOf(head.raw(vicLengthRow.parts)));
        read3d(endOf(head.raw(lengthRow3d.parts)), static_cast<Multi>(head.raw(multiRow.parts)));
    }

    void readVics(std::size_t end) {
        for (std::size_t number = 1; offset_ < end; ++number, ++offset_) {
            content_.add({.name = numbered("vic", number),
                          .label = "HDMI video code",
                          .parts = {{offset_}},
                          .read = describeVic});
            if (const VideoFormat* format = hdmiFormat(content_.byte(offset_))) {
                content_.summary().modes.push_back(modeOf(*format, false));
            }
        }
    }

    void read3d(std::size_t end, Multi multi) {
        const bool isMasked = multi == Multi::Masked;
        const bool isWhole = (!isMasked && multi != Multi::All) || readCommon(end, isMasked);
        if (isWhole) {
            readStructures(end);
        }
        content_.addBytes(offset_, end, "three_d_rest", "Further bytes about 3D");
        offset_ = end;
    }

    /// The structures that formats have in common, and which formats these are; tells whether all of it is there.
    bool readCommon(std::size_t end, bool isMasked) {
        if (!has(pairSize, end)) {
            return false;
        }
        content_.from(offset_).add(allStructureRows);
        offset_ += pairSize;
        if (isMasked && has(pairSize, end)) {
            readMask(content_.from(offset_));
            offset_ += pairSize;
            return true;
        }
        return !isMasked;
    }

    void readStructures(std::size_t end) {
        for (std::size_t number = 1; offset_ < end; ++number) {
            const Scope entry = content_.inner(offset_, numbered("three_d", number));
            const bool isDetailed = entry.raw(structureRow.parts) >= firstWithDetail && has(pairSize, end);
            entry.add(structureRows);
            if (isDetailed) {
                entry.add(detailRows);
            }
            offset_ += isDetailed ? pairSize : 1;
        }
    }

    static constexpr std::size_t videoHeadSize = 2;
    /// Bytes of the common structures, of the mask, and of a structure with its detail.
    static constexpr std::size_t pairSize = 2;

    const Scope& content_;
    std::size_t end_;
    std::size_t offset_ = headEnd;
    bool isCut_ = false;
};

void checkAddress(const Scope& content) {
    const auto raw = static_cast<unsigned>(content.raw(addressRow.parts));
    bool ended = false;
    bool gap = false;
    for (int shift = 12; shift >= 0; shift -= 4) {
        const bool zero = (raw >> static_cast<unsigned>(shift) & 15U) == 0;
        gap = gap || (ended && !zero);
        ended = ended || zero;
    }
    if (raw == 0) {
        content.tell(Severity::Warning, "cta.physical_address_zero", 4, addressRow.name,
                     "The physical address 0.0.0.0 is that of the display itself and no input of it, so that devices "
                     "behind the input cannot tell where they are; give each input its own, such as 1.0.0.0.");
    } else if (gap) {
        content.tell(Severity::Warning, "cta.physical_address_gap", 4, addressRow.name,
                     "The physical address " + addressText(raw) +
                         " goes on after a 0, so that it is no way through the tree of devices; use zeros at the end "
                         "only.");
    }
}

void checkHead(const Scope& content, std::size_t end) {
    checkAddress(content);
    const auto* deepest = std::find_if(deepColorRows.begin(), deepColorRows.end(),
                                       [&](const Row& row) { return end > 6 && content.raw(row.parts) != 0; });
    if (deepest != deepColorRows.end() && (end <= 7 || content.byte(7) == 0)) {
        content.tell(Severity::Warning, "cta.deep_color_without_clock", 6, deepest->name,
                     "Deep colour is told but no highest TMDS clock, so that sources keep to 165 MHz and do not use "
                     "it; tell the clock.");
    }
    if (end > 8 && content.raw(latencyFlag.parts) == 0 && content.raw(interlacedLatencyFlag.parts) != 0) {
        content.tell(Severity::Warning, "cta.latency_flags", 8, interlacedLatencyFlag.name,
                     "Latencies of interlaced formats are told without those of the others, which the standard rules "
                     "out and readers misread; tell both or neither.");
    }
}

void summarize(const Scope& content, std::size_t end) {
    std::optional<HdmiSummary>& hdmi = content.summary().hdmi;
    if (!hdmi) {
        hdmi.emplace();
    }
    hdmi->physicalAddress = addressText(content.raw(addressRow.parts));
    if (end > 7 && content.byte(7) != 0 && !hdmi->forum) {
        hdmi->maxTmdsClockMegahertz = content.byte(7) * 5;
    }
}

} // namespace

void readHdmi(const DataBlock& block) {
    const Scope& content = block.content;
    content.fill(headRows, std::min(block.end, headEnd));
    if (block.end <= addressRow.parts.begin()->offset + 1) {
        return;
    }
    checkHead(content, block.end);
    summarize(content, block.end);
    if (block.end >= headEnd) {
        TailReader(content, block.end).read();
    }
}

} // namespace wb::fields
