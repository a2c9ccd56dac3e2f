#include "fields/announced_extensions.h"

#include <algorithm>
#include <array>

#include "core/base/extension_tags.h"

namespace wb::fields {

std::size_t announcedExtensions(const Image& image) {
    using extensionCells::dataBlocks, extensionCells::timingOffset;
    constexpr std::array<std::uint8_t, 2> override = {0xE2, 0x78};
    if (image.announcedExtensions() > 0 && image.blockCount() > 1 && image.block(1)[extensionCells::tag] == ceaTag) {
        const auto first = image.block(1).subspan(dataBlocks, override.size() + 1);
        if (image.block(1)[timingOffset] >= dataBlocks + first.size() &&
            std::equal(override.begin(), override.end(), first.begin()) && first.back() != 0) {
            return first.back();
        }
    }
    return image.announcedExtensions();
}

} // namespace wb::fields
