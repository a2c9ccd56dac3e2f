#pragma once

#include <cstddef>

#include "core/base/image.h"

namespace wb::fields {

/// How many extension blocks the image announces: in byte 126, or in the override data block, which stands first in a
/// CTA-861 extension in block 1 (HDMI 2.1, 10.3.6). One that tells of none contradicts itself and counts for nothing,
/// as does one in a block that byte 126 does not announce.
std::size_t announcedExtensions(const Image& image);

} // namespace wb::fields
