#include "fields/displayid.h"

#include <algorithm>
#include <map>

#include "fields/cta_data_blocks.h"
#include "fields/extensions.h"

namespace wb::fields {

namespace {

constexpr std::size_t firstDataBlock = 5;
/// Of the extension block, which ends with a check sum of its own.
constexpr std::size_t blockEnd = checksumCell;
constexpr std::size_t mostBytes = blockEnd - firstDataBlock - 1;
constexpr std::size_t dataBlockHead = 3;
constexpr unsigned firstVersion2 = 0x20;

constexpr auto productTypes = std::to_array<Choice>({{0, "extension of another section"},
                                                     {1, "test equipment"},
                                                     {2, "display panel"},
                                                     {3, "standalone display"},
                                                     {4, "television receiver"},
                                                     {5, "repeater"},
                                                     {6, "direct drive monitor"}});
constexpr auto primaryUses = std::to_array<Choice>({{0, "extension of another section"},
                                                    {1, "test equipment"},
                                                    {2, "generic display"},
                                                    {3, "television"},
                                                    {4, "desktop productivity"},
                                                    {5, "desktop gaming"},
                                                    {6, "presentation"},
                                                    {7, "virtual reality"},
                                                    {8, "augmented reality"}});

constexpr std::array<Row, 3> headRows = {{
    {.name = "tag", .label = "Extension tag", .parts = {{0}}},
    {.name = "version", .label = "Version of the section", .parts = {{1}}, .read = describeVersion},
    {.name = "length", .label = "Bytes of the data blocks", .parts = {{2}}},
}};
constexpr Row typeRow = {
    .name = "product_type", .label = "Product type", .parts = {{3}}, .kind = Kind::Choice, .choices = productTypes};
constexpr Row useRow = {
    .name = "primary_use", .label = "Primary use", .parts = {{3}}, .kind = Kind::Choice, .choices = primaryUses};
constexpr Row extensionsRow = {.name = "extension_count", .label = "Further sections", .parts = {{4}}};

struct Entry {
    const Scope& content; ///< begins with the tag of the data block
    std::size_t end;      ///< of its bytes, from the tag on
};

/// The bytes of a field of one range.
std::span<const std::uint8_t> bytesOf(const Scope& scope, const Field& field) {
    const BitRange& range = field.where.front();
    return scope.reading().image.bytes().subspan(range.byte, range.count);
}

void describeLetters(const Scope& scope, std::uint64_t, Field& field) {
    const auto bytes = bytesOf(scope, field);
    if (std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte >= 'A' && byte <= 'Z'; })) {
        field.text.assign(bytes.begin(), bytes.end());
        field.value = field.text;
    }
}

void describeVendorNumber(const Scope& scope, std::uint64_t, Field& field) {
    field.text = ouiText(bytesOf(scope, field));
    field.value = field.text;
}

constexpr std::uint64_t modelYearWeek = 0xFF;
constexpr auto weeks = std::to_array<Choice>({{0, "not told"}, {modelYearWeek, "none, the year is that of the model"}});

using Describe = void (*)(const Scope& scope, std::uint64_t raw, Field& field);
/// By letters in DisplayID 1, by the number of the organization in DisplayID 2.
constexpr Row vendorRow(std::size_t offset, Describe describe) {
    return {
        .name = "vendor", .label = "Vendor", .parts = {{offset}}, .kind = Kind::Bytes, .length = 3, .read = describe};
}
constexpr Row codeRow(std::size_t offset) {
    return {.name = "code", .label = "Product code", .parts = {{offset + 1}, {offset}}};
}
constexpr Row serialRow(std::size_t offset) {
    return {.name = "serial",
            .label = "Serial number",
            .parts = {{offset + 3}, {offset + 2}, {offset + 1}, {offset}},
            .identifies = true};
}
constexpr Row nameLengthRow = {.name = "name_length", .label = "Bytes of the product's name", .parts = {{14}}};
/// VESA DisplayID 1.3, 4.1.1; DisplayID 2.0, 4.1.
constexpr std::array<Row, 5> productRows = {{
    codeRow(6),
    serialRow(8),
    {.name = "week", .label = "Week of manufacture", .parts = {{12}}, .choices = weeks},
    {.name = "year", .label = "Year", .parts = {{13}}, .bias = 2000},
    nameLengthRow,
}};
constexpr std::size_t vendorEnd = 6;
constexpr std::size_t productEnd = 15;

