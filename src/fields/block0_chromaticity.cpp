#include <algorithm>
#include <array>
#include <cmath>

#include "fields/block0_parts.h"

namespace wb::fields {

namespace {

constexpr double step = 1.0 / 1024;

constexpr Row coordinate(std::string_view name, std::string_view label, Part high, Part low) {
    return {.name = name, .label = label, .parts = {high, low}, .scale = step, .decimals = 4};
}

/// VESA E-EDID Standard, Release A, section 3.7: the upper eight bits of a coordinate have a byte of their own.
constexpr std::array<Row, 8> coordinateRows = {{
    coordinate("red_x", "Red x", {2}, {0, 7, 6}),
    coordinate("red_y", "Red y", {3}, {0, 5, 4}),
    coordinate("green_x", "Green x", {4}, {0, 3, 2}),
    coordinate("green_y", "Green y", {5}, {0, 1, 0}),
    coordinate("blue_x", "Blue x", {6}, {1, 7, 6}),
    coordinate("blue_y", "Blue y", {7}, {1, 5, 4}),
    coordinate("white_x", "White x", {8}, {1, 3, 2}),
    coordinate("white_y", "White y", {9}, {1, 1, 0}),
}};

/// Red, green, blue, white.
using Points = std::array<Point, 4>;
constexpr std::array<std::string_view, 4> pointNames = {"red", "green", "blue", "white"};

/// sRGB (IEC 61966-2-1, table 1), and how far rounding may lie from it.
constexpr Points standardPoints = {{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, {0.3127, 0.3290}}};
constexpr double roundingError = 2 * step;

Points pointsOf(const Scope& scope) {
    const auto number = [&](std::size_t row) {
        return static_cast<double>(scope.raw(coordinateRows[row].parts)) * step;
    };
    Points points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {number(2 * i), number(2 * i + 1)};
    }
    return points;
}

/// Twice the area of the triangle, positive where its corners go counter-clockwise.
double areaOf(const Point& a, const Point& b, const Point& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool isWhiteInside(const Points& points) {
    const auto& [red, green, blue, white] = points;
    return areaOf(red, green, white) > 0 && areaOf(green, blue, white) > 0 && areaOf(blue, red, white) > 0;
}

bool isStandard(const Points& points) {
    return std::equal(points.begin(), points.end(), standardPoints.begin(), [](const Point& a, const Point& b) {
        return std::abs(a.x - b.x) <= roundingError && std::abs(a.y - b.y) <= roundingError;
    });
}

/// Whether one of them lies outside of what chromaticities can be; that is told.
bool tellImpossible(const Scope& scope, const Points& points) {
    bool found = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (points[i].x + points[i].y <= 1 && points[i].y > 0) {
            continue;
        }
        found = true;
        const std::string name(pointNames[i]);
        scope.tell(Severity::Warning, "chromaticity.impossible", 2 + 2 * i, name + "_x",
                   "No colour has the chromaticity that is told for " + name +
                       (points[i].y > 0 ? ": x and y are more than 1 together" : ": its y is 0") +
                       ", so that colours come out wrong where software corrects them; enter measured values.");
    }
    return found;
}

void checkMonochrome(const Scope& scope, const Points& points) {
    const bool hasPrimaries =
        std::any_of(points.begin(), points.end() - 1, [](const Point& point) { return point.x > 0 || point.y > 0; });
    if (hasPrimaries) {
        scope.tell(Severity::Note, "chromaticity.of_monochrome", 0, "red_x",
                   "The display is told to be monochrome and has primaries, of which software can believe only one; "
                   "correct the display type in byte 24 or set the primaries to 0.");
    }
}

void checkColors(const Scope& scope, const Points& points, bool claimsStandard) {
    if (tellImpossible(scope, points)) {
        return;
    }
    if (!isWhiteInside(points)) {
        scope.tell(Severity::Warning, "chromaticity.white_outside", 8, "white_x",
                   "White does not lie between red, green and blue, so that it could not be mixed of them and software "
                   "corrects colours wrongly; enter measured values.");
    }
    if (claimsStandard && !isStandard(points)) {
        scope.tell(Severity::Warning, "chromaticity.not_srgb", 0, "red_x",
                   "The image claims sRGB as its default colour space and tells other primaries than those of sRGB, so "
                   "that software trusts one or the other; enter those of sRGB or clear bit 2 of byte 24.",
                   "E-EDID 1.4, 3.6.4");
    }
}

/// By the display type, which digital inputs of 1.4 do not tell any more.
bool isMonochromeDisplay(const Scope& base) {
    constexpr unsigned typeBits = 0x18;
    return (base.byte(cells::features) & typeBits) == 0 &&
           !(revisionOf(base.reading().image) >= 4 && base.summary().digital);
}

} // namespace

void readChromaticity(const Scope& base) {
    const Scope scope = base.inner(cells::chromaticity.first, "chromaticity", "E-EDID 1.4, 3.7");
    scope.add(coordinateRows);
    const bool isMonochrome = isMonochromeDisplay(base);
    if (allZero(scope.bytes(0, 10))) {
        if (!isMonochrome) {
            scope.tell(Severity::Warning, "chromaticity.none", 0, "red_x",
                       "No primaries are told for a colour display, so that software cannot match its colours; enter "
                       "measured values, or those of sRGB.");
        }
        return;
    }
    const Points points = pointsOf(scope);
    scope.summary().primaries = points;
    if (isMonochrome) {
        checkMonochrome(scope, points);
    } else {
        checkColors(scope, points, hasFeature(base.reading().image, Feature::StandardColor));
    }
}

} // namespace wb::fields
