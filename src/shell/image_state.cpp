#include "shell/image_state.h"

#include <algorithm>

#include "core/base/digits.h"

namespace wb::shell {

namespace {

constexpr std::size_t pairLength = 2;

BlockScreen* screenOf(const Workbench& workbench, std::size_t block) {
    return static_cast<BlockScreen*>(workbench.loaded(block == 0 ? ScreenId::Edid : ScreenId::CeaExt));
}

char byteIn(const std::string& text) {
    return static_cast<char>(std::max(hexPair(text), 0));
}

} // namespace

ImageState::Block ImageState::blockOf(BlockScreen& screen) {
    Block block;
    block.pairs.reserve(pairLength * BlockScreen::cellCount);
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const std::string& text = screen.txtEdit(i).text();
        if (text.size() == pairLength) {
            block.pairs += text;
        } else {
            block.pairs.append(pairLength, ' ');
            block.others.emplace(i, text);
        }
    }
    return block;
}

std::string ImageState::Block::text(int cell) const {
    const auto other = others.find(cell);
    return other != others.end() ? other->second
                                 : pairs.substr(pairLength * static_cast<std::size_t>(cell), pairLength);
}

bool ImageState::Block::differsBeyondChecksum(const Block& other) const {
    if (*this == other) {
        return false;
    }
    for (int i = 0; i < checksumCell; ++i) {
        if (text(i) != other.text(i)) {
            return true;
        }
    }
    return false;
}

ImageState ImageState::of(const Workbench& workbench) {
    ImageState state;
    for (std::size_t block = 0; block < state.blocks_.size(); ++block) {
        if (BlockScreen* screen = screenOf(workbench, block)) {
            state.blocks_[block] = blockOf(*screen);
        }
    }
    return state;
}

std::string ImageState::text(int cell) const {
    return blocks_[static_cast<std::size_t>(cell / blockSize)]->text(cell % blockSize);
}

Image ImageState::bytes() const {
    std::string bytes;
    for (const std::optional<Block>& block : blocks_) {
        for (int i = 0; block && i < blockSize; ++i) {
            bytes += byteIn(block->text(i));
        }
    }
    return *Image::fromBytes(bytes);
}

bool ImageState::changedSince(const ImageState& before) const {
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        const std::optional<Block>& old = before.blocks_[block];
        if (old && (!blocks_[block] || blocks_[block]->differsBeyondChecksum(*old))) {
            return true;
        }
    }
    return false;
}

bool ImageState::sameImage(const ImageState& other) const {
    if (!hasBlock(0) || blocks_[0] != other.blocks_[0]) {
        return false;
    }
    return byteIn(text(extensionCountCell)) == 0 || blocks_[1] == other.blocks_[1];
}

void ImageState::restore(Workbench& workbench) const {
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        if (!blocks_[block]) {
            continue;
        }
        auto& screen = static_cast<BlockScreen&>(workbench.touch(block == 0 ? ScreenId::Edid : ScreenId::CeaExt));
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            if (std::string text = blocks_[block]->text(i); screen.txtEdit(i).text() != text) {
                screen.txtEdit(i).setText(std::move(text));
            }
        }
    }
}

} // namespace wb::shell
