#include <array>

#include "fields/block0_parts.h"

namespace wb::fields {

namespace {

constexpr int firstYear = 1990;
constexpr int lastWeek = 54;
constexpr int modelYearMark = 255;

/// Three letters of five bits each, 1 for A.
std::string makerOf(std::uint64_t raw) {
    std::string letters;
    for (const unsigned shift : {10U, 5U, 0U}) {
        letters += static_cast<char>('@' + (raw >> shift & 31U));
    }
    return letters;
}

void readMaker(const Scope& scope, std::uint64_t raw, Field& field) {
    field.text = makerOf(raw);
    field.value = field.text;
    scope.summary().maker = field.text;
}

constexpr auto noSerialNumber = std::to_array<Choice>({{0, "none"}});
constexpr auto weeks = std::to_array<Choice>({{0, "not told"}});
constexpr auto weeksOrMark = std::to_array<Choice>({{0, "not told"}, {modelYearMark, "the year is the model's"}});

/// VESA E-EDID Standard, Release A, section 3.4.
constexpr std::array<Row, 4> productRows = {{
    {.name = "reserved",
     .label = "Reserved",
     .parts = {{0, 7, 7}},
     .kind = Kind::Reserved,
     .clause = "E-EDID 1.4, 3.4.1"},
    {.name = "manufacturer",
     .label = "Maker",
     .parts = {{0, 6, 0}, {1}},
     .kind = Kind::Bytes,
     .clause = "E-EDID 1.4, 3.4.1",
     .read = readMaker},
    {.name = "product_code", .label = "Product code", .parts = {{3}, {2}}, .clause = "E-EDID 1.4, 3.4.2"},
    {.name = "serial_number",
     .label = "Serial number",
     .parts = {{7}, {6}, {5}, {4}},
     .choices = noSerialNumber,
     .clause = "E-EDID 1.4, 3.4.3",
     .identifies = true},
}};

constexpr std::array<Row, 2> manufactureRows = {{
    {.name = "week", .label = "Week of manufacture", .parts = {{8}}, .choices = weeks, .clause = "E-EDID 1.4, 3.4.4"},
    {.name = "year", .label = "Year of manufacture", .parts = {{9}}, .bias = firstYear, .clause = "E-EDID 1.4, 3.4.4"},
}};
constexpr std::array<Row, 2> modelYearRows = {{
    {.name = "week",
     .label = "Week of manufacture",
     .parts = {{8}},
     .choices = weeksOrMark,
     .clause = "E-EDID 1.4, 3.4.4"},
    {.name = "year", .label = "Model year", .parts = {{9}}, .bias = firstYear, .clause = "E-EDID 1.4, 3.4.4"},
}};

void checkMaker(const Scope& vendor) {
    const std::string& maker = vendor.summary().maker;
    if (maker.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") != std::string::npos) {
        vendor.tell(Severity::Warning, "vendor.maker_letters", 0, "manufacturer",
                    "The code of the maker, \"" + maker +
                        "\", is not of the letters A to Z alone, so that nobody can be registered under it; enter the "
                        "three letters that were given to the maker.",
                    "E-EDID 1.4, 3.4.1");
    }
}

void checkSerialNumber(const Scope& vendor, std::uint32_t number) {
    constexpr std::array<std::uint32_t, 2> placeholders = {0x01010101, 0xFFFFFFFF};
    for (const std::uint32_t placeholder : placeholders) {
        if (number == placeholder) {
            vendor.tell(Severity::Note, "vendor.serial_placeholder", 4, "serial_number",
                        "The serial number is four times the same byte, as makers leave it who give none, so that "
                        "software takes two monitors for one; give each its own or 0 for none.",
                        "E-EDID 1.4, 3.4.3");
        }
    }
}

/// When a revision was published, which is the earliest year of a monitor that has it: 1.0 August 1994, 1.1 April 1996,
/// 1.2 November 1997, 1.3 September 1999, 1.4 September 2006.
constexpr auto yearsOfRevisions = std::to_array<int>({1994, 1996, 1997, 1999, 2006});

void checkDate(const Scope& vendor, int revision) {
    const int week = vendor.byte(8);
    if (week > lastWeek && !(revision >= 4 && week == modelYearMark)) {
        vendor.tell(Severity::Warning, "vendor.week", 8, "week",
                    "No year has a week " + std::to_string(week) +
                        (week == modelYearMark ? ", and before 1.4 no model year can be told" : "") +
                        ", so that the date cannot be told; enter 1 to 54, or 0 for none.",
                    "E-EDID 1.4, 3.4.4");
    }
    const int year = firstYear + vendor.byte(9);
    const int published = yearsOfRevisions[static_cast<std::size_t>(revision)];
    if (year < published) {
        vendor.tell(Severity::Warning, "vendor.year", 9, "year",
                    "The year " + std::to_string(year) + " is before " + std::to_string(published) +
                        ", when the revision that the block follows was published, so that one of both is wrong; "
                        "enter the true year.",
                    "E-EDID 1.4, 3.4.4");
    }
}

void summarize(const Scope& vendor, std::uint32_t serialNumber, bool isModelYear) {
    Summary& summary = vendor.summary();
    summary.productCode = vendor.word(2);
    if (serialNumber != 0) {
        summary.serialNumber = serialNumber;
    }
    const int year = firstYear + vendor.byte(9);
    if (isModelYear) {
        summary.modelYear = year;
        return;
    }
    summary.year = year;
    if (const int week = vendor.byte(8); week != 0 && week <= lastWeek) {
        summary.week = week;
    }
}

} // namespace

void readVendor(const Scope& base, int revision) {
    const Scope vendor = base.inner(cells::manufacturer.first, "vendor", "E-EDID 1.4, 3.4");
    const bool isModelYear = revision >= 4 && vendor.byte(8) == modelYearMark;
    vendor.add(productRows);
    vendor.add(isModelYear ? modelYearRows : manufactureRows);
    const auto serialNumber = static_cast<std::uint32_t>(vendor.raw({{7}, {6}, {5}, {4}}));
    summarize(vendor, serialNumber, isModelYear);
    checkMaker(vendor);
    checkSerialNumber(vendor, serialNumber);
    checkDate(vendor, revision);
}

} // namespace wb::fields
