#include <memory>

#include "cli/attempt.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/formats.h"
#include "cli/output.h"
#include "cli/program.h"
#include "cli/read_back.h"
#include "cli/syntax.h"

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

/// The image as the format can hold it, where the options allow to change it for that.
Image fitted(const Options& options, Image image, Remarks& remarks) {
    const std::size_t announced = image.announcedExtensions() + 1;
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

std::string convert(const Options& options, Program& program, Remarks& remarks) {
    const Contents contents = contentsOf(readInput(options.in), options.images);
    const bool odd = contents.isDataFile && contents.images.empty();
    if (odd && options.format == "hex") { // the export takes cells as they are, bytes or not
        program.loadDataFile(contents.input);
        return program.hexExport();
    }
    if (isFormOfBytes(options.format)) {
        return contentAs(options.format, fitted(options, onlyImageOf(contents), remarks));
    }
    if (contents.isDataFile) {
        program.loadDataFile(contents.input);
    } else if (options.format == "dat") {
        program.load(fitted(options, onlyImageOf(contents), remarks));
    } else {
        program.load(contents);
        const Remarks omissions = omissionsOf(onlyImageOf(contents));
        remarks.insert(remarks.end(), omissions.begin(), omissions.end());
    }
    std::string content = contentAs(options.format, program);
    if (options.format == "dat") {
        if (const auto loss = lossOnReadingBack(program, content)) {
            remarks.push_back("the data file does not read back as it is: " + *loss);
        }
    }
    return content;
}

/// Gives the content of the new file; tells of the boxes and what else came up on the way in any case.
std::string convertAndTell(const Options& options) {
    Program program(clockOf(options.date));
    Remarks remarks;
    const auto tell = [&] {
        complainOfBoxes(options.in, program.boxes());
        for (const std::string& remark : remarks) {
            complain(options.in, remark);
        }
    };
    try {
        std::string content = convert(options, program, remarks);
        tell();
        return content;
    } catch (...) {
        tell();
        throw;
    }
}

int run(const Options& options) {
    std::string content;
    const Existing existing = options.force ? Existing::Replace : Existing::Refuse;
    const bool good = attempt(options.in, [&] { content = convertAndTell(options); }) &&
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
