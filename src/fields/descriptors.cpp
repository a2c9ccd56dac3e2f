#include "fields/descriptors.h"

#include <algorithm>
#include <array>

namespace wb::fields {

namespace {

/// Content follows the flag, the tag and a byte that only range limits use.
constexpr std::size_t contentStart = 5;
constexpr std::size_t slotEnd = detailedBlockSize;

void readUnused(const Scope& slot, int /*revision*/) {
    slot.addBytes(contentStart, slotEnd, "unused", "Unused", Kind::Reserved);
}

void readManufacturers(const Scope& slot, int /*revision*/) {
    slot.addBytes(contentStart, slotEnd, "manufacturer_data", "Manufacturer's data");
}

void readUnknown(const Scope& slot, int /*revision*/) {
    slot.addBytes(contentStart, slotEnd, "data", "Data of a reserved descriptor");
}

struct DescriptorKind {
    std::uint8_t tag;
    std::string_view name;
    int firstRevision;
    void (*read)(const Scope& slot, int revision);
    std::string_view clause;
};

/// VESA E-EDID Standard, Release A, section 3.10.3.
constexpr auto kinds = std::to_array<DescriptorKind>({
    {serialTextTag, "product serial number", 1, readTextDescriptor, "E-EDID 1.4, 3.10.3.1"},
    {textTag, "text", 1, readTextDescriptor, "E-EDID 1.4, 3.10.3.2"},
    {rangeLimitsTag, "range limits", 1, readRangeLimits, "E-EDID 1.4, 3.10.3.3"},
    {nameTag, "product name", 1, readTextDescriptor, "E-EDID 1.4, 3.10.3.4"},
    {0xFB, "white points", 1, readWhitePoints, "E-EDID 1.4, 3.10.3.5"},
    {0xFA, "standard timings", 1, readMoreStandardTimings, "E-EDID 1.4, 3.10.3.6"},
    {0xF9, "colour management", 4, readColorManagement, "E-EDID 1.4, 3.10.3.7"},
    {0xF8, "CVT codes", 4, readCvtCodes, "E-EDID 1.4, 3.10.3.8"},
    {0xF7, "established timings III", 4, readMoreEstablishedTimings, "E-EDID 1.4, 3.10.3.9"},
    {dummyTag, "unused", 1, readUnused, "E-EDID 1.4, 3.10.3.11"},
});
constexpr DescriptorKind manufacturersKind = {0, "manufacturer's", 1, readManufacturers, "E-EDID 1.4, 3.10.3.12"};
constexpr DescriptorKind unknownKind = {0, "reserved", 0, readUnknown, "E-EDID 1.4, 3.10.3"};

const DescriptorKind& kindOf(std::uint8_t tag) {
    if (tag <= lastManufacturersTag) {
        return manufacturersKind;
    }
    const auto* found = std::find_if(kinds.begin(), kinds.end(), [&](const auto& kind) { return kind.tag == tag; });
    return found == kinds.end() ? unknownKind : *found;
}

void readTag(const Scope& /*scope*/, std::uint64_t raw, Field& field) {
    field.text = hexNumber(raw, 8) + "h, ";
    field.text += descriptorName(static_cast<std::uint8_t>(raw));
}

constexpr std::array<Row, 3> headRows = {{
    {.name = "flag", .label = "Marks a descriptor", .parts = {{0}}, .kind = Kind::Bytes, .length = 2},
    {.name = "reserved", .label = "Reserved", .parts = {{2}}, .kind = Kind::Reserved},
    {.name = "tag", .label = "Kind of descriptor", .parts = {{3}}, .read = readTag},
}};
constexpr Row versionRow = {.name = "version", .label = "Version of the data", .parts = {{contentStart}}};
constexpr Row reservedRow = {.name = "reserved_4", .label = "Reserved", .parts = {{4}}, .kind = Kind::Reserved};

} // namespace

std::optional<int> firstRevisionOf(std::uint8_t tag) {
    const DescriptorKind& kind = kindOf(tag);
    return &kind == &unknownKind ? std::nullopt : std::optional(kind.firstRevision);
}

std::string_view descriptorName(std::uint8_t tag) {
    return kindOf(tag).name;
}

void readDescriptorVersion(const Scope& slot, int expected) {
    slot.add(versionRow);
    if (const int version = slot.byte(contentStart); version != expected) {
        slot.tell(Severity::Warning, "descriptor.version_unknown", contentStart, versionRow.name,
                  "The data have version " + std::to_string(version) + ", where the standard knows " +
                      std::to_string(expected) +
                      " alone, so that software passes over them; set byte 5 of the descriptor to " +
                      std::to_string(expected) + '.');
    }
}

void readDescriptorPadding(const Scope& slot, std::size_t offset) {
    constexpr unsigned endMark = 0x0A;
    constexpr unsigned blank = 0x20;
    slot.addBytes(offset, slotEnd, "padding", "Padding");
    const auto padding = slot.bytes(offset, slotEnd - offset);
    if (padding.front() != endMark ||
        std::any_of(padding.begin() + 1, padding.end(), [](unsigned byte) { return byte != blank; })) {
        slot.tell(Severity::Warning, "descriptor.bad_padding", offset, "padding",
                  "The bytes behind the data are not 0A and blanks, by which old software finds the end of a "
                  "descriptor; set the first of them to 0A and the others to 20.");
    }
}

void readDescriptor(const Scope& slot, int revision) {
    const std::uint8_t tag = slot.byte(3);
    const DescriptorKind& kind = kindOf(tag);
    slot.add(headRows);
    const Scope content = slot.withClause(kind.clause);
    if (tag != rangeLimitsTag || revision < 4) {
        content.add(reservedRow);
    }
    kind.read(content, revision);
}

} // namespace wb::fields
