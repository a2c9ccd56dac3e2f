#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>

#include "core/base/image.h"
#include "core/workbench.h"

namespace wb::shell {

/// What the cells of both block screens hold at one time. A cell may hold any text; nearly all hold two characters,
/// which are kept together, so that a state takes little room and is compared fast.
class ImageState {
public:
    /// Looks at the screens without touching them; one that does not exist has no cells.
    static ImageState of(const Workbench& workbench);

    bool hasBlock(std::size_t block) const { return blocks_[block].has_value(); }
    /// The text of a cell, 0 to 255, of a block that is there.
    std::string text(int cell) const;
    /// The image, with 0 for a cell that is no byte. Block 0 must be there.
    Image bytes() const;

    /// Whether a block that both have differs in more than its check sum, or one has gone.
    bool changedSince(const ImageState& before) const;
    /// Whether both are the same image; a block that byte 126 does not announce is no part of it.
    bool sameImage(const ImageState& other) const;
    /// Puts the texts into the cells, without events. Creates the screen of a block that has gone; leaves that of a
    /// block that was not there yet.
    void restore(Workbench& workbench) const;

    bool operator==(const ImageState&) const = default;

private:
    struct Block {
        std::string pairs;                 ///< two characters a cell; blanks for one of `others`
        std::map<int, std::string> others; ///< texts of another length, by cell
        bool operator==(const Block&) const = default;

        std::string text(int cell) const;
        bool differsBeyondChecksum(const Block& other) const;
    };

    static Block blockOf(BlockScreen& screen);

    std::array<std::optional<Block>, Image::editedBlocks> blocks_;
};

} // namespace wb::shell
