#include "fields/extensions.h"

#include <algorithm>
#include <array>

#include "core/base/extension_tags.h"
#include "fields/displayid.h"

namespace wb::fields {

namespace {

void readBytes(const Scope& block, CtaExtensions& before);

struct ExtensionKind {
    std::uint8_t tag;
    std::string_view name;
    std::string_view path = "extension";
    std::string_view clause = "E-EDID 1.4, 2.2.1";
    void (*read)(const Scope& block, CtaExtensions& before) = readBytes;
};

/// VESA E-EDID Standard, Release A, section 2.2.1 and the tags that VESA gave out since.
constexpr auto kinds = std::to_array<ExtensionKind>({
    {0x00, "timing extension"},
    {ceaTag, "CTA-861 extension", "cta", "CTA-861-H, 7.3.3", readCta},
    {0x10, "video timing block extension", "vtb", "VTB-EXT Release A", readVideoTimingBlock},
    {0x20, "EDID 2.0 extension"},
    {0x40, "display information extension"},
    {0x50, "localized string extension"},
    {0x60, "microdisplay interface extension"},
    {0x70, "DisplayID extension", "displayid", "DisplayID 1.3, 3", readDisplayId},
    {0xA7, "display transfer characteristics extension"},
    {0xAF, "display transfer characteristics extension"},
    {0xBF, "display transfer characteristics extension"},
    {blockMapTag, "block map", "map", "E-EDID 1.4, 3.14", readBlockMap},
    {0xFF, "manufacturer's extension"},
});
constexpr ExtensionKind unknownKind = {0, "unknown extension"};

constexpr Row tagRow = {.name = "tag", .label = "Extension tag", .parts = {{0}}};
constexpr Row checksumRow = {.name = "checksum", .label = "Check sum", .parts = {{checksumCell}}};

void readBytes(const Scope& block, CtaExtensions& /*before*/) {
    block.add(tagRow);
    block.addBytes(1, checksumCell, "bytes", "Content of the block");
}

const ExtensionKind& kindOf(std::uint8_t tag) {
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&](const ExtensionKind& kind) { return kind.tag == tag; });
    return found == kinds.end() ? unknownKind : *found;
}

/// Before revision 1.4 a block map has to lead more than one extension.
void checkLeadingMap(const Scope& block) {
    constexpr unsigned firstWithoutMap = 4;
    const Image& image = block.reading().image;
    if (block.byte(0) != blockMapTag && image.announcedExtensions() > 1 &&
        image.byte(cells::revision) < firstWithoutMap) {
        block.tell(
            Severity::Warning, "map.missing", 0, "",
            "More than one extension block follows block 0 and the first is no block map, which revisions before "
            "1.4 want, so that readers may stop after it; add a map or move to revision 1.4.",
            "E-EDID 1.3, 2.2.2");
    }
}

void readExtension(Reading& reading, std::size_t index, CtaExtensions& before) {
    const ExtensionKind& kind = kindOf(reading.image.block(index)[0]);
    const Scope block(reading, index * Image::blockSize, numbered(kind.path, index), kind.clause);
    kind.read(block, before);
    block.add(checksumRow);
    if (index == 1) {
        checkLeadingMap(block);
    }
    if (&kind == &unknownKind) {
        block.tell(Severity::Warning, "extension.unknown", 0, "tag",
                   "No standard gives the tag of this extension block a meaning, so that readers pass over it; a dump "
                   "that went wrong may be the cause: compare it with the monitor.");
    }
    reading.summary.extensions.push_back(reading.blocks[index].name);
}

} // namespace

std::string_view extensionName(std::uint8_t tag) {
    return kindOf(tag).name;
}

void readExtensions(Reading& reading) {
    CtaExtensions extensions;
    for (std::size_t index = 1; index < reading.image.blockCount(); ++index) {
        readExtension(reading, index, extensions);
    }
    checkCta(extensions);
}

void readPadding(const Scope& block, std::size_t offset, std::string_view code, std::string_view after) {
    block.addBytes(offset, checksumCell, "padding", "Padding");
    for (std::size_t place = offset; place < checksumCell; ++place) {
        if (block.byte(place) != 0) {
            block.tell(Severity::Warning, code, place, "padding",
                       "Bytes after " + std::string(after) +
                           " are not 0, so that readers may take them for more of it; set them to 0 if nothing is "
                           "meant.");
            return;
        }
    }
}

} // namespace wb::fields
