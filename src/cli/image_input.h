#pragma once

#include <string>
#include <vector>

#include "cli/input.h"
#include "core/base/image.h"

/// From the content of a file to the images in it.
namespace wb::cli {

class Syntax;

struct ImageOptions {
    bool anyHeader = false; ///< takes images without the header too
    std::string form;       ///< the one form to be taken; empty: whatever the content is
    std::string output;     ///< the output whose image is meant, of a text that names several; empty: all
};

/// --any-header, --from and --output-name.
void addImageOptions(Syntax& syntax, ImageOptions& options);

/// What a file holds.
struct Contents {
    Input input;
    bool isDataFile = false;
    std::vector<Image> images; ///< one or more; of a data file none where its cells are no image
    std::string refusal;       ///< of a data file without an image: why it is none
};

/// Recognises what was read. Where there is neither an image nor a data file, and where no image is that of the output
/// asked for, it is a CliError.
Contents contentsOf(Input input, const ImageOptions& options);

/// The images; a CliError where a data file holds none.
const std::vector<Image>& imagesOf(const Contents& contents);

/// The only image; a CliError that names the outputs where there are several.
const Image& onlyImageOf(const Contents& contents);

/// The name of the file as the user gave it, with the output of the image in brackets where there is one.
std::string titleOf(const Image& image);

/// What is left out of an image where its first `held` blocks are taken, as many as the program edits or more: further
/// blocks, bytes behind the last one, and blocks that it announces and that are not there. A sentence without an
/// end mark each.
std::vector<std::string> omissionsOf(const Image& image, std::size_t held = Image::editedBlocks);

/// What is wrong with a data file for an image of that many blocks: "3 blocks; a data file holds 2".
std::string tooManyBlocks(std::size_t blocks);

/// "block 2" or "blocks 2 to 4".
std::string blocksText(std::size_t first, std::size_t last);

} // namespace wb::cli