void readProduct(const Entry& entry, Describe describeVendor) {
    if (entry.end < vendorEnd) {
        entry.content.addBytes(dataBlockHead, entry.end, "rest", "Further bytes");
        return;
    }
    entry.content.add(vendorRow(dataBlockHead, describeVendor));
    entry.content.fill(productRows, std::min(entry.end, productEnd));
    if (entry.end <= productEnd) {
        return;
    }
    const std::size_t nameEnd =
        std::min(entry.end, productEnd + static_cast<std::size_t>(entry.content.raw(nameLengthRow.parts)));
    if (nameEnd > productEnd) {
        entry.content.add({.name = "name",
                           .label = "Product name",
                           .parts = {{productEnd}},
                           .kind = Kind::Text,
                           .length = nameEnd - productEnd});
    }
    entry.content.addBytes(nameEnd, entry.end, "rest", "Further bytes");
}

void readProduct1(const Entry& entry) {
    readProduct(entry, describeLetters);
}

void readProduct2(const Entry& entry) {
    readProduct(entry, describeVendorNumber);
}

void readTimings(const Entry& entry, int kilohertz) {
    std::size_t offset = dataBlockHead;
    for (std::size_t number = 1; offset + displayIdTimingSize <= entry.end; ++number) {
        readDisplayIdTiming(entry.content.inner(offset, numbered("timing", number)), kilohertz);
        offset += displayIdTimingSize;
    }
    if (offset < entry.end) {
        entry.content.addBytes(offset, entry.end, "rest", "Further bytes");
        entry.content.tell(Severity::Warning, "displayid.timing_incomplete", offset, "rest",
                           std::to_string(entry.end - offset) +
                               " bytes after the last timing are no whole one of 20 bytes, so that readers refuse the "
                               "data block or pass over them; complete the timing or shorten the data block.");
    }
}

void readTypeI(const Entry& entry) {
    readTimings(entry, 10);
}

void readTypeVII(const Entry& entry) {
    readTimings(entry, 1);
}

void readCtaBlocks(const Entry& entry) {
    CtaState state{.limit = "the length of the DisplayID data block"};
    readDataBlocks(entry.content, dataBlockHead, entry.end, state);
}

/// The display that a tile belongs to is told behind the arrangement of the tiles.
constexpr std::array<Row, 4> tiledRows(Describe describeVendor) {
    return {{
        {.name = "arrangement",
         .label = "Arrangement of the tiles",
         .parts = {{dataBlockHead}},
         .kind = Kind::Bytes,
         .length = 13},
        vendorRow(16, describeVendor),
        codeRow(19),
        serialRow(21),
    }};
}
constexpr std::array<Row, 4> tiledRows1 = tiledRows(describeLetters);
constexpr std::array<Row, 4> tiledRows2 = tiledRows(describeVendorNumber);
constexpr std::size_t tiledEnd = 25;

void readTiled(const Entry& entry, WholeRows rows) {
    const std::size_t end = std::min(entry.end, tiledEnd);
    if (end > dataBlockHead) {
        entry.content.fill(rows, end);
    }
    entry.content.addBytes(end, entry.end, "rest", "Further bytes");
}

void readTiled1(const Entry& entry) {
    readTiled(entry, tiledRows1);
}

void readTiled2(const Entry& entry) {
    readTiled(entry, tiledRows2);
}

/// Of DisplayID 1: characters up to the end of the data block.
void readSerialNumber(const Entry& entry) {
    if (entry.end > dataBlockHead) {
        entry.content.add({.name = "serial_text",
                           .label = "Product serial number",
                           .parts = {{dataBlockHead}},
                           .kind = Kind::Text,
                           .length = entry.end - dataBlockHead,
                           .identifies = true});
    }
}

constexpr std::size_t uuidSize = 16;

/// "00112233-4455-6677-8899-AABBCCDDEEFF" in the order of the bytes (RFC 4122, 3).
void describeUuid(const Scope& scope, std::uint64_t, Field& field) {
    const auto bytes = bytesOf(scope, field);
    if (bytes.size() < uuidSize) {
        return;
    }
    field.text.clear();
    for (std::size_t i = 0; i < uuidSize; ++i) {
        field.text += i >= 4 && i <= 10 && i % 2 == 0 ? "-" : "";
        field.text += hexNumber(bytes[i], 8);
    }
    field.value = field.text;
}

