#include "fields/standard_timing.h"

#include <array>

namespace wb::fields {

namespace {

constexpr unsigned unusedCode = 0x0101;

struct Aspect {
    std::string_view name;
    int width;
    int height;
};

/// By bits 7 and 6 of the second byte (VESA E-EDID Standard, Release A, section 3.9).
constexpr auto aspects = std::to_array<Aspect>({{"16:10", 16, 10}, {"4:3", 4, 3}, {"5:4", 5, 4}, {"16:9", 16, 9}});
constexpr Aspect oldFirstAspect = {"1:1", 1, 1};

constexpr std::array<Row, 3> rows = {{
    {.name = "width", .label = "Horizontal active", .parts = {{0}}, .unit = "px", .scale = 8, .bias = 248},
    {.name = "aspect_ratio", .label = "Aspect ratio", .parts = {{1, 7, 6}}, .kind = Kind::Bytes},
    {.name = "refresh", .label = "Refresh rate", .parts = {{1, 5, 0}}, .unit = "Hz", .bias = 60},
}};
constexpr Row unusedRow = {
    .name = "unused", .label = "Unused standard timing", .parts = {{0}}, .kind = Kind::Bytes, .length = 2};
constexpr Row reservedRow = {.name = "reserved", .label = "Reserved", .parts = {{0}}, .kind = Kind::Bytes, .length = 2};

Mode modeOf(const Scope& scope, const Aspect& aspect) {
    Mode mode{.source = ModeSource::Standard, .width = (scope.byte(0) + 31) * 8};
    mode.height = mode.width * aspect.height / aspect.width;
    mode.interlaced = false;
    mode.refreshMilliHertz = static_cast<std::int64_t>(scope.raw(rows[2].parts) + 60) * 1000;
    return mode;
}

} // namespace

bool isUnusedStandardTiming(unsigned code) {
    return code == unusedCode;
}

void readStandardTiming(const Scope& scope, int revision) {
    if (isUnusedStandardTiming(static_cast<unsigned>(scope.raw({{0}, {1}})))) {
        scope.add(unusedRow);
        return;
    }
    if (scope.byte(0) == 0) {
        scope.add(reservedRow);
        scope.tell(Severity::Warning, "standard.reserved", 0, reservedRow.name,
                   "The first byte of a standard timing must not be 0, of which software makes a timing of 248 pixels "
                   "or none; enter 01 01 for a timing that is not used.");
        return;
    }
    const std::uint64_t ratio = scope.raw(rows[1].parts);
    const Aspect& aspect = ratio == 0 && revision < 3 ? oldFirstAspect : aspects[ratio];
    const Mode mode = modeOf(scope, aspect);
    scope.add(rows[0]);
    Field& field = scope.add(rows[1]);
    field.value = std::string(aspect.name);
    field.text = std::string(aspect.name) + ", " + std::to_string(mode.height) + " lines";
    scope.add(rows[2]);
    scope.summary().modes.push_back(mode);
}

} // namespace wb::fields
