#include <CLI/CLI.hpp>
#include <memory>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/monitor_list.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/system.h"

namespace wb::cli {

namespace {

struct Options {
    std::string format = "text";
    SystemOptions system;
};

void tell(const Monitor& monitor, bool taken, const Options& options) {
    if (outputFormatOf(options.format) == OutputFormat::Json) {
        print(monitorJson(monitor, taken) + '\n');
    } else {
        printText(inOneLine(monitorLine(monitor, taken)) + '\n');
    }
}

int run(const Options& options) {
    try {
        const std::vector<Monitor> monitors = attachedMonitors(options.system);
        const Monitor* const taken = takenByRead(monitors);
        for (const Monitor& monitor : monitors) {
            tell(monitor, &monitor == taken, options);
        }
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
    const std::vector<std::string> obstacles = obstaclesOf(options.system);
    for (const std::string& obstacle : obstacles) {
        complain(obstacle);
    }
    return obstacles.empty() ? success : somethingFailed;
}

} // namespace

Run addMonitors(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    addFormatOption(command, options->format, {"text", "json"});
    addSystemOptions(command, options->system);
    command.footer(
        "A line for each attached monitor: its connector, where its EDID is stored, how many bytes of it (\"no EDID\" "
        "where\nnone is, \"not permitted\" where you may not read it), maker, model and preferred mode, and which one "
        "\"read\" takes\nwithout a name.\n\n"
        "  edidwb monitors\n"
        "  edidwb monitors --format json | jq -r 'select(.state == \"none\") | .connector'\n\n"
        "Exit status: 0 all went well, 1 the system's list of monitors, or a part of it, cannot be read, 2 wrong "
        "usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
