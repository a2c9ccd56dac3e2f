#include "fields/detailed_timing.h"

#include <array>
#include <cmath>

namespace wb::fields {

namespace {

/// Bits 4 and 3 of the flags.
enum class SyncKind { Analog = 0, BipolarAnalog = 1, Composite = 2, Separate = 3 };

constexpr auto syncKinds = std::to_array<Choice>(
    {{0, "analog composite"}, {1, "bipolar analog composite"}, {2, "digital composite"}, {3, "digital separate"}});
constexpr auto polarities = std::to_array<Choice>({{0, "negative"}, {1, "positive"}});
/// Bits 6, 5 and 0 of the flags.
constexpr auto stereoModes = std::to_array<Choice>({{0, "none"},
                                                    {1, "none"},
                                                    {2, "field sequential, right image on sync"},
                                                    {3, "2-way interleaved, right image on even lines"},
                                                    {4, "field sequential, left image on sync"},
                                                    {5, "2-way interleaved, left image on even lines"},
                                                    {6, "4-way interleaved"},
                                                    {7, "side by side interleaved"}});

/// The rows of the table that a DetailedTiming is read from, by their place in it.
enum TimingRow : std::size_t {
    PixelClock,
    HActive,
    HBlank,
    VActive,
    VBlank,
    HFrontPorch,
    HSync,
    VFrontPorch,
    VSync,
    Width,
    Height,
    HBorder,
    VBorder,
    Interlaced,
};

/// VESA E-EDID Standard, Release A, table 3.21 (EDID 1.3: table 3.16).
constexpr std::array<Row, 15> timingRows = {{
    {.name = "pixel_clock", .label = "Pixel clock", .parts = {{1}, {0}}, .unit = "MHz", .scale = 0.01, .decimals = 2},
    {.name = "h_active", .label = "Horizontal active", .parts = {{4, 7, 4}, {2}}, .unit = "px"},
    {.name = "h_blank", .label = "Horizontal blanking", .parts = {{4, 3, 0}, {3}}, .unit = "px"},
    {.name = "v_active", .label = "Vertical active", .parts = {{7, 7, 4}, {5}}, .unit = "px"},
    {.name = "v_blank", .label = "Vertical blanking", .parts = {{7, 3, 0}, {6}}, .unit = "px"},
    {.name = "h_front_porch", .label = "Horizontal front porch", .parts = {{11, 7, 6}, {8}}, .unit = "px"},
    {.name = "h_sync_width", .label = "Horizontal sync width", .parts = {{11, 5, 4}, {9}}, .unit = "px"},
    {.name = "v_front_porch", .label = "Vertical front porch", .parts = {{11, 3, 2}, {10, 7, 4}}, .unit = "px"},
    {.name = "v_sync_width", .label = "Vertical sync width", .parts = {{11, 1, 0}, {10, 3, 0}}, .unit = "px"},
    {.name = "h_image_size", .label = "Horizontal image size", .parts = {{14, 7, 4}, {12}}, .unit = "mm"},
    {.name = "v_image_size", .label = "Vertical image size", .parts = {{14, 3, 0}, {13}}, .unit = "mm"},
    {.name = "h_border", .label = "Horizontal border, each side", .parts = {{15}}, .unit = "px"},
    {.name = "v_border", .label = "Vertical border, each side", .parts = {{16}}, .unit = "px"},
    flagAt(17, 7, "interlaced", "Interlaced"),
    {.name = "stereo",
     .label = "Stereo viewing",
     .parts = {{17, 6, 5}, {17, 0, 0}},
     .kind = Kind::Choice,
     .choices = stereoModes},
}};

constexpr Row syncKindRow = {
    .name = "sync_type", .label = "Sync type", .parts = {{17, 4, 3}}, .kind = Kind::Choice, .choices = syncKinds};
constexpr std::array<Row, 2> analogRows = {{
    flagAt(17, 2, "sync_serrate", "Serrations"),
    flagAt(17, 1, "sync_on_all", "Sync on red, green and blue"),
}};
constexpr std::array<Row, 2> compositeRows = {{
    flagAt(17, 2, "sync_serrate", "Serrations"),
    {.name = "h_sync_polarity",
     .label = "Horizontal sync polarity",
     .parts = {{17, 1, 1}},
     .kind = Kind::Choice,
     .choices = polarities},
}};
constexpr std::array<Row, 2> separateRows = {{
    {.name = "v_sync_polarity",
     .label = "Vertical sync polarity",
     .parts = {{17, 2, 2}},
     .kind = Kind::Choice,
     .choices = polarities},
    {.name = "h_sync_polarity",
     .label = "Horizontal sync polarity",
     .parts = {{17, 1, 1}},
     .kind = Kind::Choice,
     .choices = polarities},
}};

std::span<const Row> syncRowsOf(SyncKind kind) {
    switch (kind) {
        case SyncKind::Composite:
            return compositeRows;
        case SyncKind::Separate:
            return separateRows;
        case SyncKind::Analog:
        case SyncKind::BipolarAnalog:
            break;
    }
    return analogRows;
}

/// Lines of a whole picture: an interlaced one has one more than its two fields together tell, half of it in each.
int linesOf(const DetailedTiming& timing) {
    const int lines = timing.vActive + timing.vBlank;
    return timing.interlaced ? 2 * lines + 1 : lines;
}

Mode modeOf(const DetailedTiming& timing, bool native) {
    Mode mode{.source = ModeSource::Detailed, .native = native};
    mode.width = timing.hActive;
    mode.height = timing.vActive * (timing.interlaced ? 2 : 1);
    mode.interlaced = timing.interlaced;
    mode.pixelClockKilohertz = timing.clockKilohertz;
    mode.horizontalTotal = timing.hActive + timing.hBlank;
    mode.verticalTotal = linesOf(timing);
    if (const std::optional<double> rate = verticalHertz(timing)) {
        mode.refreshMilliHertz = std::llround(*rate * 1000);
    }
    return mode;
}

} // namespace

DetailedTiming detailedTimingOf(const Scope& scope) {
    const auto number = [&](TimingRow row) { return static_cast<int>(scope.raw(timingRows[row].parts)); };
    return {.clockKilohertz = std::int64_t{number(PixelClock)} * 10,
            .hActive = number(HActive),
            .hBlank = number(HBlank),
            .hFrontPorch = number(HFrontPorch),
            .hSync = number(HSync),
            .vActive = number(VActive),
            .vBlank = number(VBlank),
            .vFrontPorch = number(VFrontPorch),
            .vSync = number(VSync),
            .widthMillimetres = number(Width),
            .heightMillimetres = number(Height),
            .interlaced = number(Interlaced) != 0};
}

std::optional<double> horizontalKilohertz(const DetailedTiming& timing) {
    const int pixels = timing.hActive + timing.hBlank;
    return pixels > 0 ? std::optional(static_cast<double>(timing.clockKilohertz) / pixels) : std::nullopt;
}

std::optional<double> verticalHertz(const DetailedTiming& timing) {
    const std::optional<double> lineRate = horizontalKilohertz(timing);
    const int lines = linesOf(timing);
    return lineRate && lines > 0 ? std::optional(*lineRate * 1000 * (timing.interlaced ? 2 : 1) / lines) : std::nullopt;
}

void readDetailedTiming(const Scope& scope, bool native) {
    scope.add(timingRows);
    const DetailedTiming timing = detailedTimingOf(scope);
    scope.add(syncKindRow);
    scope.add(syncRowsOf(static_cast<SyncKind>(scope.raw(syncKindRow.parts))));
    checkDetailedTiming(scope, timing);
    if (timing.hActive > 0 && timing.vActive > 0) {
        scope.summary().modes.push_back(modeOf(timing, native));
    }
}

} // namespace wb::fields
