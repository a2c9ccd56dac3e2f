#include <memory>

#include "adapters/hotplug.h"
#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/monitor_list.h"
#include "cli/monitor_watch.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/stored_edid.h"
#include "cli/syntax.h"
#include "cli/system.h"

namespace wb::cli {

namespace {

struct Options {
    std::string format = "text";
    SystemOptions system;
    bool watch = false;
};

/// `event` is what happened to the monitor; empty where the list is all.
void tell(std::string_view event, const Monitor& monitor, bool taken, const Options& options) {
    if (outputFormatOf(options.format) == OutputFormat::Json) {
        print(monitorJson(monitor, taken, event) + '\n');
        return;
    }
    std::string line(event == "listed" ? "" : event);
    line += line.empty() ? "" : ": ";
    line += event == "disconnected" ? monitor.name : monitorLine(monitor, taken);
    printText(inOneLine(line) + '\n');
}

void list(const Options& options) {
    const std::vector<Monitor> monitors = attachedMonitors(options.system);
    const Monitor* const taken = takenByRead(monitors);
    for (const Monitor& monitor : monitors) {
        tell({}, monitor, &monitor == taken, options);
    }
}

void watch(const Options& options) {
    if (!adapters::canWatchMonitors()) {
        throw CliError("this edidwb was built without libudev, which --watch needs");
    }
    try {
        const std::unique_ptr<adapters::Hotplug> source = adapters::watchMonitors();
        MonitorWatch(
            [&] { return attachedMonitors(options.system); },
            [&](std::string_view event, const Monitor& monitor, bool taken) { tell(event, monitor, taken, options); })
            .run(*source);
    } catch (const std::system_error& error) {
        throw CliError(std::string("cannot watch for changes: ") + error.what());
    }
}

int run(const Options& options) {
    try {
        options.watch ? watch(options) : list(options);
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
    return complainOfObstacles(options.system) ? success : somethingFailed;
}

} // namespace

Run addMonitors(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    addFormatOption(syntax, options->format, &textAndJson);
    syntax.flag("--watch", "Go on and tell of each monitor that is connected, changed or disconnected, until Ctrl+C",
                options->watch);
    addSystemOptions(syntax, options->system);
    syntax.footer(
        "A line for each attached monitor: its connector, where its EDID is stored, how many bytes of it (\"no EDID\" "
        "where\nnone is, \"not permitted\" where you may not read it), maker, model and preferred mode, and which one "
        "\"read\" takes\nwithout a name.\n\n"
        "  edidwb monitors\n"
        "  edidwb monitors --format json | jq -r 'select(.state == \"none\") | .connector'\n"
        "  edidwb monitors --watch\n\n"
        "Exit status: 0 all went well, and after --watch was ended by SIGINT or SIGTERM, 1 the system's list of\n"
        "monitors, or a part of it, cannot be read or watched, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
