#include <CLI/CLI.hpp>
#include <memory>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/system.h"

namespace wb::cli {

namespace {

int run(const SystemOptions& options) {
    try {
        for (const Monitor& monitor : attachedMonitors(options)) {
            const std::string bytes = monitor.bytes == 0 ? "no EDID" : std::to_string(monitor.bytes) + " bytes";
            print(monitor.name + ": " + monitor.source + ", " + bytes + '\n');
        }
        return success;
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
}

} // namespace

Run addMonitors(CLI::App& command) {
    const auto options = std::make_shared<SystemOptions>();
    addSystemOptions(command, *options);
    return [options] { return run(*options); };
}

} // namespace wb::cli
