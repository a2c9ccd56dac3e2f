#pragma once

#include <functional>

namespace CLI {
class App;
}

/// The subcommands. Each adds its options to the command and gives what it does once they are read, which gives the
/// exit status.
namespace wb::cli {

/// Exit statuses.
inline constexpr int success = 0;
inline constexpr int somethingFailed = 1;
inline constexpr int wrongUse = 2;

using Run = std::function<int()>;

Run addTranslate(CLI::App& command);
Run addConvert(CLI::App& command);
Run addCheck(CLI::App& command);
Run addInspect(CLI::App& command);
Run addDiff(CLI::App& command);
Run addRepair(CLI::App& command);
Run addScrub(CLI::App& command);
Run addSet(CLI::App& command);
Run addRead(CLI::App& command);
Run addMonitors(CLI::App& command);
Run addOverride(CLI::App& command);
Run addScript(CLI::App& command);

} // namespace wb::cli
