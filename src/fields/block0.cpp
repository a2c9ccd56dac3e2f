#include "fields/block0.h"

#include <algorithm>
#include <array>

#include "fields/block0_parts.h"
#include "fields/descriptors.h"

namespace wb::fields {

namespace {

constexpr int newestRevision = 4;

constexpr Row headerRow = {
    .name = "header", .label = "Header", .parts = {{0}}, .kind = Kind::Bytes, .length = 8, .clause = "E-EDID 1.4, 3.3"};

constexpr std::array<Row, 2> versionRows = {{
    {.name = "number", .label = "Version of the structure", .parts = {{0}}},
    {.name = "revision", .label = "Revision of the structure", .parts = {{1}}},
}};

constexpr std::array<Row, 2> endRows = {{
    {.name = "extension_count",
     .label = "Extension blocks",
     .parts = {{extensionCountCell}},
     .clause = "E-EDID 1.4, 3.11"},
    {.name = "checksum", .label = "Check sum", .parts = {{checksumCell}}, .clause = "E-EDID 1.4, 3.11"},
}};

void readHeader(const Scope& base) {
    base.add(headerRow);
    if (!base.reading().image.hasHeader()) {
        base.tell(Severity::Error, "base.header", 0, "header",
                  "The block does not begin with 00 FF FF FF FF FF FF 00, so that software takes it for no "
                  "identification at all; restore these eight bytes.",
                  headerRow.clause);
    }
}

void readVersion(const Scope& base) {
    const Scope version = base.inner(cells::version, "version", "E-EDID 1.4, 3.5");
    version.add(versionRows);
    const int number = version.byte(0);
    const int revision = version.byte(1);
    base.summary().version = std::to_string(number) + '.' + std::to_string(revision);
    if (number != 1) {
        version.tell(Severity::Error, "base.version_unknown", 0, "number",
                     "Blocks of this layout have version 1, and this one tells " + std::to_string(number) +
                         ", so that software refuses it; set byte 18 to 1.");
    } else if (revision > newestRevision) {
        version.tell(Severity::Warning, "base.revision_unknown", 1, "revision",
                     "No standard has revision 1." + std::to_string(revision) +
                         ", so that software reads the block by the rules of another; set byte 19 to 4 or less.");
    }
}

/// In 1.3 and later the first slot has the preferred timing, before that where a bit says so.
void readSlots(const Scope& base, int revision) {
    const bool told = hasFeature(base.reading().image, Feature::PreferredTiming);
    for (std::size_t i = 0; i < slotCount; ++i) {
        const Scope slot = slotScope(base, i);
        if (!isTimingSlot(base.reading().image, i)) {
            readDescriptor(slot, revision);
            continue;
        }
        const std::size_t modesBefore = base.summary().modes.size();
        readDetailedTiming(slot, i == 0 && told);
        if (i == 0 && (told || revision >= 3) && base.summary().modes.size() > modesBefore) {
            base.summary().preferredMode = base.summary().modes.back();
        }
    }
}

} // namespace

int revisionOf(const Image& image) {
    return image.byte(cells::version) == 1 ? std::min<int>(image.byte(cells::revision), newestRevision)
                                           : newestRevision;
}

bool hasFeature(const Image& image, Feature feature) {
    return (image.byte(cells::features) & static_cast<unsigned>(feature)) != 0;
}

bool isDigital(const Image& image) {
    constexpr std::uint8_t digitalBit = 0x80;
    return (image.byte(cells::videoInput) & digitalBit) != 0;
}

Scope slotScope(const Scope& base, std::size_t number) {
    return isTimingSlot(base.reading().image, number)
               ? base.inner(slotStart(number), numbered("detailed", number + 1), "E-EDID 1.4, 3.10.2")
               : base.inner(slotStart(number), numbered("descriptor", number + 1), "E-EDID 1.4, 3.10.3");
}

std::optional<DetailedTiming> timingInSlot(const Scope& base, std::size_t number) {
    return isTimingSlot(base.reading().image, number) ? std::optional(detailedTimingOf(slotScope(base, number)))
                                                      : std::nullopt;
}

void readBlock0(Reading& reading) {
    const Scope base(reading, 0, "base", "E-EDID 1.4, 3");
    const int revision = revisionOf(reading.image);
    readHeader(base);
    readVendor(base, revision);
    readVersion(base);
    readBasicDisplay(base, revision);
    readChromaticity(base);
    readEstablishedTimings(base);
    readStandardTimings(base, revision);
    readSlots(base, revision);
    base.add(endRows);
    checkSizes(base);
    checkSlots(base, revision);
    checkBlock0(base, revision);
}

bool isTimingSlot(const Image& image, std::size_t number) {
    return image.byte(slotStart(number)) != 0 || image.byte(slotStart(number) + 1) != 0;
}

std::optional<std::uint8_t> descriptorTag(const Image& image, std::size_t number) {
    if (isTimingSlot(image, number)) {
        return {};
    }
    return image.byte(slotStart(number) + 3);
}

} // namespace wb::fields
