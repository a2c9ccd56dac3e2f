#include "cli/sync_option.h"

#include "cli/syntax.h"

namespace wb::cli {

void addSyncOption(Syntax& syntax, bool& sync) {
    syntax
        .flag("--no-sync", "Do not wait for the disk after each file: faster, but a power cut may leave empty ones",
              sync)
        .sets(false);
}

} // namespace wb::cli
