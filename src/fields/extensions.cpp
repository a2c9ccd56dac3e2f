#include "fields/extensions.h"

#include <array>

#include "fields/scope.h"

namespace wb::fields {

namespace {

struct ExtensionKind {
    std::uint8_t tag;
    std::string_view name;
};

/// VESA E-EDID Standard, Release A, section 2.2.1 and the tags that VESA gave out since.
constexpr std::array<ExtensionKind, 10> kinds = {{{0x00, "timing extension"},
                                                  {0x02, "CTA-861 extension"},
                                                  {0x10, "video timing block extension"},
                                                  {0x20, "EDID 2.0 extension"},
                                                  {0x40, "display information extension"},
                                                  {0x50, "localized string extension"},
                                                  {0x60, "microdisplay interface extension"},
                                                  {0x70, "DisplayID extension"},
                                                  {0xF0, "block map"},
                                                  {0xFF, "manufacturer's extension"}}};

} // namespace

std::string_view extensionName(std::uint8_t tag) {
    for (const ExtensionKind& kind : kinds) {
        if (kind.tag == tag) {
            return kind.name;
        }
    }
    return "unknown extension";
}

void readExtension(Reading& reading, std::size_t index) {
    const Scope block(reading, index * Image::blockSize, "extension[" + std::to_string(index) + "]", "E-EDID, 2.2.1");
    block.add({.name = "tag", .label = "Extension tag", .parts = {{0}}});
    block.addBytes(1, 127, "bytes", "Content of the block");
    block.add({.name = "checksum", .label = "Check sum", .parts = {{127}}});
}

} // namespace wb::fields
