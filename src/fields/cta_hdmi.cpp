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
constexpr std::array<Row, 18> headRows = {{
    ouiRow(1),
    addressRow,
    flagAt(6, 7, "supports_ai", "Takes ACP, ISRC1 or ISRC2 packets"),
    flagAt(6, 6, "deep_color_48", "Deep colour, 48 bit"),
    flagAt(6, 5, "deep_color_36", "Deep colour, 36 bit"),
    flagAt(6, 4, "deep_color_30", "Deep colour, 30 bit"),
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
constexpr Parts deepColors = {{6, 6, 4}};

/// In steps of 2 ms, of which the first stands for 0 ms.
constexpr auto latencyWords = std::to_array<Choice>(
    {{0, "not told"}, {252, "reserved"}, {253, "reserved"}, {254, "reserved"}, {255, "not supported"}});
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
                                                   {2, "structures for those video descriptors that a mask names"},
                                                   {3, "reserved"}});
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

enum class Multi { None = 0, All = 1, Masked = 2 };

void readMask(const Scope& scope) {
    for (unsigned bit = 0; bit < 16; ++bit) {
        scope.add(flagAt(bit < 8 ? 1 : 0, static_cast<std::uint8_t>(bit % 8), numbered("three_d_mask", bit + 1),
                         "Video descriptor has those structures"));
    }
}

/// The bytes about 3D from `offset` up to `end`.
void read3d(const Scope& content, std::size_t offset, std::size_t end, Multi multi) {
    const auto fits = [&] { return end - offset >= 2; };
    if (multi != Multi::None && fits()) {
        content.from(offset).add(allStructureRows);
        offset += 2;
    }
    if (multi == Multi::Masked && fits()) {
        readMask(content.from(offset));
        offset += 2;
    }
    for (std::size_t number = 1; offset < end; ++number) {
        const Scope entry = content.inner(offset, numbered("three_d", number));
        const bool detailed = entry.raw(structureRow.parts) >= firstWithDetail && fits();
        entry.add(structureRows);
        if (detailed) {
            entry.add(detailRows);
        }
        offset += detailed ? 2 : 1;
    }
}

void readVics(const Scope& content, std::size_t offset, std::size_t end) {
    for (std::size_t number = 1; offset < end; ++number, ++offset) {
        content.add(
            {.name = numbered("vic", number), .label = "HDMI video code", .parts = {{offset}}, .read = describeVic});
        if (const VideoFormat* format = hdmiFormat(content.byte(offset))) {
            content.summary().modes.push_back(modeOf(*format, false));
        }
    }
}

void tellOfCut(const Scope& content) {
    content.tell(Severity::Error, "cta.hdmi_short", 0, "oui",
                 "The HDMI data block ends before all that its flags and lengths announce, so that readers refuse or "
                 "misread it; complete it or clear the flags.");
}

/// Video formats and 3D; tells the offset after them.
std::size_t readVideo(const Scope& content, std::size_t offset, std::size_t end) {
    if (end - offset < 2) {
        tellOfCut(content);
        return offset;
    }
    const Scope head = content.from(offset);
    head.add(videoRows);
    const std::size_t vics = offset + 2;
    const std::size_t start3d = vics + head.raw(vicLengthRow.parts);
    const std::size_t end3d = start3d + head.raw(lengthRow3d.parts);
    if (end3d > end) {
        tellOfCut(content);
    }
    readVics(content, vics, std::min(start3d, end));
    if (start3d < end) {
        read3d(content, start3d, std::min(end3d, end), static_cast<Multi>(head.raw(multiRow.parts)));
    }
    return std::min(end3d, end);
}

/// What follows the head, as far as its flags announce it; tells the offset after that.
std::size_t readTail(const Scope& content, std::size_t end) {
    std::size_t offset = headEnd;
    const auto readLatencies = [&](const Row& flag, std::span<const Row> rows) {
        if (content.raw(flag.parts) != 0) {
            content.from(offset).add(rows, end - offset);
            if (end - offset < rows.size()) {
                tellOfCut(content);
            }
            offset = std::min(offset + rows.size(), end);
        }
    };
    readLatencies(latencyFlag, latencyRows);
    readLatencies(interlacedLatencyFlag, interlacedLatencyRows);
    return content.raw(videoFlag.parts) != 0 ? readVideo(content, offset, end) : offset;
}

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
    const bool deepColor = end > 6 && content.raw(deepColors) != 0;
    if (deepColor && (end <= 7 || content.byte(7) == 0)) {
        content.tell(Severity::Warning, "cta.deep_color_without_clock", 6, "deep_color_36",
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
    if (block.end > headEnd) {
        content.addBytes(readTail(content, block.end), block.end, "padding", "Further bytes");
    }
}

} // namespace wb::fields
