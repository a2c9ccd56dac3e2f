#include <algorithm>
#include <array>

#include "fields/cvt_code.h"
#include "fields/detailed_timing.h"
#include "fields/extensions.h"
#include "fields/standard_timing.h"

namespace wb::fields {

namespace {

constexpr std::size_t firstTiming = 5;

/// VESA Video Timing Block Extension Data Standard, Release A.
constexpr std::array<Row, 5> headRows = {{
    {.name = "tag", .label = "Extension tag", .parts = {{0}}},
    {.name = "version", .label = "Version of the extension", .parts = {{1}}},
    {.name = "detailed_count", .label = "Detailed timings", .parts = {{2}}},
    {.name = "cvt_count", .label = "CVT codes", .parts = {{3}}},
    {.name = "standard_count", .label = "Standard timings", .parts = {{4}}},
}};

/// One of the three lists, which follow each other.
struct List {
    std::size_t countByte;
    std::size_t size; ///< bytes of an element
    std::string_view path;
    std::string_view name;
    void (*read)(const Scope& element);
};

void readTiming(const Scope& element) {
    readDetailedTiming(element, false);
}

void readStandard(const Scope& element) {
    constexpr int revisionOfRatios = 4;
    readStandardTiming(element, revisionOfRatios);
}

constexpr std::array<List, 3> lists = {{
    {2, detailedTimingSize, "detailed", "detailed timings", readTiming},
    {3, cvtCodeSize, "cvt", "CVT codes", readCvtCode},
    {4, standardTimingSize, "standard", "standard timings", readStandard},
}};

/// As many elements as there is room for; returns where the next list begins.
std::size_t readList(const Scope& block, const List& list, std::size_t start) {
    const std::size_t told = block.byte(list.countByte);
    const std::size_t room = (checksumCell - start) / list.size;
    for (std::size_t i = 0; i < std::min(told, room); ++i) {
        list.read(block.inner(start + i * list.size, numbered(list.path, i + 1)));
    }
    if (told > room) {
        block.tell(Severity::Error, "vtb.overrun", list.countByte, headRows[list.countByte].name,
                   "The block tells of " + std::to_string(told) + ' ' + std::string(list.name) + " and has room for " +
                       std::to_string(room) +
                       ", so that readers miss them or take the check sum for a part of one; correct the count.");
    }
    return start + std::min(told, room) * list.size;
}

} // namespace

void readVideoTimingBlock(const Scope& block, CtaExtensions& /*before*/) {
    block.add(headRows);
    std::size_t place = firstTiming;
    for (const List& list : lists) {
        place = readList(block, list, place);
    }
    readPadding(block, place, "vtb.padding", "the last timing");
}

} // namespace wb::fields
