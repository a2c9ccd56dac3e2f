#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/file_list.h"
#include "cli/image_input.h"
#include "core/base/image.h"

/// What the commands that change images have in common: where the images come from and where they go.
namespace wb::cli {

class Syntax;

struct RewriteOptions {
    FileOptions files;
    std::optional<std::string> outputFolder;
    ImageOptions images;
    bool inPlace = false;
    bool backup = false;
    bool force = false;
    bool dryRun = false;
    bool sync = true;
};

/// The options of addFileOptions and addImageOptions, -o, --in-place, --backup, --force, --dry-run and --no-sync.
void addRewriteOptions(Syntax& syntax, RewriteOptions& options);
/// Where the options contradict each other it is a UsageError.
void checkRewriteOptions(const RewriteOptions& options);

/// What becomes of an image.
struct Change {
    Image image;
    std::vector<std::string> done;    ///< what was changed, for standard output
    std::vector<std::string> remarks; ///< what the user should know besides, for standard error
};

/// Changes one image; a CliError leaves its file as it is.
using Changer = std::function<Change(const Image&)>;

/// Changes the only image of each file, which must have every block that it announces and nothing behind them, and
/// writes it. Gives the exit status.
int rewriteFiles(const RewriteOptions& options, const Changer& change);

/// Writes one new image, in the form of bytes that the ending of its name tells, or as binary; with an output folder
/// there. Gives the exit status.
int writeNewImage(const RewriteOptions& options, const std::string& name, const std::function<Change()>& make);

/// An image with other bytes, at least one block of them.
Image withBytes(const Image& image, const std::string& bytes);

/// Brings the check sum in line, the last byte of a block, which makes the sum of all its bytes 0 modulo 256. Gives a
/// sentence; nothing where it was right.
std::optional<std::string> mendChecksum(std::string& bytes, std::size_t block);

} // namespace wb::cli
