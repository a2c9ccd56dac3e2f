#pragma once

#include <stdexcept>

#include "core/base/image.h"
#include "core/workbench.h"

namespace wb::shell {

/// Why the cells are no image that could be written, in words that go on from the name of a file.
class NoImage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The bytes of the cells of the open image, block 0 and, where its byte 126 announces one, the extension block, and
/// behind them the other blocks as they were loaded: all of them, or as many as the image announces where that was
/// changed. A cell that is no byte is a NoImage, and so is a block that byte 126 announces and the program does not
/// hold. Those that the override data block alone announces may lack: no data file has more than two blocks.
Image editedImage(const Workbench& workbench);

/// How many blocks of the open image there are that the cells do not hold and editedImage gives. Without an open image
/// it is a NoImage.
std::size_t furtherBlocks(const Workbench& workbench);

} // namespace wb::shell