/// Of DisplayID 2. What is there of one that is cut identifies too.
void readContainer(const Entry& entry) {
    const std::size_t idEnd = std::min(entry.end, dataBlockHead + uuidSize);
    if (idEnd > dataBlockHead) {
        entry.content.add({.name = "id",
                           .label = "Container ID",
                           .parts = {{dataBlockHead}},
                           .kind = Kind::Bytes,
                           .length = idEnd - dataBlockHead,
                           .identifies = true,
                           .read = describeUuid});
    }
    entry.content.addBytes(idEnd, entry.end, "rest", "Further bytes");
}

void readBytes(const Entry& entry) {
    entry.content.addBytes(dataBlockHead, entry.end, "bytes", "Content of the data block");
}

struct EntryKind {
    std::uint8_t tag;
    std::string_view name;
    std::string_view label;
    void (*read)(const Entry& entry) = readBytes;
    std::size_t least = 0; ///< bytes after the length
};

/// VESA DisplayID 1.3, table 4-1; DisplayID 2.0, table 4-1.
constexpr auto kinds = std::to_array<EntryKind>({
    {0x00, "product", "product identification", readProduct1, 12},
    {0x01, "parameters", "display parameters"},
    {0x02, "color", "color characteristics"},
    {0x03, "type_i", "type I detailed timings", readTypeI, 20},
    {0x04, "type_ii", "type II detailed timings"},
    {0x05, "type_iii", "type III short timings"},
    {0x06, "type_iv", "type IV timing codes"},
    {0x07, "vesa_timings", "VESA timing standard"},
    {0x08, "cta_timings", "CTA timing standard"},
    {0x09, "range", "video timing range"},
    {0x0A, "serial", "product serial number", readSerialNumber},
    {0x0B, "string", "general purpose text"},
    {0x0C, "device", "display device data"},
    {0x0D, "power_sequence", "interface power sequencing"},
    {0x0E, "transfer", "transfer characteristics"},
    {0x0F, "interface", "display interface"},
    {0x10, "stereo", "stereo display interface"},
    {0x11, "type_v", "type V short timings"},
    {0x12, "tiled", "tiled display topology", readTiled1, tiledEnd - dataBlockHead},
    {0x13, "type_vi", "type VI detailed timings"},
    {0x20, "product", "product identification", readProduct2, 12},
    {0x21, "parameters", "display parameters"},
    {0x22, "type_vii", "type VII detailed timings", readTypeVII, 20},
    {0x23, "type_viii", "type VIII timing codes"},
    {0x24, "type_ix", "type IX formula-based timings"},
    {0x25, "range", "dynamic video timing range"},
    {0x26, "interface", "display interface features"},
    {0x27, "stereo", "stereo display interface"},
    {0x28, "tiled", "tiled display topology", readTiled2, tiledEnd - dataBlockHead},
    {0x29, "container", "container identification", readContainer, uuidSize},
    {0x2A, "type_x", "type X formula-based timings"},
    {0x2B, "adaptive_sync", "adaptive sync"},
    {0x7E, "vendor", "vendor-specific data"},
    {0x7F, "vendor", "vendor-specific data"},
    {0x81, "cta", "CTA-861 data blocks", readCtaBlocks},
});
constexpr EntryKind unknownKind = {0, "reserved", "data block with a reserved tag"};

constexpr std::array<Row, 4> entryRows = {{
    {.name = "tag", .label = "Tag of a data block", .parts = {{0}}},
    {.name = "flags", .label = "Flags that the kind defines", .parts = {{1, 7, 3}}},
    {.name = "revision", .label = "Revision", .parts = {{1, 2, 0}}},
    {.name = "length", .label = "Bytes that follow", .parts = {{2}}},
}};

const EntryKind& kindOf(std::uint8_t tag) {
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const EntryKind& kind) { return kind.tag == tag; });
    return found == kinds.end() ? unknownKind : *found;
}

class SectionReader {
public:
    explicit SectionReader(const Scope& block) : block_(block) {}

