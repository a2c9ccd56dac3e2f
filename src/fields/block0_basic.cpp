#include <array>

#include "fields/block0_parts.h"

namespace wb::fields {

namespace {

// The input (byte 20): VESA E-EDID Standard, Release A, section 3.6.1.

constexpr auto inputKinds = std::to_array<Choice>({{0, "analog"}, {1, "digital"}});
constexpr auto signalLevels = std::to_array<Choice>({{0, "0.700 V and -0.300 V (1.000 V peak to peak)"},
                                                     {1, "0.714 V and -0.286 V (1.000 V peak to peak)"},
                                                     {2, "1.000 V and -0.400 V (1.400 V peak to peak)"},
                                                     {3, "0.700 V and 0.000 V (0.700 V peak to peak)"}});
constexpr auto bitDepths = std::to_array<Choice>({{0, "not told"}, reservedChoice(7)});
constexpr auto interfaces =
    std::to_array<Choice>({{0, "not told"}, {1, "DVI"}, {2, "HDMI-a"}, {3, "HDMI-b"}, {4, "MDDI"}, {5, "DisplayPort"}});

constexpr Row inputRow = {
    .name = "input", .label = "Video input", .parts = {{0, 7, 7}}, .kind = Kind::Choice, .choices = inputKinds};
constexpr std::array<Row, 6> analogRows = {{
    {.name = "signal_level",
     .label = "Levels of white and sync",
     .parts = {{0, 6, 5}},
     .kind = Kind::Choice,
     .choices = signalLevels},
    flagAt(0, 4, "setup", "Blank-to-black setup expected"),
    flagAt(0, 3, "separate_sync", "Separate syncs supported"),
    flagAt(0, 2, "composite_sync", "Composite sync supported"),
    flagAt(0, 1, "sync_on_green", "Sync on green supported"),
    flagAt(0, 0, "serrations", "Serrated vertical sync supported"),
}};
constexpr Row bitDepthRow = {.name = "bit_depth",
                             .label = "Bits per primary colour",
                             .parts = {{0, 6, 4}},
                             .unit = "bit",
                             .scale = 2,
                             .bias = 4,
                             .choices = bitDepths};
constexpr Row interfaceRow = {.name = "interface",
                              .label = "Digital interface",
                              .parts = {{0, 3, 0}},
                              .kind = Kind::Choice,
                              .choices = interfaces};
/// Before 1.4.
constexpr std::array<Row, 2> dfpRows = {{
    {.name = "reserved",
     .label = "Reserved",
     .parts = {{0, 6, 1}},
     .kind = Kind::Reserved,
     .clause = "E-EDID 1.3, 3.6.1"},
    {.name = "dfp",
     .label = "Signals compatible with DFP 1.x",
     .parts = {{0, 0, 0}},
     .kind = Kind::Flag,
     .clause = "E-EDID 1.3, 3.6.1"},
}};

void readInput(const Scope& base, int revision) {
    const Scope input = base.inner(cells::videoInput, "basic", "E-EDID 1.4, 3.6.1");
    Summary& summary = base.summary();
    summary.digital = isDigital(base.reading().image);
    input.add(inputRow);
    if (!summary.digital) {
        input.add(analogRows);
        return;
    }
    if (revision < 4) {
        input.add(dfpRows);
        if (input.raw(dfpRows[1].parts) != 0) {
            summary.videoInterface = "DFP 1.x";
        }
        return;
    }
    const Field& depth = input.add(bitDepthRow);
    if (const auto* bits = std::get_if<std::int64_t>(&depth.value)) {
        summary.bitsPerColor = static_cast<int>(*bits);
    }
    input.add(interfaceRow);
    const std::uint64_t kind = input.raw(interfaceRow.parts);
    if (const std::string_view name = choiceText(interfaces, kind); kind != 0 && !name.empty()) {
        summary.videoInterface = name;
    }
}

// The size (bytes 21 and 22): section 3.6.2.

constexpr auto notTold = std::to_array<Choice>({{0, "not told"}});
constexpr Row widthRow = {
    .name = "width", .label = "Width of the screen", .parts = {{0}}, .unit = "cm", .choices = notTold};
constexpr Row heightRow = {
    .name = "height", .label = "Height of the screen", .parts = {{1}}, .unit = "cm", .choices = notTold};
constexpr Row landscapeRow = {
    .name = "aspect_ratio", .label = "Width by height", .parts = {{0}}, .scale = 0.01, .bias = 0.99, .decimals = 2};
constexpr Row portraitRow = {
    .name = "portrait_ratio", .label = "Height by width", .parts = {{1}}, .scale = 0.01, .bias = 0.99, .decimals = 2};

/// 1.4 reads one of the bytes as the aspect ratio where the other is 0.
void readSize(const Scope& base, int revision) {
    const Scope size = base.inner(cells::maxHorizontalSize, "basic", "E-EDID 1.4, 3.6.2");
    const bool onlyWidth = size.byte(0) != 0 && size.byte(1) == 0;
    const bool onlyHeight = size.byte(0) == 0 && size.byte(1) != 0;
    size.add(onlyWidth && revision >= 4 ? landscapeRow : widthRow);
    size.add(onlyHeight && revision >= 4 ? portraitRow : heightRow);
    if ((onlyWidth || onlyHeight) && revision < 4) {
        size.tell(Severity::Warning, "basic.size_half", 0, "width",
                  "Of width and height of the screen one is 0 and the other not, which before 1.4 tells nothing, so "
                  "that software guesses the size; enter both, or 0 for both.",
                  "E-EDID 1.3, 3.6.2");
    }
}

// Gamma (byte 23): section 3.6.3.

constexpr auto gammaElsewhere = std::to_array<Choice>({{255, "told in an extension block"}});
constexpr Row gammaRow = {.name = "gamma",
                          .label = "Gamma",
                          .parts = {{0}},
                          .scale = 0.01,
                          .bias = 1,
                          .decimals = 2,
                          .choices = gammaElsewhere};
/// Before 1.4, where all values are numbers.
constexpr Row plainGammaRow = {.name = "gamma",
                               .label = "Gamma",
                               .parts = {{0}},
                               .scale = 0.01,
                               .bias = 1,
                               .decimals = 2,
                               .clause = "E-EDID 1.3, 3.6.3"};

void readGamma(const Scope& base, int revision) {
    const Field& field =
        base.inner(cells::gamma, "basic", "E-EDID 1.4, 3.6.3").add(revision >= 4 ? gammaRow : plainGammaRow);
    if (const auto* gamma = std::get_if<double>(&field.value)) {
        base.summary().gamma = *gamma;
    }
}

// Features (byte 24): section 3.6.4.

constexpr auto displayTypes =
    std::to_array<Choice>({{0, "monochrome or grayscale"}, {1, "RGB colour"}, {2, "non-RGB colour"}, {3, "not told"}});
constexpr auto colorEncodings = std::to_array<Choice>({{0, "RGB 4:4:4"},
                                                       {1, "RGB 4:4:4, YCbCr 4:4:4"},
                                                       {2, "RGB 4:4:4, YCbCr 4:2:2"},
                                                       {3, "RGB 4:4:4, YCbCr 4:4:4, YCbCr 4:2:2"}});
constexpr std::array<Row, 3> powerRows = {{
    flagAt(0, 7, "standby", "Standby supported"),
    flagAt(0, 6, "suspend", "Suspend supported"),
    flagAt(0, 5, "active_off", "Active off supported"),
}};
constexpr Row displayTypeRow = {.name = "display_type",
                                .label = "Display type",
                                .parts = {{0, 4, 3}},
                                .kind = Kind::Choice,
                                .choices = displayTypes};
constexpr Row colorEncodingsRow = {.name = "color_encodings",
                                   .label = "Colour encodings supported",
                                   .parts = {{0, 4, 3}},
                                   .kind = Kind::Choice,
                                   .choices = colorEncodings};
constexpr Row standardColorRow = flagAt(0, 2, "srgb_default", "sRGB is the default colour space");
constexpr std::array<Row, 2> timingRows = {{
    flagAt(0, 1, "preferred_timing", "Preferred timing has the native format and rate"),
    flagAt(0, 0, "continuous_frequency", "Continuous frequencies"),
}};
/// Before 1.4.
constexpr std::array<Row, 2> gtfRows = {{
    {.name = "preferred_timing",
     .label = "First detailed timing is the preferred one",
     .parts = {{0, 1, 1}},
     .kind = Kind::Flag,
     .clause = "E-EDID 1.3, 3.6.4"},
    {.name = "gtf",
     .label = "Default GTF supported",
     .parts = {{0, 0, 0}},
     .kind = Kind::Flag,
     .clause = "E-EDID 1.3, 3.6.4"},
}};

void readFeatures(const Scope& base, int revision) {
    const Scope features = base.inner(cells::features, "basic", "E-EDID 1.4, 3.6.4");
    features.add(powerRows);
    features.add(revision >= 4 && isDigital(base.reading().image) ? colorEncodingsRow : displayTypeRow);
    features.add(standardColorRow);
    features.add(revision >= 4 ? timingRows : gtfRows);
    if (revision == 3 && !hasFeature(base.reading().image, Feature::PreferredTiming)) {
        features.tell(Severity::Warning, "basic.no_preferred_timing", 0, "preferred_timing",
                      "The bit that declares the first detailed timing the preferred one is not set, which 1.3 "
                      "demands, so that software may choose another mode; set bit 1 of byte 24.",
                      "E-EDID 1.3, 3.6.4");
    }
}

} // namespace

void readBasicDisplay(const Scope& base, int revision) {
    readInput(base, revision);
    readSize(base, revision);
    readGamma(base, revision);
    readFeatures(base, revision);
}

} // namespace wb::fields
