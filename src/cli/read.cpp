#include <CLI/CLI.hpp>
#include <memory>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/formats.h"
#include "cli/output.h"
#include "cli/program.h"
#include "cli/system.h"

namespace wb::cli {

namespace {

struct Options {
    std::string format = "report";
    SystemOptions system;
};

int run(const Options& options) {
    try {
        const std::unique_ptr<platform::Registry> registry = systemRegistry(options.system);
        Program program(*registry);
        const bool located = program.loadStoredEdid();
        const std::string content = located ? contentAs(options.format, program) : "";
        for (const std::string& box : program.boxes()) {
            complain(inOneLine(box));
        }
        print(content);
        return located ? success : somethingFailed;
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
}

} // namespace

Run addRead(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("--to", options->format, std::string(formatHelp) + ", the default")
        ->type_name("FORMAT")
        ->check(CLI::IsMember(formatNames()))
        ->take_last();
    addSystemOptions(command, options->system);
    return [options] { return run(*options); };
}

} // namespace wb::cli
