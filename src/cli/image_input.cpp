#include "cli/image_input.h"

#include <algorithm>
#include <utility>

#include "adapters/recognise.h"
#include "cli/cli_error.h"
#include "cli/syntax.h"
#include "fields/announced_extensions.h"
#include "forms/recogniser.h"

namespace wb::cli {

namespace {

/// A log can hold thousands.
std::string outputsOf(const std::vector<Image>& images) {
    constexpr std::size_t mostNamed = 20;
    std::string names;
    for (std::size_t i = 0; i < std::min(images.size(), mostNamed); ++i) {
        const std::string& output = images[i].origin().output;
        names += (names.empty() ? "" : ", ") + (output.empty() ? "(without a name)" : output);
    }
    return images.size() > mostNamed ? names + " and " + std::to_string(images.size() - mostNamed) + " more" : names;
}

std::string helpOfForms() {
    std::string help = "Take the input for this form instead of telling by its content";
    std::string_view between = ": ";
    for (const std::string& name : forms::formNames()) {
        help += between;
        help += name;
        between = ", ";
    }
    return help;
}

/// Leaves the images of one output.
void pick(std::vector<Image>& images, const std::string& output) {
    const std::string there = outputsOf(images);
    std::erase_if(images, [&](const Image& image) { return image.origin().output != output; });
    if (images.empty()) {
        throw CliError("has no output '" + output + "'; it has " + there);
    }
}

} // namespace

void addImageOptions(Syntax& syntax, ImageOptions& options) {
    syntax.flag("--any-header", "Take images without the header 00 FF FF FF FF FF FF 00 too", options.anyHeader);
    syntax.option("--from", "FORM", &helpOfForms, &options.form).oneOf(&forms::formNames);
    syntax.option("--output-name", "NAME", "Of a text with several images, take that of this output", &options.output);
}

Contents contentsOf(Input input, const ImageOptions& options) {
    forms::Recognition recognition =
        adapters::recognise(input.content, {.anyHeader = options.anyHeader, .form = options.form, .inflate = {}});
    if (recognition.images.empty() && !recognition.isDataFile) {
        throw CliError(input.content.empty() ? "is empty" : "is no EDID image: " + recognition.refusal);
    }
    Contents contents{.input = std::move(input),
                      .isDataFile = recognition.isDataFile,
                      .images = {},
                      .refusal = std::move(recognition.refusal)};
    if (recognition.uncompressed) {
        contents.input.content = std::move(*recognition.uncompressed);
    }
    for (Image& image : recognition.images) {
        contents.images.push_back(image.ofFile(contents.input.name));
    }
    if (!options.output.empty()) {
        pick(contents.images, options.output);
    }
    return contents;
}

const std::vector<Image>& imagesOf(const Contents& contents) {
    if (contents.images.empty()) {
        throw CliError(contents.refusal);
    }
    return contents.images;
}

const Image& onlyImageOf(const Contents& contents) {
    const std::vector<Image>& images = imagesOf(contents);
    if (images.size() > 1) {
        throw CliError("holds " + std::to_string(images.size()) + " images: " + outputsOf(images) +
                       "; --output-name picks one");
    }
    return images.front();
}

std::string titleOf(const Image& image) {
    const ImageOrigin& origin = image.origin();
    return origin.output.empty() ? origin.file : origin.file + " (" + origin.output + ')';
}

std::string tooManyBlocks(std::size_t blocks) {
    return std::to_string(blocks) + " blocks; a data file holds " + std::to_string(Image::editedBlocks);
}

std::string blocksText(std::size_t first, std::size_t last) {
    return first == last ? "block " + std::to_string(first)
                         : "blocks " + std::to_string(first) + " to " + std::to_string(last);
}

std::vector<std::string> omissionsOf(const Image& image, std::size_t held) {
    std::vector<std::string> sentences;
    const std::size_t blocks = image.blockCount();
    if (blocks > held) {
        sentences.push_back(blocksText(held, blocks - 1) + " left out");
    }
    if (image.leftOver() != 0) {
        sentences.push_back(std::to_string(image.leftOver()) + " bytes after the last block left out");
    }
    if (const std::size_t last = fields::announcedExtensions(image); last >= blocks) {
        sentences.push_back(blocksText(blocks, last) + " announced and missing");
    }
    return sentences;
}

} // namespace wb::cli
