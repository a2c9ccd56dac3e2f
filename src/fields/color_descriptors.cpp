#include <array>

#include "fields/descriptors.h"

namespace wb::fields {

namespace {

constexpr auto unusedPoint = std::to_array<Choice>({{0, "unused"}});
constexpr auto noGamma = std::to_array<Choice>({{255, "not told"}});

/// VESA E-EDID Standard, Release A, section 3.10.3.5: two of these, 5 bytes each.
constexpr std::array<Row, 5> whitePointRows = {{
    {.name = "index", .label = "Number of the white point", .parts = {{0}}, .choices = unusedPoint},
    reservedAt(1, 7, 4, "reserved"),
    {.name = "x", .label = "White x", .parts = {{2}, {1, 3, 2}}, .scale = 1.0 / 1024, .decimals = 4},
    {.name = "y", .label = "White y", .parts = {{3}, {1, 1, 0}}, .scale = 1.0 / 1024, .decimals = 4},
    {.name = "gamma", .label = "Gamma", .parts = {{4}}, .scale = 0.01, .bias = 1, .decimals = 2, .choices = noGamma},
}};

constexpr Row coefficient(std::string_view name, std::string_view label, std::size_t offset) {
    return {.name = name,
            .label = label,
            .parts = {{offset + 1}, {offset}},
            .kind = Kind::Signed,
            .scale = 0.01,
            .decimals = 2};
}

/// VESA E-EDID Standard, Release A, section 3.10.3.7, and the Display Color Management Standard.
constexpr std::array<Row, 6> managementRows = {{
    coefficient("red_a3", "Red a3", 6),
    coefficient("red_a2", "Red a2", 8),
    coefficient("green_a3", "Green a3", 10),
    coefficient("green_a2", "Green a2", 12),
    coefficient("blue_a3", "Blue a3", 14),
    coefficient("blue_a2", "Blue a2", 16),
}};

} // namespace

void readWhitePoints(const Scope& slot, int /*revision*/) {
    slot.inner(5, "white_point[1]").add(whitePointRows);
    slot.inner(10, "white_point[2]").add(whitePointRows);
    readDescriptorPadding(slot, 15);
}

void readColorManagement(const Scope& slot, int /*revision*/) {
    const Scope management = slot.inner(0, "color_management");
    readDescriptorVersion(management, 3);
    management.add(managementRows);
}

} // namespace wb::fields
