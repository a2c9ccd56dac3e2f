#pragma once

namespace wb::cli {

class Syntax;

/// --no-sync, which sets `sync` to false. For commands that write many files, each of which costs a wait for the disk.
void addSyncOption(Syntax& syntax, bool& sync);

} // namespace wb::cli
