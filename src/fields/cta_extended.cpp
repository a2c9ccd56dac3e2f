#include "fields/cta_data_blocks.h"

#include <cmath>

namespace wb::fields {

namespace {

constexpr auto quantizations = std::to_array<Choice>({{0, "not told"}, {1, "selectable"}});
constexpr auto preferredScans = std::to_array<Choice>(
    {{0, "as for IT and CE formats"}, {1, "always overscanned"}, {2, "always underscanned"}, {3, "both"}});
constexpr auto scansOfIt = std::to_array<Choice>(
    {{0, "IT formats not supported"}, {1, "always overscanned"}, {2, "always underscanned"}, {3, "both"}});
constexpr auto scansOfCe = std::to_array<Choice>(
    {{0, "CE formats not supported"}, {1, "always overscanned"}, {2, "always underscanned"}, {3, "both"}});

/// CTA-861-H, table 76.
constexpr std::array<Row, 5> capabilityRows = {{
    choiceAt({2, 7, 7}, "ycc_quantization", "YCC quantization range", quantizations),
    choiceAt({2, 6, 6}, "rgb_quantization", "RGB quantization range", quantizations),
    choiceAt({2, 5, 4}, "preferred_scan", "Scan of the preferred format", preferredScans),
    choiceAt({2, 3, 2}, "it_scan", "Scan of IT formats", scansOfIt),
    choiceAt({2, 1, 0}, "ce_scan", "Scan of CE formats", scansOfCe),
}};

/// CTA-861-H, table 74; sRGB and the default RGB are of CTA-861-I.
constexpr std::array<Row, 16> colorimetryRows = {{
    flagAt(2, 7, "bt2020_rgb", "BT.2020 RGB"),
    flagAt(2, 6, "bt2020_ycc", "BT.2020 YCC"),
    flagAt(2, 5, "bt2020_cycc", "BT.2020 cYCC"),
    flagAt(2, 4, "oprgb", "opRGB"),
    flagAt(2, 3, "opycc_601", "opYCC601"),
    flagAt(2, 2, "sycc_601", "sYCC601"),
    flagAt(2, 1, "xvycc_709", "xvYCC709"),
    flagAt(2, 0, "xvycc_601", "xvYCC601"),
    flagAt(3, 7, "dci_p3", "DCI-P3"),
    flagAt(3, 6, "ictcp", "ICtCp"),
    flagAt(3, 5, "srgb", "sRGB"),
    flagAt(3, 4, "default_rgb", "Default RGB"),
    reservedAt(3, 3, 3, "metadata_3"),
    reservedAt(3, 2, 2, "metadata_2"),
    reservedAt(3, 1, 1, "metadata_1"),
    flagAt(3, 0, "metadata_0", "Gamut metadata P0"),
}};
constexpr std::size_t colorSpaces = 12;

/// A luminance is told as 50 * 2^(v / 32) cd/m2, the least one as the highest * (v / 255)^2 / 100.
double maxLuminance(std::uint64_t raw) {
    return 50 * std::exp2(static_cast<double>(raw) / 32);
}

std::string luminanceText(std::uint64_t raw, double luminance) {
    return std::to_string(raw) + " (" + decimalText(luminance, luminance < 1 ? 4 : 1) + " cd/m2)";
}

constexpr auto noLuminance = std::to_array<Choice>({{0, "not told"}});

void describeMaxLuminance(const Scope&, std::uint64_t raw, Field& field) {
    if (raw != 0) {
        field.text = luminanceText(raw, maxLuminance(raw));
    }
}

void describeMinLuminance(const Scope& scope, std::uint64_t raw, Field& field) {
    if (const unsigned max = scope.byte(4); max != 0) {
        const double part = static_cast<double>(raw) / 255;
        field.text = luminanceText(raw, maxLuminance(max) * part * part / 100);
    }
}

/// CTA-861-H, tables 85 to 87.
constexpr std::array<Row, 10> hdrRows = {{
    reservedAt(2, 7, 6, "reserved_1"),
    reservedAt(2, 5, 4, "reserved_2"),
    flagAt(2, 3, "hlg", "Hybrid log-gamma (BT.2100)"),
    flagAt(2, 2, "pq", "Perceptual quantizer (SMPTE ST 2084)"),
    flagAt(2, 1, "gamma_hdr", "Traditional gamma, HDR luminance range"),
    flagAt(2, 0, "gamma_sdr", "Traditional gamma, SDR luminance range"),
    reservedAt(3, 7, 1, "reserved_3"),
    flagAt(3, 0, "metadata_type_1", "Static metadata type 1"),
    {.name = "max_luminance",
     .label = "Highest luminance wanted",
     .parts = {{4}},
     .choices = noLuminance,
     .read = describeMaxLuminance},
    {.name = "max_average_luminance",
     .label = "Highest frame-average luminance wanted",
     .parts = {{5}},
     .choices = noLuminance,
     .read = describeMaxLuminance},
}};
constexpr Row minLuminanceRow = {
    .name = "min_luminance", .label = "Least luminance wanted", .parts = {{6}}, .read = describeMinLuminance};
constexpr std::size_t hdrEnd = 7;

/// CTA-861-H, table 89.
constexpr auto metadataTypes = std::to_array<Choice>(
    {{1, "SMPTE ST 2094-10"}, {2, "ETSI TS 103 433"}, {3, "ITU-T H.265 SEI"}, {4, "SMPTE ST 2094-40"}});
constexpr std::array<Row, 2> dynamicHead = {{
    {.name = "length", .label = "Bytes that follow", .parts = {{0}}},
    {.name = "type", .label = "Dynamic metadata", .parts = {{2}, {1}}, .kind = Kind::Choice, .choices = metadataTypes},
}};

/// Puts the labels of the flags that are set into a list of the summary.
void listFlags(const Scope& scope, std::span<const Row> rows, std::size_t end, std::vector<std::string_view>& names) {
    for (const Row& row : rows) {
        if (row.kind == Kind::Flag && row.parts.begin()->offset < end && scope.raw(row.parts) != 0) {
            names.push_back(row.label);
        }
    }
}

} // namespace

void readVideoCapability(const DataBlock& block) {
    block.content.fill(capabilityRows, block.end);
}

void readColorimetry(const DataBlock& block) {
    block.content.fill(colorimetryRows, block.end);
    const std::span<const Row> rows = colorimetryRows;
    listFlags(block.content, rows.first(colorSpaces), block.end, block.content.summary().colorimetry);
}

void readHdrStatic(const DataBlock& block) {
    const Scope& content = block.content;
    content.add(hdrRows, block.end);
    if (block.end >= hdrEnd) {
        content.add(minLuminanceRow);
    }
    content.addBytes(hdrEnd, block.end, "rest", "Further bytes");
    const std::span<const Row> rows = hdrRows;
    listFlags(content, rows.first(6), block.end, content.summary().hdr);
    if (block.end > 2 && (content.byte(2) & 1U) == 0) {
        content.tell(Severity::Warning, "cta.hdr_without_sdr", 2, "gamma_sdr",
                     "The transfer function of the standard dynamic range is not named, which every display has to "
                     "take; set it.");
    }
}

void readHdrDynamic(const DataBlock& block) {
    std::size_t number = 0;
    for (std::size_t offset = block.begin; offset < block.end;) {
        const Scope entry = block.content.inner(offset, numbered("metadata", ++number));
        const std::size_t size = std::min<std::size_t>(1U + entry.byte(0), block.end - offset);
        const std::size_t head = std::min<std::size_t>(size, 3);
        entry.fill(dynamicHead, head);
        entry.addBytes(head, size, "support", "What of it is supported");
        offset += size;
    }
}

} // namespace wb::fields
