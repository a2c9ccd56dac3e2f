#include "cli/edited_image.h"

#include "cli/cli_error.h"
#include "core/base/digits.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

/// The bytes of the cells of one screen, the first of which is byte `first` of the image.
std::string bytesOf(BlockScreen& screen, int first) {
    std::string bytes;
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const std::string& text = screen.txtEdit(i).text();
        if (text.size() != 2 || hexDigit(text[0]) < 0 || hexDigit(text[1]) < 0) {
            throw CliError("cell " + std::to_string(first + i) + " is no byte: " + quoted(text));
        }
        bytes += static_cast<char>(hexDigit(text[0]) * 16 + hexDigit(text[1]));
    }
    return bytes;
}

} // namespace

Image editedImage(const Workbench& workbench) {
    auto* const edid = static_cast<FrmEdid*>(workbench.loaded(ScreenId::Edid));
    if (edid == nullptr || workbench.EDIDLoaded == flagFalse) {
        throw CliError("no image is open");
    }
    std::string bytes = bytesOf(*edid, 0);
    const std::size_t announced = static_cast<unsigned char>(bytes[extensionCountCell]) + std::size_t{1};
    auto* const extension = static_cast<FrmCeaExt*>(workbench.loaded(ScreenId::CeaExt));
    const std::size_t held = extension == nullptr ? 1 : Image::editedBlocks;
    if (announced > held) {
        throw CliError("announces " + std::to_string(announced) + " blocks, and the program holds " +
                       std::to_string(held));
    }
    if (announced == Image::editedBlocks) {
        bytes += bytesOf(*extension, BlockScreen::cellCount);
    }
    return *Image::fromBytes(bytes);
}

} // namespace wb::cli
