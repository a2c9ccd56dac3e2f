#include <CLI/CLI.hpp>
#include <memory>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/formats.h"
#include "cli/output.h"
#include "cli/program.h"

namespace wb::cli {

namespace {

struct Options {
    std::string format;
    std::string in;
    std::string out;
    bool force = false;
};

/// Gives the content of the new file; tells of the boxes that came up on the way in any case.
std::string convert(const Options& options) {
    Program program;
    const auto tellBoxes = [&] {
        for (const std::string& box : program.boxes()) {
            complain(options.in, inOneLine(box));
        }
    };
    try {
        program.load(readInput(options.in));
        std::string content = contentAs(options.format, program);
        tellBoxes();
        return content;
    } catch (const CliError&) {
        tellBoxes();
        throw;
    }
}

int run(const Options& options) {
    std::string content;
    try {
        content = convert(options);
    } catch (const CliError& error) {
        complain(options.in, error.what());
        return somethingFailed;
    }
    try {
        writeFile(options.out, content, options.force ? Existing::Replace : Existing::Refuse);
    } catch (const CliError& error) {
        complain(options.out, error.what());
        return somethingFailed;
    }
    return success;
}

} // namespace

Run addConvert(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("--to", options->format, formatHelp)
        ->type_name("FORMAT")
        ->required()
        ->check(CLI::IsMember(formatNames()))
        ->take_last();
    command.add_option("IN", options->in, "File in any format; - is standard input")->type_name("")->required();
    command.add_option("OUT", options->out, "File to be written; - is standard output")->type_name("")->required();
    command.add_flag("-f,--force", options->force, "Replace OUT if it exists")->disable_flag_override();
    command.footer(
        "OUT gets the image as the program holds it after decoding: a flag of a detailed\n"
        "timing may differ from IN, and the check sum stays as it is.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
