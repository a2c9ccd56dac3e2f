#include <algorithm>
#include <memory>
#include <string_view>

#include "cli/commands.h"
#include "cli/output.h"
#include "cli/panel_editing.h"
#include "cli/rewrite.h"
#include "cli/syntax.h"
#include "fields/block0.h"
#include "fields/descriptors.h"
#include "fields/reading.h"

namespace wb::cli {

namespace {

/// The bytes of a field that fill it where it tells nothing: zeros, those of an empty text, and the padding behind it.
bool isFiller(const fields::Field& field, std::uint8_t byte) {
    constexpr std::string_view ofTexts{"\0\n ", 3};
    const bool isText = std::holds_alternative<std::string>(field.value);
    return byte == 0 || (isText && ofTexts.find(static_cast<char>(byte)) != std::string_view::npos);
}

bool isEmpty(const Image& image, const fields::Field& field) {
    return std::all_of(field.where.begin(), field.where.end(), [&](const fields::BitRange& range) {
        const auto bytes = image.bytes().subspan(range.byte, range.count);
        return std::all_of(bytes.begin(), bytes.end(), [&](std::uint8_t byte) { return isFiller(field, byte); });
    });
}

/// Whether a field is the room that an extension leaves, in which some monitors have descriptors.
bool isSpareRoom(const fields::Field& field) {
    return field.where.firstByte() >= Image::blockSize && field.path.ends_with(".padding");
}

/// What is left that may tell one monitor from another.
std::vector<std::string> leftOf(const Image& image) {
    std::vector<std::string> sentences;
    for (const fields::Field& field : fields::read(image).fields) {
        if (isEmpty(image, field)) {
            continue;
        }
        if (field.identifies) {
            sentences.push_back("left as it is: " + field.path + ", " + field.text);
        } else if (isSpareRoom(field)) {
            sentences.push_back("left as it is: " + field.path + ", which is not empty and may hold a serial number");
        }
    }
    for (std::size_t block = 0; block < detailedBlockCount; ++block) {
        if (fields::descriptorTag(image, block) == fields::textTag) {
            sentences.push_back("left as it is: the text of descriptor " + std::to_string(block + 1) +
                                ", which may hold a serial number");
        }
    }
    for (std::size_t block = 1; block < image.blockCount(); ++block) {
        if (!sumsToZero(image.block(block))) {
            sentences.push_back("block " + std::to_string(block) + ": the check sum is wrong; repair puts it right");
        }
    }
    return sentences;
}

Change scrubbed(const Image& image) {
    PanelEditing editing(image);
    Change change{.image = image, .done = {}, .remarks = {}};
    std::string before = image.content();
    editing.enterIdentity(cells::serialNumber, "0");
    if (editing.bytes().compare(cells::serialNumber.first, 4, before, cells::serialNumber.first, 4) != 0) {
        change.done.emplace_back("serial number blanked");
    }
    for (int block = 0; block < detailedBlockCount; ++block) {
        if (fields::descriptorTag(image, static_cast<std::size_t>(block)) == fields::serialTextTag) {
            const auto base = static_cast<std::size_t>(detailedBlockBase(block));
            editing.enterDescriptorText(block, "");
            if (editing.bytes().compare(base, detailedBlockSize, before, base, detailedBlockSize) != 0) {
                change.done.push_back("serial text of descriptor " + std::to_string(block + 1) + " blanked");
            }
        }
    }
    change.image = withBytes(image, editing.bytes());
    if (change.done.empty()) {
        change.done.emplace_back("there is no serial number in block 0");
    }
    change.remarks = leftOf(change.image);
    return change;
}

int run(const RewriteOptions& options) {
    checkRewriteOptions(options);
    return rewriteFiles(options, &scrubbed);
}

} // namespace

Run addScrub(Syntax& syntax) {
    const auto options = std::make_shared<RewriteOptions>();
    addRewriteOptions(syntax, *options);
    syntax.footer(
        "The serial number becomes 0 and the texts of serial number descriptors blank, as the panels write them; the\n"
        "check sum of block 0 is put right. What identifies the monitor in other blocks, serial numbers and\n"
        "container IDs, stays and is told.\n\n"
        "  edidwb scrub -o share *.bin\n"
        "  edidwb scrub --in-place --backup monitor.bin\n\n"
        "Exit status: 0 all went well, 1 a file was refused or could not be written, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
