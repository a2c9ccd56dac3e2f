#include "cli/sync_option.h"

#include <CLI/CLI.hpp>

namespace wb::cli {

void addSyncOption(CLI::App& command, bool& sync) {
    command
        .add_flag_callback(
            "--no-sync", [&sync] { sync = false; },
            "Do not wait for the disk after each file: faster, but a power cut may leave empty ones")
        ->disable_flag_override();
}

} // namespace wb::cli
