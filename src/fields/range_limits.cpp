#include <algorithm>
#include <array>

#include "fields/block0_parts.h"
#include "fields/descriptors.h"

namespace wb::fields {

namespace {

/// Byte 4 since 1.4: what is added to the rates, which would end at 255 otherwise.
constexpr auto offsets = std::to_array<Choice>({{0, "none"}, {2, "255 on the maximum"}, {3, "255 on both"}});
constexpr double rateOffset = 255;
constexpr std::array<Row, 3> offsetRows = {{
    reservedAt(4, 7, 4, "reserved"),
    {.name = "h_offset",
     .label = "Offset of the horizontal rates",
     .parts = {{4, 3, 2}},
     .kind = Kind::Choice,
     .choices = offsets},
    {.name = "v_offset",
     .label = "Offset of the vertical rates",
     .parts = {{4, 1, 0}},
     .kind = Kind::Choice,
     .choices = offsets},
}};

constexpr Row minVerticalRow = {.name = "min_v_rate", .label = "Lowest vertical rate", .parts = {{5}}, .unit = "Hz"};
constexpr Row maxVerticalRow = {.name = "max_v_rate", .label = "Highest vertical rate", .parts = {{6}}, .unit = "Hz"};
constexpr Row minHorizontalRow = {
    .name = "min_h_rate", .label = "Lowest horizontal rate", .parts = {{7}}, .unit = "kHz"};
constexpr Row maxHorizontalRow = {
    .name = "max_h_rate", .label = "Highest horizontal rate", .parts = {{8}}, .unit = "kHz"};
constexpr double clockUnit = 10;
constexpr auto clockNotTold = std::to_array<Choice>({{0, "not told"}});
constexpr Row clockRow = {.name = "max_pixel_clock",
                          .label = "Highest pixel clock",
                          .parts = {{9}},
                          .unit = "MHz",
                          .scale = clockUnit,
                          .choices = clockNotTold};

/// Byte 10.
enum class Formula : std::uint8_t { DefaultGtf = 0, None = 1, SecondaryGtf = 2, Cvt = 4 };
constexpr auto formulas =
    std::to_array<Choice>({{0, "default GTF"}, {1, "range limits only"}, {2, "secondary GTF"}, {4, "CVT"}});
constexpr auto oldFormulas = std::to_array<Choice>({{0, "no secondary timing formula"}, {2, "secondary GTF"}});
constexpr Row formulaRow = {.name = "timing_support",
                            .label = "Timing formula supported",
                            .parts = {{10}},
                            .kind = Kind::Choice,
                            .choices = formulas};
constexpr Row oldFormulaRow = {.name = "timing_support",
                               .label = "Timing formula supported",
                               .parts = {{10}},
                               .kind = Kind::Choice,
                               .choices = oldFormulas,
                               .clause = "E-EDID 1.3, 3.10.3"};

/// VESA E-EDID Standard, Release A, section 3.10.3.3.1.
constexpr std::array<Row, 6> secondaryGtfRows = {{
    {.name = "gtf_reserved", .label = "Reserved", .parts = {{11}}, .kind = Kind::Reserved},
    {.name = "gtf_start", .label = "Start of the secondary curve", .parts = {{12}}, .unit = "kHz", .scale = 2},
    {.name = "gtf_c", .label = "C of the secondary curve", .parts = {{13}}, .unit = "%", .scale = 0.5, .decimals = 1},
    {.name = "gtf_m", .label = "M of the secondary curve", .parts = {{15}, {14}}},
    {.name = "gtf_k", .label = "K of the secondary curve", .parts = {{16}}},
    {.name = "gtf_j", .label = "J of the secondary curve", .parts = {{17}}, .unit = "%", .scale = 0.5, .decimals = 1},
}};

constexpr auto aspects = std::to_array<Choice>({{0, "4:3"}, {1, "16:9"}, {2, "16:10"}, {3, "5:4"}, {4, "15:9"}});
constexpr auto noLimit = std::to_array<Choice>({{0, "no limit"}});

constexpr Row preferredAspectRow = choiceAt({15, 7, 5}, "preferred_aspect", "Preferred aspect ratio", aspects);

/// VESA E-EDID Standard, Release A, section 3.10.3.3.2.
constexpr std::array<Row, 19> cvtRows = {{
    {.name = "cvt_version", .label = "Version of CVT", .parts = {{11, 7, 4}}},
    {.name = "cvt_revision", .label = "Revision of CVT", .parts = {{11, 3, 0}}},
    {.name = "clock_less",
     .label = "To be taken from the highest pixel clock",
     .parts = {{12, 7, 2}},
     .unit = "MHz",
     .scale = 0.25,
     .decimals = 2},
    {.name = "max_h_active",
     .label = "Most active pixels a line",
     .parts = {{12, 1, 0}, {13}},
     .unit = "px",
     .scale = 8,
     .choices = noLimit},
    flagAt(14, 7, "aspect_4_3", "4:3 supported"),
    flagAt(14, 6, "aspect_16_9", "16:9 supported"),
    flagAt(14, 5, "aspect_16_10", "16:10 supported"),
    flagAt(14, 4, "aspect_5_4", "5:4 supported"),
    flagAt(14, 3, "aspect_15_9", "15:9 supported"),
    reservedAt(14, 2, 0, "cvt_reserved_14"),
    preferredAspectRow,
    flagAt(15, 4, "reduced_blanking", "Reduced blanking supported"),
    flagAt(15, 3, "standard_blanking", "Standard blanking supported"),
    reservedAt(15, 2, 0, "cvt_reserved_15"),
    flagAt(16, 7, "h_shrink", "Horizontal shrink supported"),
    flagAt(16, 6, "h_stretch", "Horizontal stretch supported"),
    flagAt(16, 5, "v_shrink", "Vertical shrink supported"),
    flagAt(16, 4, "v_stretch", "Vertical stretch supported"),
    reservedAt(16, 3, 0, "cvt_reserved_16"),
}};
constexpr Row preferredRateRow = {
    .name = "preferred_rate", .label = "Preferred vertical rate", .parts = {{17}}, .unit = "Hz"};

int readRate(const Scope& range, Row row, bool hasOffset) {
    if (hasOffset) {
        row.bias = rateOffset;
    }
    return static_cast<int>(std::get<std::int64_t>(range.add(row).value));
}

RangeLimits readRates(const Scope& range, unsigned offsetByte) {
    const unsigned vertical = offsetByte & 3U;
    const unsigned horizontal = offsetByte >> 2U & 3U;
    RangeLimits limits;
    limits.minVerticalHertz = readRate(range, minVerticalRow, vertical == 3);
    limits.maxVerticalHertz = readRate(range, maxVerticalRow, vertical >= 2);
    limits.minHorizontalKilohertz = readRate(range, minHorizontalRow, horizontal == 3);
    limits.maxHorizontalKilohertz = readRate(range, maxHorizontalRow, horizontal >= 2);
    return limits;
}

void checkCvt(const Scope& range) {
    constexpr auto aspectBits = std::to_array<std::uint8_t>({7, 6, 5, 4, 3});
    const std::uint64_t preferred = range.raw(preferredAspectRow.parts);
    if (preferred < aspectBits.size() && (range.byte(14) >> aspectBits[preferred] & 1U) == 0) {
        range.tell(Severity::Warning, "range.preferred_aspect_unsupported", 15, preferredAspectRow.name,
                   "The preferred aspect ratio is not among those that are supported, so that software makes timings "
                   "of a ratio that the monitor disclaims; set its bit in byte 14 of the descriptor.");
    }
    if (range.byte(17) == 0) {
        range.tell(Severity::Warning, "range.preferred_rate_zero", 17, preferredRateRow.name,
                   "The preferred vertical rate is 0 Hz, of which no timing can be made; enter the true one.");
    }
}

void readFormula(const Scope& range, int revision) {
    range.add(revision >= 4 ? formulaRow : oldFormulaRow);
    const auto formula = static_cast<Formula>(range.byte(10));
    if (formula == Formula::SecondaryGtf) {
        range.add(secondaryGtfRows);
    } else if (formula == Formula::Cvt && revision >= 4) {
        range.add(cvtRows);
        range.add(preferredRateRow);
        checkCvt(range);
    } else {
        readDescriptorPadding(range, 11);
    }
}

void checkFormula(const Scope& range) {
    const bool isContinuous = hasFeature(range.reading().image, Feature::ContinuousFrequency);
    if (!isContinuous && static_cast<Formula>(range.byte(10)) != Formula::None) {
        range.tell(
            Severity::Warning, "range.formula_without_continuous", 10, "timing_support",
            "A timing formula is supported and bit 0 of byte 24 denies that frequencies are continuous, so that "
            "software cannot tell whether it may make timings; set that bit, or byte 10 of the descriptor to 1.");
    }
}

void checkOrder(const Scope& range, std::size_t offset, const Row& row, int low, int high, std::string_view what) {
    if (low > high) {
        range.tell(Severity::Error, "range.min_above_max", offset, row.name,
                   "The lowest " + std::string(what) + " rate, " + withUnit(std::to_string(low), row.unit) +
                       ", is above the highest, " + withUnit(std::to_string(high), row.unit) +
                       ", so that no timing fits; enter them the other way round, or the true ones.");
    } else if (low == 0 || high == 0) {
        range.tell(Severity::Warning, "range.zero", offset, row.name,
                   "A " + std::string(what) +
                       " rate of 0 is reserved, of which software makes no limit or refuses all; "
                       "enter the true one.");
    }
}

void checkLimits(const Scope& range, const RangeLimits& limits) {
    checkOrder(range, 5, minVerticalRow, limits.minVerticalHertz, limits.maxVerticalHertz, "vertical");
    checkOrder(range, 7, minHorizontalRow, limits.minHorizontalKilohertz, limits.maxHorizontalKilohertz, "horizontal");
    if (!limits.maxClockMegahertz) {
        range.tell(Severity::Warning, "range.clock_zero", 9, clockRow.name,
                   "The highest pixel clock is not told, so that software takes the fastest mode that it knows; enter "
                   "the clock in units of 10 MHz.");
    }
}

/// The highest clock, less what CVT tells more exactly.
std::optional<double> clockOf(const Scope& range, int revision) {
    if (range.byte(9) == 0) {
        return {};
    }
    const bool isExact = revision >= 4 && static_cast<Formula>(range.byte(10)) == Formula::Cvt;
    constexpr double step = 0.25;
    return range.byte(9) * clockUnit - (isExact ? static_cast<double>(range.byte(12) >> 2U) * step : 0);
}

} // namespace

void readRangeLimits(const Scope& slot, int revision) {
    const Scope range = slot.inner(0, "range");
    if (revision >= 4) {
        range.add(offsetRows);
    }
    RangeLimits limits = readRates(range, revision >= 4 ? range.byte(4) : 0);
    limits.maxClockMegahertz = clockOf(range, revision);
    range.add(clockRow);
    readFormula(range, revision);
    checkLimits(range, limits);
    if (revision >= 4) {
        checkFormula(range);
    }
    if (!slot.summary().range) {
        slot.summary().range = limits;
    }
}

} // namespace wb::fields
