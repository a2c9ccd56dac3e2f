#include <CLI/CLI.hpp>
#include <memory>

#include "cli/cli_error.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/formats.h"
#include "cli/output.h"
#include "cli/program.h"
#include "cli/system.h"

namespace wb::cli {

namespace {

struct Options {
    std::string format = "report";
    std::string date;
    SystemOptions system;
};

std::string contentOf(const Options& options, Program& program, const Image& image) {
    if (isFormOfBytes(options.format)) {
        return contentAs(options.format, image);
    }
    program.load(image);
    return contentAs(options.format, program);
}

int run(const Options& options) {
    try {
        const std::unique_ptr<platform::Registry> registry = systemRegistry(options.system);
        Program program(*registry, clockOf(options.date));
        const std::optional<Image> image = program.storedImage();
        const std::string content = image ? contentOf(options, program, *image) : "";
        complainOfBoxes({}, program.boxes());
        if (image && !isFormOfBytes(options.format)) {
            for (const std::string& omission : omissionsOf(*image)) {
                complain(omission);
            }
        }
        options.format == "report" ? printText(content) : print(content);
        return image ? success : somethingFailed;
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
}

} // namespace

Run addRead(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("--to", options->format, formatHelp() + "; report is the default")
        ->type_name("FORMAT")
        ->check(CLI::IsMember(formatNames()))
        ->take_last();
    addClockOption(command, options->date);
    addSystemOptions(command, options->system);
    return [options] { return run(*options); };
}

} // namespace wb::cli
