#include <memory>
#include <utility>

#include "cli/attempt.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/formats.h"
#include "cli/output.h"
#include "cli/program.h"
#include "cli/read_back.h"
#include "cli/syntax.h"
#include "fields/announced_extensions.h"

namespace wb::cli {

namespace {

struct Options {
    std::string format;
    std::string in;
    std::string out;
    std::string date;
    ImageOptions images;
    bool force = false;
    bool cut = false;
    bool pad = false;
};

/// What is told of one file on the way.
using Remarks = std::vector<std::string>;

/// How many blocks are to be there: those that the image announces. A data file is that of the program, which knows
/// byte 126 alone.
std::size_t blocksFor(const std::string& format, const Image& image) {
    return 1 + (isFormOfBytes(format) ? fields::announcedExtensions(image) : image.announcedExtensions());
}

/// The image as the format can hold it, where the options allow to change it for that.
Image fitted(const Options& options, Image image, Remarks& remarks) {
    const std::size_t announced = blocksFor(options.format, image);
    if (image.blockCount() < announced) {
        if (!options.pad) {
            throw CliError("announces " + std::to_string(announced) + " blocks and has " +
                           std::to_string(image.blockCount()) + "; --pad writes the others as zeros");
        }
        remarks.push_back(blocksText(image.blockCount(), announced - 1) + " written as zeros");
        image = image.paddedTo(announced);
    }
    if (image.leftOver() != 0) {
        remarks.push_back(std::to_string(image.leftOver()) + " bytes after the last block left out");
    }
    if (!isFormOfBytes(options.format) && image.blockCount() > Image::editedBlocks) {
        if (!options.cut) {
            throw CliError(tooManyBlocks(image.blockCount()) + "; --cut leaves the others out");
        }
        remarks.push_back(blocksText(Image::editedBlocks, image.blockCount() - 1) + " left out");
        image = image.cutTo(Image::editedBlocks);
    }
    return image;
}

/// The conversion of one file.
class Conversion {
public:
    explicit Conversion(const Options& options) : options_(options), programs_(clockOf(options.date)) {}

    /// The content of the new file; tells of the boxes and what else came up on the way in any case.
    std::string contentAndTell() {
        try {
            std::string result = content();
            tell();
            if (program_ != nullptr) {
                programs_.giveBack(std::move(program_));
            }
            return result;
        } catch (...) {
            tell();
            throw;
        }
    }

private:
    std::string content() {
        const Contents contents = contentsOf(readInput(options_.in), options_.images);
        const bool odd = contents.isDataFile && contents.images.empty();
        if (odd && options_.format == "hex") { // the export takes cells as they are, bytes or not
            program().loadDataFile(contents.input);
            return program().hexExport();
        }
        if (isFormOfBytes(options_.format)) {
            return contentAs(options_.format, fitted(options_, onlyImageOf(contents), remarks_));
        }
        load(contents);
        std::string content = contentAs(options_.format, program());
        if (options_.format == "dat") {
            if (const auto loss = lossOnReadingBack(programs_, program(), content)) {
                remarks_.push_back("the data file does not read back as it is: " + *loss);
            }
        }
        return content;
    }

    void load(const Contents& contents) {
        if (contents.isDataFile) {
            program().loadDataFile(contents.input);
        } else if (options_.format == "dat") {
            program().load(fitted(options_, onlyImageOf(contents), remarks_));
        } else {
            program().load(contents);
            const Remarks omissions = omissionsOf(onlyImageOf(contents));
            remarks_.insert(remarks_.end(), omissions.begin(), omissions.end());
        }
    }

    /// Forms of bytes do without it.
    Program& program() {
        if (program_ == nullptr) {
            program_ = programs_.take();
        }
        return *program_;
    }

    void tell() const {
        if (program_ != nullptr) {
            complainOfBoxes(options_.in, program_->boxes());
        }
        for (const std::string& remark : remarks_) {
            complain(options_.in, remark);
        }
    }

    const Options& options_;
    Programs programs_;
    std::unique_ptr<Program> program_;
    Remarks remarks_;
};

int run(const Options& options) {
    std::string content;
    const Existing existing = options.force ? Existing::Replace : Existing::Refuse;
    const bool good = attempt(options.in, [&] { content = Conversion(options).contentAndTell(); }) &&
                      attempt(options.out, [&] { writeFile(options.out, content, existing); });
    return good ? success : somethingFailed;
}

} // namespace

Run addConvert(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    syntax.option("--to", "FORMAT", &formatHelp, &options->format).require().oneOf(&formatNames);
    syntax.operand("IN", "File in any form; - is standard input", &options->in).require();
    syntax.operand("OUT", "File to be written; - is standard output", &options->out).require();
    syntax.flag("-f,--force", "Replace OUT if it exists", options->force);
    syntax.flag("--cut", "Leave out the blocks that a data file does not hold", options->cut);
    syntax.flag("--pad", "Write blocks that are announced and missing as zeros", options->pad);
    addClockOption(syntax, options->date);
    addImageOptions(syntax, options->images);
    syntax.footer(
        "Forms of bytes get every block as it is in IN. A data file and a report get two blocks as the\n"
        "program holds them after decoding: a flag of a detailed timing may differ from IN, and the\n"
        "check sum stays as it is.\n\n"
        "  edidwb convert --to dat monitor.bin monitor.DAT\n"
        "  xrandr --verbose | edidwb convert --output-name HDMI-1 --to c - -\n\n"
        "Exit status: 0 all went well, 1 a file could not be read or written or is no image, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
