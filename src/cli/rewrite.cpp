#include "cli/rewrite.h"

#include <filesystem>

#include "cli/attempt.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/report_places.h"
#include "cli/sync_option.h"
#include "cli/syntax.h"
#include "core/base/file_names.h"
#include "core/base/text.h"
#include "fields/announced_extensions.h"
#include "forms/writers.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

constexpr const char* backupExtension = ".bak";
constexpr const char* binaryExtension = ".bin";

Existing existingOf(const RewriteOptions& options) {
    return options.force ? Existing::Replace : Existing::Refuse;
}

/// A text without blanks and line ends, in one letter case.
std::string squeezed(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') {
            result += c;
        }
    }
    return upperCase(result);
}

/// The form of bytes in which a file holds the image and nothing else, so that writing it anew loses nothing but blanks
/// and the letter case of digits; null where there is none.
const forms::WrittenForm* formOf(const std::string& content, const Image& image) {
    if (content == image.content()) {
        return forms::writtenForm("bin");
    }
    for (const forms::WrittenForm& form : forms::writtenForms()) {
        if (form.name != "bin" && squeezed(form.write(image)) == squeezed(content)) {
            return &form;
        }
    }
    return nullptr;
}

void requireWhole(const Image& image) {
    const std::size_t announced = fields::announcedExtensions(image) + 1;
    if (image.blockCount() < announced) {
        throw CliError("announces " + std::to_string(announced) + " blocks and has " +
                       std::to_string(image.blockCount()) + "; only whole images are changed");
    }
    if (image.leftOver() != 0) {
        throw CliError("has " + std::to_string(image.leftOver()) +
                       " bytes after the last block; only whole images are changed");
    }
}

void tell(const std::string& name, const Change& change) {
    for (const std::string& remark : change.remarks) {
        complain(name, remark);
    }
    for (const std::string& sentence : change.done) {
        std::string line = name;
        line += ": ";
        line += sentence;
        printText(inOneLine(line) + '\n');
    }
}

bool makeFolder(const RewriteOptions& options) {
    if (!options.outputFolder || options.dryRun) {
        return true;
    }
    std::error_code error;
    fs::create_directories(pathOf(*options.outputFolder), error);
    if (error) {
        complain(*options.outputFolder, reasonOf(error));
    }
    return !error;
}

/// The form of bytes whose name is the ending of the file's, else binary.
const forms::WrittenForm& formOfEnding(const std::string& name) {
    const std::string ending = upperCase(nameOf(pathOf(name).extension()));
    for (const forms::WrittenForm& form : forms::writtenForms()) {
        if (ending == '.' + upperCase(form.name)) {
            return form;
        }
    }
    return *forms::writtenForm("bin");
}

/// All files, before the first is changed: what is written must not be taken for one of them.
/// Gives whether every folder could be read.
bool keepNames(const RewriteOptions& options, KeptFiles& files) {
    FileList list(options.files);
    while (const std::optional<BatchFile> file = list.next()) {
        if (options.inPlace && file->name == standardStream) {
            throw UsageError("standard input cannot be changed in place");
        }
        files.add(*file);
    }
    return list.complete();
}

/// Takes one file after the other.
class Rewriter {
public:
    Rewriter(const RewriteOptions& options, KeptFiles& files, const Changer& change)
        : options_(options), change_(change) {
        if (options.outputFolder) {
            places_.emplace(files, ReportPlaces::Options{
                                       .folder = pathOf(*options.outputFolder), .extension = "", .result = "new file"});
        }
    }

    /// A failure is a CliError.
    void rewrite(const BatchFile& file) {
        const Input input = readInput(file.name);
        const Contents contents = contentsOf(input, options_.images);
        const Image& image = onlyImageOf(contents);
        requireWhole(image);
        const forms::WrittenForm* const form = formOf(input.content, image);
        if (options_.inPlace && form == nullptr) {
            throw CliError("holds more than the bytes of an image and is not replaced; -o DIR writes it as binary");
        }
        const Change change = change_(image);
        if (!options_.dryRun) {
            write(file, input, image, change.image, form);
        }
        tell(file.name, change);
    }

private:
    void write(const BatchFile& file, const Input& input, const Image& before, const Image& after,
               const forms::WrittenForm* form) {
        const forms::WrittenForm& written = form != nullptr ? *form : *forms::writtenForm("bin");
        if (!options_.inPlace) {
            writeBeside(newPlace(file, form != nullptr), written.write(after), "");
        } else if (after.content() != before.content()) {
            if (options_.backup) {
                keep(input);
            }
            writeFile(input.name, written.write(after), {.existing = Existing::Require, .sync = options_.sync});
        }
    }

