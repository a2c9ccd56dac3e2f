#include "fields/cta_data_blocks.h"
#include "fields/displayid.h"

namespace wb::fields {

namespace {

constexpr auto curveColors = std::to_array<Choice>({{0, "white"}, {1, "red"}, {2, "green"}, {3, "blue"}});
/// VESA Display Transfer Characteristics Data Block Standard, version 1.
constexpr Row firstPointRow = {.name = "first", .label = "First point of the curve", .parts = {{1, 5, 0}}};
constexpr Row curveColorRow = {.name = "color",
                               .label = "Colour of the curve",
                               .parts = {{1, 7, 6}},
                               .kind = Kind::Choice,
                               .choices = curveColors};

/// Each byte is the step from the point before; the curve ends at 1023.
void describeCurve(const Scope& scope, std::uint64_t, Field& field) {
    const BitRange& steps = field.where.front();
    auto level = static_cast<std::int64_t>(scope.raw(firstPointRow.parts));
    std::vector<Scalar> points;
    field.text.clear();
    for (const std::uint8_t step : scope.reading().image.bytes().subspan(steps.byte, steps.count)) {
        level += step;
        points.emplace_back(level);
        field.text += field.text.empty() ? "" : " ";
        field.text += std::to_string(level);
    }
    field.value = std::move(points);
}

constexpr auto interfaces = std::to_array<Choice>({{0x00, "analog, VGA connector"},
                                                   {0x01, "analog, NAVI-V"},
                                                   {0x02, "analog, NAVI-D"},
                                                   {0x10, "LVDS"},
                                                   {0x20, "RSDS"},
                                                   {0x30, "DVI-D"},
                                                   {0x40, "DVI-I, analog"},
                                                   {0x50, "DVI-I, digital"},
                                                   {0x60, "HDMI-A"},
                                                   {0x70, "HDMI-B"},
                                                   {0x80, "MDDI"},
                                                   {0x90, "DisplayPort"},
                                                   {0xA0, "IEEE 1394"},
                                                   {0xB0, "M1, analog"},
                                                   {0xC0, "M1, digital"}});

void describeInterface(const Scope& scope, std::uint64_t raw, Field& field);
constexpr Row interfaceRow = {.name = "interface", .label = "Interface", .parts = {{2}}, .read = describeInterface};

/// The low digit counts lanes or links, but for analog interfaces.
void describeInterface(const Scope& scope, std::uint64_t raw, Field& field) {
    const bool analog = raw < 0x10;
    const std::string_view words = choiceText(interfaces, analog ? raw : raw & 0xF0U);
    field.text = words.empty() ? "reserved (" + std::to_string(raw) + ")" : std::string(words);
    if (words.empty()) {
        scope.tellReservedValue(interfaceRow);
    } else if (!analog) {
        field.text += ", lanes or links: " + std::to_string(raw & 15U);
    }
    field.value = field.text;
}

constexpr auto protections = std::to_array<Choice>({{0, "none"}, {1, "HDCP"}, {2, "DTCP"}, {3, "DPCP"}});
constexpr auto orientations =
    std::to_array<Choice>({{0, "landscape"}, {1, "portrait"}, {2, "not fixed"}, {3, "not defined"}});
constexpr auto rotations = std::to_array<Choice>(
    {{0, "none"}, {1, "90 degrees clockwise"}, {2, "90 degrees counterclockwise"}, {3, "90 degrees either way"}});
constexpr auto zeroPixels =
    std::to_array<Choice>({{0, "upper left"}, {1, "upper right"}, {2, "lower left"}, {3, "lower right"}});
constexpr auto scanDirections =
    std::to_array<Choice>({{0, "not defined"}, {1, "fast along the long side"}, {2, "fast along the short side"}});
constexpr auto ditherings = std::to_array<Choice>({{0, "none"}, {1, "spatial"}, {2, "temporal"}, {3, "both"}});
constexpr auto conversions =
    std::to_array<Choice>({{0, "none"}, {1, "one buffer"}, {2, "two buffers"}, {3, "between frames"}});
constexpr auto subpixels = std::to_array<Choice>({{0, "not defined"},
                                                  {1, "RGB vertical stripes"},
                                                  {2, "RGB horizontal stripes"},
                                                  {3, "vertical stripes in the order of the primaries"},
                                                  {4, "horizontal stripes in the order of the primaries"},
                                                  {5, "quad, red at the upper left"},
                                                  {6, "quad, red at the lower left"},
                                                  {7, "delta"},
                                                  {8, "mosaic"},
                                                  {9, "other"}});
constexpr auto delaySigns = std::to_array<Choice>({{0, "after the picture"}, {1, "before the picture"}});
constexpr auto responses = std::to_array<Choice>({{0, "black to white"}, {1, "white to black"}});

/// VESA Display Device Data Block Standard, version 1.
constexpr std::array<Row, 36> deviceRows = {{
    interfaceRow,
    {.name = "interface_version", .label = "Version of the interface", .parts = {{3}}, .read = describeVersion},
    choiceAt({4}, "content_protection", "Content protection", protections),
    {.name = "min_clock", .label = "Least clock", .parts = {{5, 7, 2}}, .unit = "MHz"},
    {.name = "max_clock", .label = "Highest clock", .parts = {{5, 1, 0}, {6}}, .unit = "MHz"},
    {.name = "native_width", .label = "Native width", .parts = {{8}, {7}}, .unit = "px"},
    {.name = "native_height", .label = "Native height", .parts = {{10}, {9}}, .unit = "px"},
    {.name = "aspect_ratio", .label = "Aspect ratio", .parts = {{11}}, .scale = 0.01, .bias = 1, .decimals = 2},
    choiceAt({12, 7, 6}, "orientation", "Orientation", orientations),
    choiceAt({12, 5, 4}, "rotation", "Rotation", rotations),
    choiceAt({12, 3, 2}, "zero_pixel", "Place of the first pixel", zeroPixels),
    choiceAt({12, 1, 0}, "scan_direction", "Scan direction", scanDirections),
    choiceAt({13}, "subpixels", "Layout of the subpixels", subpixels),
    {.name = "h_pitch", .label = "Horizontal pitch", .parts = {{14}}, .unit = "mm", .scale = 0.01, .decimals = 2},
    {.name = "v_pitch", .label = "Vertical pitch", .parts = {{15}}, .unit = "mm", .scale = 0.01, .decimals = 2},
    choiceAt({16, 7, 6}, "dithering", "Dithering", ditherings),
    flagAt(16, 5, "direct_drive", "Direct drive"),
    flagAt(16, 4, "no_overdrive", "Overdrive is advised against"),
    flagAt(16, 3, "deinterlacing", "Deinterlaces"),
    reservedAt(16, 2, 0, "reserved_1"),
    flagAt(17, 7, "audio_on_interface", "Audio on the video interface"),
    flagAt(17, 6, "audio_separate", "Separate audio inputs"),
    flagAt(17, 5, "audio_override", "Separate audio takes precedence"),
    reservedAt(17, 4, 0, "reserved_2"),
    choiceAt({18, 7, 7}, "audio_delay_sign", "Audio comes", delaySigns),
    {.name = "audio_delay", .label = "Audio delay", .parts = {{18, 6, 0}}, .unit = "ms", .scale = 2},
    choiceAt({19, 7, 6}, "frame_conversion", "Frame rate conversion", conversions),
    {.name = "frame_rate_range", .label = "Frame rate range, up and down", .parts = {{19, 5, 0}}, .unit = "Hz"},
    {.name = "frame_rate", .label = "Native frame rate", .parts = {{20}}, .unit = "Hz"},
    {.name = "interface_depth", .label = "Bits a colour, interface", .parts = {{21, 7, 4}}, .unit = "bit", .bias = 1},
    {.name = "display_depth", .label = "Bits a colour, display", .parts = {{21, 3, 0}}, .unit = "bit", .bias = 1},
    {.name = "primaries", .label = "Additional primaries", .parts = {{22}}, .kind = Kind::Bytes, .length = 8},
    choiceAt({30, 7, 7}, "response", "Slower change", responses),
    {.name = "response_time", .label = "Response time", .parts = {{30, 6, 0}}, .unit = "ms"},
    {.name = "h_overscan", .label = "Horizontal overscan", .parts = {{31, 7, 4}}, .unit = "%"},
    {.name = "v_overscan", .label = "Vertical overscan", .parts = {{31, 3, 0}}, .unit = "%"},
}};

/// CTA-861-H, 7.5.17.
constexpr std::array<Row, 4> typeVIIHead = {{
    reservedAt(2, 7, 7, "reserved_1"),
    {.name = "descriptor_extra", .label = "Bytes over 20", .parts = {{2, 6, 4}}},
    flagAt(2, 3, "dsc_pass_through", "Compressed pass-through timing"),
    {.name = "revision", .label = "Revision", .parts = {{2, 2, 0}}},
}};

} // namespace

void readTransferCharacteristic(const DataBlock& block) {
    if (block.begin == block.end) {
        return;
    }
    block.content.add(curveColorRow);
    block.content.add(firstPointRow);
    if (block.end > 2) {
        block.content.add({.name = "points",
                           .label = "Points of the curve",
                           .parts = {{2}},
                           .kind = Kind::Bytes,
                           .length = block.end - 2,
                           .read = describeCurve});
    }
}

void readDisplayDevice(const DataBlock& block) {
    block.content.fill(deviceRows, block.end);
}

void readTypeVIIBlock(const DataBlock& block) {
    constexpr std::size_t timing = 3;
    block.content.add(typeVIIHead, block.end);
    if (block.end >= timing + displayIdTimingSize) {
        readDisplayIdTiming(block.content.inner(timing, "timing[1]"), 1);
        block.content.addBytes(timing + displayIdTimingSize, block.end, "rest", "Further bytes");
    } else {
        block.content.addBytes(timing, block.end, "rest", "Further bytes");
    }
}

} // namespace wb::fields
