#include <memory>

#include "cli/commands.h"
#include "cli/rewrite.h"
#include "cli/syntax.h"

namespace wb::cli {

namespace {

Change repaired(const Image& image) {
    std::string bytes = image.content();
    Change change{.image = image, .done = {}, .remarks = {}};
    for (std::size_t block = 0; block < image.blockCount(); ++block) {
        if (const auto sentence = mendChecksum(bytes, block)) {
            change.done.push_back(*sentence);
        }
    }
    change.image = withBytes(image, bytes);
    if (change.done.empty()) {
        change.done.emplace_back("every check sum is right");
    }
    return change;
}

int run(const RewriteOptions& options) {
    checkRewriteOptions(options);
    return rewriteFiles(options, &repaired);
}

} // namespace

Run addRepair(Syntax& syntax) {
    const auto options = std::make_shared<RewriteOptions>();
    addRewriteOptions(syntax, *options);
    syntax.footer(
        "The last byte of every block becomes what makes the sum of the block 0, and no other byte changes.\n"
        "An image that lacks a block, or has bytes behind its last one, is refused.\n\n"
        "  edidwb repair --dry-run *.bin\n"
        "  edidwb repair --in-place --backup monitor.bin\n\n"
        "Exit status: 0 all went well, 1 a file was refused or could not be written, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
