#include <algorithm>
#include <memory>

#include "cli/commands.h"
#include "cli/output.h"
#include "cli/panel_editing.h"
#include "cli/rewrite.h"
#include "cli/syntax.h"
#include "core/base/text.h"
#include "fields/descriptors.h"
#include "fields/reading.h"

namespace wb::cli {

namespace {

/// What is left that may tell one monitor from another.
std::vector<std::string> leftOf(const Image& image) {
    std::vector<std::string> sentences;
    for (const fields::Field& field : fields::read(image).fields) {
        const auto* const number = std::get_if<std::int64_t>(&field.value);
        const bool isSerial = upperCase(field.label).find("SERIAL NUMBER") != std::string::npos;
        if (field.where.front().byte >= Image::blockSize && isSerial && (number == nullptr || *number != 0)) {
            sentences.push_back("left as it is: " + field.path + ", " + field.text);
        }
    }
    for (int block = 0; block < detailedBlockCount; ++block) {
        if (holdsDescriptor(image, block, fields::textTag)) {
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
        if (holdsDescriptor(image, block, fields::serialTextTag)) {
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
        "check sum of block 0 is put right. Serial numbers in other blocks stay, and are told.\n\n"
        "  edidwb scrub -o share *.bin\n"
        "  edidwb scrub --in-place --backup monitor.bin\n\n"
        "Exit status: 0 all went well, 1 a file was refused or could not be written, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