    /// The data blocks from `offset` up to `end`; zeros at the end are padding.
    void read(std::size_t offset, std::size_t end) {
        while (offset < end) {
            if (end - offset < dataBlockHead || allZero(block_.bytes(offset, end - offset))) {
                block_.addBytes(offset, end, "data_block_padding", "Padding after the data blocks");
                return;
            }
            offset += readOne(offset, end);
        }
    }

private:
    std::size_t readOne(std::size_t offset, std::size_t end) {
        const Scope header = block_.inner(offset, numbered("data_block", ++count_));
        const EntryKind& kind = kindOf(header.byte(0));
        const std::size_t declared = dataBlockHead + header.byte(2);
        const std::size_t size = std::min(declared, end - offset);
        header.add(entryRows);
        Field& tag = (block_.reading().fields.end() - entryRows.size())[0];
        tag.text += " (" + std::string(kind.label) + ')';
        check(header, kind, declared, end - offset);
        const std::size_t number = ++counts_[kind.name];
        const Scope content = block_.inner(offset, number == 1 ? std::string(kind.name) : numbered(kind.name, number));
        kind.read({.content = content, .end = size});
        return size;
    }

    static void check(const Scope& header, const EntryKind& kind, std::size_t declared, std::size_t room) {
        const std::string name = std::string(kind.label) + " at byte " + std::to_string(header.place(0));
        if (&kind == &unknownKind) {
            header.tell(Severity::Note, "displayid.data_block_reserved", 0, "tag",
                        "The tag of the data block at byte " + std::to_string(header.place(0)) +
                            " is reserved, so that readers pass over what it tells; take it out unless a later "
                            "standard gives it a meaning.");
        }
        if (declared > room) {
            header.tell(Severity::Error, "displayid.data_block_over", 2, "length",
                        "The data block of " + name + " takes " + std::to_string(declared) + " bytes and runs " +
                            std::to_string(declared - room) +
                            " over the end of the section, so that readers refuse or misread it; correct its length "
                            "or that of the section.");
        } else if (declared < dataBlockHead + kind.least) {
            header.tell(Severity::Error, "displayid.data_block_short", 2, "length",
                        "The data block of " + name + " has " + std::to_string(declared - dataBlockHead) +
                            " of at least " + std::to_string(kind.least) +
                            " bytes of content, so that readers refuse or misread it; complete it or take it out.");
        }
    }

    const Scope& block_;
    std::size_t count_ = 0;
    std::map<std::string_view, std::size_t> counts_{};
};

void checkSection(const Scope& block, const Scope& header) {
    const unsigned version = block.byte(1) >> 4U;
    if (version != 1 && version != 2) {
        header.tell(Severity::Warning, "displayid.version", 1, "version",
                    "The version of the DisplayID section is neither 1 nor 2, so that readers refuse it; correct it.");
    }
    if (block.byte(2) > mostBytes) {
        header.tell(Severity::Error, "displayid.section_length", 2, "length",
                    "The section tells " + std::to_string(block.byte(2)) +
                        " bytes of data blocks where an extension "
                        "block has room for " +
                        std::to_string(mostBytes) + ", so that readers refuse it; correct its length.");
    }
}

/// The check sum of the section, and what follows it.
void readSectionEnd(const Scope& block, std::size_t end) {
    block.add({.name = "section_checksum", .label = "Check sum of the section", .parts = {{end}}});
    if (!sumsToZero(block.bytes(1, end))) {
        block.tell(Severity::Error, "displayid.section_checksum", end, "section_checksum",
                   "The bytes of the DisplayID section do not sum up to 0, so that careful readers refuse it; correct "
                   "its check sum if the rest is right.");
    }
    readPadding(block, end + 1, "displayid.padding_not_zero", "the DisplayID section");
}

} // namespace

void describeVersion(const Scope&, std::uint64_t raw, Field& field) {
    field.text = std::to_string(raw >> 4U) + '.' + std::to_string(raw & 15U);
    field.value = field.text;
}

void readDisplayId(const Scope& block, CtaExtensions& /*before*/) {
    const Scope header = block.inner(0, "header");
    header.add(headRows);
    header.add(block.byte(1) < firstVersion2 ? typeRow : useRow);
    header.add(extensionsRow);
    checkSection(block, header);
    const std::size_t end = firstDataBlock + std::size_t{block.byte(2)};
    SectionReader(block).read(firstDataBlock, std::min(end, blockEnd));
    if (end < blockEnd) {
        readSectionEnd(block, end);
    }
}

} // namespace wb::fields
