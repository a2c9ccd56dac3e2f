#pragma once

namespace CLI {
class App;
}

namespace wb::cli {

/// --no-sync, which sets `sync` to false. For commands that write many files, each of which costs a wait for the disk.
void addSyncOption(CLI::App& command, bool& sync);

} // namespace wb::cli
