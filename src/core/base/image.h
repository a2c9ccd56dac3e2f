#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/image_layout.h"

namespace wb {

/// The eight bytes that open an image (VESA E-EDID Standard, Release A, section 3.3).
inline constexpr std::string_view imageHeader{"\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8};

/// Where an image came from; what is not known is empty.
struct ImageOrigin {
    std::string file;   ///< name as it was given
    std::string form;   ///< name of the form in which it was found there, such as "bin"
    std::string output; ///< connector or output of the system, where the source names one
};

/// The whole of an identification image: one block of 128 bytes or more, in order, whatever they hold.
class Image {
public:
    static constexpr std::size_t blockSize = wb::blockSize;
    /// Byte 126 of block 0 counts at most 255 extensions.
    static constexpr std::size_t mostBlocks = 256;
    /// The program holds, edits and saves block 0 and one extension.
    static constexpr std::size_t editedBlocks = 2;

    /// The whole blocks of the bytes, at most 256 of them. Nothing where there is not a single one.
    static std::optional<Image> fromBytes(std::string_view bytes, ImageOrigin origin = {});

    std::size_t blockCount() const { return bytes_.size() / blockSize; }
    /// The bytes of all blocks.
    std::span<const std::uint8_t> bytes() const { return bytes_; }
    /// The 128 bytes of one block, which must be there.
    std::span<const std::uint8_t> block(std::size_t index) const {
        return bytes().subspan(index * blockSize, blockSize);
    }
    /// The byte of that number, which must be there.
    std::uint8_t byte(std::size_t number) const { return bytes_[number]; }
    /// All bytes as a text of 8-bit characters.
    std::string content() const { return {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()}; }

    /// How many bytes after the last block were left out: less than a block, or more than 256 blocks.
    std::size_t leftOver() const { return leftOver_; }
    /// How many extension blocks byte 126 of block 0 announces.
    std::size_t announcedExtensions() const { return bytes_[extensionCountCell]; }
    /// Whether it begins with imageHeader.
    bool hasHeader() const;

    const ImageOrigin& origin() const { return origin_; }
    /// The same image, found in a file of that name.
    Image ofFile(std::string name) const {
        Image image = *this;
        image.origin_.file = std::move(name);
        return image;
    }
    /// The image without the blocks from `count` on, of which there are more, and without what was left over.
    Image cutTo(std::size_t count) const;
    /// The image with blocks of zeros behind its own, `count` in all, 256 at most.
    Image paddedTo(std::size_t count) const;

private:
    Image(std::string_view bytes, std::size_t leftOver, ImageOrigin origin);

    std::vector<std::uint8_t> bytes_;
    std::size_t leftOver_;
    ImageOrigin origin_;
};

/// Whether the bytes of a block sum up to a multiple of 256.
bool sumsToZero(std::span<const std::uint8_t> block);

} // namespace wb
