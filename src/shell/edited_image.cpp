#include "shell/edited_image.h"

#include <algorithm>

#include "core/base/digits.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "fields/announced_extensions.h"
#include "shell/image_state.h"

namespace wb::shell {

namespace {

/// The bytes of the cells of one screen, which `owner` names behind their numbers.
std::string bytesOf(BlockScreen& screen, const std::string& owner) {
    std::string bytes;
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const std::string& text = screen.txtEdit(i).text();
        const int byte = hexPair(text);
        if (byte < 0) {
            throw NoImage("cell " + std::to_string(i) + owner + " is no byte: " + quoted(text));
        }
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::size_t announcedBlocks(const Image& image) {
    return fields::announcedExtensions(image) + 1;
}

/// The number of blocks that the cells announce; nothing where that of byte 126 is no byte.
std::optional<std::size_t> announcedBlocks(const Workbench& workbench) {
    const ImageState cells = ImageState::of(workbench);
    return hexPair(cells.text(extensionCountCell)) < 0 ? std::nullopt : std::optional(announcedBlocks(cells.bytes()));
}

FrmEdid& openScreen(const Workbench& workbench) {
    auto* const screen = static_cast<FrmEdid*>(workbench.loaded(ScreenId::Edid));
    if (screen == nullptr || workbench.EDIDLoaded == flagFalse) {
        throw NoImage("no image is open");
    }
    return *screen;
}

/// How many blocks are to be written: those that are announced. Blocks that were not announced when the image was
/// loaded stay until a user announces another number.
std::size_t blockCount(const std::optional<Image>& loaded, std::size_t announced) {
    const bool asLoaded = loaded && announcedBlocks(*loaded) == announced;
    return asLoaded ? std::max(announced, loaded->blockCount()) : announced;
}

} // namespace

Image editedImage(const Workbench& workbench) {
    FrmEdid& edid = openScreen(workbench);
    std::string bytes = bytesOf(edid, "");
    const std::optional<Image> loaded = Image::fromBytes(workbench.LoadedBytes);
    auto* const extension = static_cast<FrmCeaExt*>(workbench.loaded(ScreenId::CeaExt));
    const std::size_t shown = extension == nullptr ? 1 : Image::editedBlocks;
    const std::size_t held = std::max(shown, loaded ? loaded->blockCount() : 0);
    const std::size_t byByte126 = Image::fromBytes(bytes)->announcedExtensions() + 1;
    if (byByte126 > held) {
        throw NoImage("announces " + std::to_string(byByte126) + " blocks, and the program holds " +
                      std::to_string(held));
    }
    const std::size_t announced = *announcedBlocks(workbench);
    for (std::size_t block = 1; block < std::min(held, blockCount(loaded, announced)); ++block) {
        if (block < std::min(shown, announced)) {
            bytes += bytesOf(*extension, " of the extension block");
        } else {
            const auto kept = loaded->block(block);
            bytes.append(kept.begin(), kept.end());
        }
    }
    return *Image::fromBytes(bytes);
}

std::size_t furtherBlocks(const Workbench& workbench) {
    const std::optional<Image> loaded = Image::fromBytes(workbench.LoadedBytes);
    if (!loaded) {
        return 0;
    }
    openScreen(workbench); // there must be one
    const std::size_t announced = announcedBlocks(workbench).value_or(announcedBlocks(*loaded));
    const std::size_t count = std::min(loaded->blockCount(), blockCount(loaded, announced));
    return count - std::min(count, Image::editedBlocks);
}

} // namespace wb::shell
