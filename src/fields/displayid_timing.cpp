#include <array>
#include <cmath>

#include "fields/displayid.h"

namespace wb::fields {

namespace {

constexpr auto stereos = std::to_array<Choice>({{0, "none"}, {1, "stereo"}, {2, "as the user wants"}});
constexpr auto aspects = std::to_array<Choice>({{0, "1:1"},
                                                {1, "5:4"},
                                                {2, "4:3"},
                                                {3, "15:9"},
                                                {4, "16:9"},
                                                {5, "16:10"},
                                                {6, "64:27"},
                                                {7, "256:135"},
                                                {8, "not defined"}});
constexpr auto polarities = std::to_array<Choice>({{0, "negative"}, {1, "positive"}});

constexpr Row countRow(std::size_t offset, std::string_view name, std::string_view label) {
    return {.name = name, .label = label, .parts = {{offset + 1}, {offset}}, .unit = "px", .bias = 1};
}
/// Its highest bit tells the polarity of the pulse.
constexpr Row porchRow(std::size_t offset, std::string_view name, std::string_view label) {
    return {.name = name, .label = label, .parts = {{offset + 1, 6, 0}, {offset}}, .unit = "px", .bias = 1};
}
constexpr Row polarityRow(std::size_t offset, std::string_view name, std::string_view label) {
    return {.name = name, .label = label, .parts = {{offset, 7, 7}}, .kind = Kind::Choice, .choices = polarities};
}

constexpr Row interlacedRow = flagAt(3, 4, "interlaced", "Interlaced");
constexpr Row preferredRow = flagAt(3, 7, "preferred", "Preferred");
constexpr Row hActive = countRow(4, "h_active", "Horizontal active");
constexpr Row hBlank = countRow(6, "h_blank", "Horizontal blanking");
constexpr Row hPorch = porchRow(8, "h_front_porch", "Horizontal front porch");
constexpr Row hSync = countRow(10, "h_sync_width", "Horizontal sync width");
constexpr Row vActive = countRow(12, "v_active", "Vertical active");
constexpr Row vBlank = countRow(14, "v_blank", "Vertical blanking");
constexpr Row vPorch = porchRow(16, "v_front_porch", "Vertical front porch");
constexpr Row vSync = countRow(18, "v_sync_width", "Vertical sync width");

/// VESA DisplayID 1.3, table 4-17; DisplayID 2.0, table 4-13.
constexpr std::array<Row, 14> timingRows = {{
    preferredRow,
    {.name = "stereo", .label = "Stereo", .parts = {{3, 6, 5}}, .kind = Kind::Choice, .choices = stereos},
    interlacedRow,
    {.name = "aspect_ratio", .label = "Aspect ratio", .parts = {{3, 3, 0}}, .kind = Kind::Choice, .choices = aspects},
    hActive,
    hBlank,
    polarityRow(9, "h_sync_polarity", "Horizontal sync polarity"),
    hPorch,
    hSync,
    vActive,
    vBlank,
    polarityRow(17, "v_sync_polarity", "Vertical sync polarity"),
    vPorch,
    vSync,
}};
constexpr Row clockRow = {
    .name = "pixel_clock", .label = "Pixel clock", .parts = {{2}, {1}, {0}}, .unit = "MHz", .decimals = 3};

void tellOfSync(const Scope& scope, const Row& porch, const Row& sync, const Row& blank, std::string_view code) {
    const auto pulseEnd = scope.raw(porch.parts) + scope.raw(sync.parts) + 2;
    const auto blanking = scope.raw(blank.parts) + 1;
    if (pulseEnd > blanking) {
        scope.tell(Severity::Error, code, sync.parts.begin()->offset - 1, sync.name,
                   "Front porch and sync take " + std::to_string(pulseEnd) + ", more than the blanking of " +
                       std::to_string(blanking) +
                       ", so that the sync pulse would reach into the picture; lengthen the blanking.");
    }
}

/// Lines count those of a whole picture, also where it is interlaced.
Mode modeOf(const Scope& scope, std::int64_t clockKilohertz) {
    const auto number = [&](const Row& row) { return static_cast<int>(scope.raw(row.parts)) + 1; };
    const bool interlaced = scope.raw(interlacedRow.parts) != 0;
    const int total = number(hActive) + number(hBlank);
    const int lines = number(vActive) + number(vBlank);
    const double pixels = static_cast<double>(total) * lines / (interlaced ? 2 : 1);
    return {.source = ModeSource::Detailed,
            .width = number(hActive),
            .height = number(vActive),
            .interlaced = interlaced,
            .refreshMilliHertz = std::llround(static_cast<double>(clockKilohertz) * 1e6 / pixels),
            .pixelClockKilohertz = clockKilohertz,
            .horizontalTotal = total,
            .verticalTotal = lines,
            .native = scope.raw(preferredRow.parts) != 0};
}

} // namespace

void readDisplayIdTiming(const Scope& scope, int kilohertz) {
    Row clock = clockRow;
    clock.scale = clock.bias = kilohertz / 1000.0;
    scope.add(clock);
    scope.add(timingRows);
    tellOfSync(scope, hPorch, hSync, hBlank, "timing.h_sync_beyond_blanking");
    tellOfSync(scope, vPorch, vSync, vBlank, "timing.v_sync_beyond_blanking");
    const auto clockKilohertz = static_cast<std::int64_t>((scope.raw(clock.parts) + 1) * kilohertz);
    scope.summary().modes.push_back(modeOf(scope, clockKilohertz));
}

} // namespace wb::fields