    /// Writes a file other than the one that is changed; a failure names it.
    void writeBeside(const std::string& place, const std::string& content, const std::string& accessOf) const {
        try {
            writeFile(place, content, {.existing = existingOf(options_), .sync = options_.sync, .accessOf = accessOf});
        } catch (const CliError& error) {
            throw CliError(place + ": " + error.what());
        }
    }

    /// Writes the old content beside the file, with its permissions.
    void keep(const Input& input) const { writeBeside(input.name + backupExtension, input.content, input.name); }

    /// The file of the output folder for one of the input; its extension stays where its form does.
    std::string newPlace(const BatchFile& file, bool formStays) {
        const bool extensionStays = formStays && file.name != standardStream;
        return places_->take(file, "", extensionStays ? nameOf(pathOf(file.name).extension()) : binaryExtension);
    }

    const RewriteOptions& options_;
    const Changer& change_;
    std::optional<ReportPlaces> places_; ///< there where the new files go to a folder
};

} // namespace

void addRewriteOptions(Syntax& syntax, RewriteOptions& options) {
    addFileOptions(syntax, options.files);
    syntax
        .option("-o,--output-dir", "DIR",
                "Write each image to DIR under its name: in its form where the file holds nothing but the bytes of "
                "the image, else as binary",
                &options.outputFolder)
        .refuseEmpty();
    syntax.flag("--in-place", "Replace each file, which must hold nothing else", options.inPlace);
    syntax.flag("--backup", "With --in-place, keep the old file as FILE.bak", options.backup);
    syntax.flag("-f,--force", "Replace files of DIR, and backups, that exist already", options.force);
    syntax.flag("--dry-run", "Tell what would be changed and write nothing", options.dryRun);
    addSyncOption(syntax, options.sync);
    addImageOptions(syntax, options.images);
}

void checkRewriteOptions(const RewriteOptions& options) {
    if (options.inPlace && options.outputFolder) {
        throw UsageError("--in-place and --output-dir exclude each other");
    }
    if (!options.inPlace && !options.outputFolder && !options.dryRun) {
        throw UsageError("one of --output-dir, --in-place and --dry-run is required");
    }
    if (options.backup && !options.inPlace) {
        throw UsageError("--backup belongs to --in-place");
    }
}

int rewriteFiles(const RewriteOptions& options, const Changer& change) {
    KeptFiles files;
    const bool complete = keepNames(options, files);
    if (!makeFolder(options)) {
        return somethingFailed;
    }
    Rewriter rewriter(options, files, change);
    int status = complete ? success : somethingFailed;
    while (const std::optional<BatchFile> file = files.next()) {
        if (!attempt(file->name, [&] { rewriter.rewrite(*file); })) {
            status = somethingFailed;
        }
    }
    return status;
}

int writeNewImage(const RewriteOptions& options, const std::string& name, const std::function<Change()>& make) {
    if (!makeFolder(options)) {
        return somethingFailed;
    }
    const std::string place = options.outputFolder ? nameOf(pathOf(*options.outputFolder) / pathOf(name)) : name;
    const bool made = attempt(place, [&] {
        const Change change = make();
        if (!options.dryRun) {
            writeFile(place, formOfEnding(name).write(change.image),
                      {.existing = existingOf(options), .sync = options.sync});
        }
        tell(place, change);
    });
    return made ? success : somethingFailed;
}

Image withBytes(const Image& image, const std::string& bytes) {
    return *Image::fromBytes(bytes, image.origin());
}

std::optional<std::string> mendChecksum(std::string& bytes, std::size_t block) {
    const std::size_t last = block * Image::blockSize + checksumCell;
    unsigned sum = 0;
    for (std::size_t i = block * Image::blockSize; i < last; ++i) {
        sum += static_cast<unsigned char>(bytes[i]);
    }
    const auto old = static_cast<unsigned char>(bytes[last]);
    const auto right = static_cast<unsigned char>(256 - sum % 256);
    if (old == right) {
        return std::nullopt;
    }
    bytes[last] = static_cast<char>(right);
    return "block " + std::to_string(block) + ": check sum " + ByteToHex2(old) + " becomes " + ByteToHex2(right);
}

} // namespace wb::cli
