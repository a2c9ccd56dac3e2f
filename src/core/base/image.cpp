#include "core/base/image.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace wb {

Image::Image(std::string_view bytes, std::size_t leftOver, ImageOrigin origin)
    : leftOver_(leftOver), origin_(std::move(origin)) {
    const auto* const first = reinterpret_cast<const std::uint8_t*>(bytes.data());
    bytes_.assign(first, first + bytes.size()); // of one kind, they are copied at once and not one by one
}

std::optional<Image> Image::fromBytes(std::string_view bytes, ImageOrigin origin) {
    const std::size_t blocks = std::min(bytes.size() / blockSize, mostBlocks);
    if (blocks == 0) {
        return std::nullopt;
    }
    const std::size_t taken = blocks * blockSize;
    return Image(bytes.substr(0, taken), bytes.size() - taken, std::move(origin));
}

bool Image::hasHeader() const {
    return std::equal(imageHeader.begin(), imageHeader.end(), bytes_.begin(),
                      [](char expected, std::uint8_t byte) { return static_cast<std::uint8_t>(expected) == byte; });
}

Image Image::cutTo(std::size_t count) const {
    return {std::string_view(content()).substr(0, count * blockSize), 0, origin_};
}

Image Image::paddedTo(std::size_t count) const {
    std::string bytes = content();
    bytes.resize(std::max(bytes.size(), std::min(count, mostBlocks) * blockSize), '\0');
    return {bytes, 0, origin_};
}

bool sumsToZero(std::span<const std::uint8_t> block) {
    return std::accumulate(block.begin(), block.end(), 0U) % 256 == 0;
}

} // namespace wb
