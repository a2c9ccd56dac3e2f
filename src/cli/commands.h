#pragma once

#include <functional>

namespace CLI {
class App;
}

/// The subcommands. Each adds itself with its options and, when the user has chosen it, leaves what it does, which
/// gives the exit status.
namespace wb::cli {

/// Exit statuses.
inline constexpr int success = 0;
inline constexpr int somethingFailed = 1;
inline constexpr int wrongUse = 2;

using Chosen = std::function<int()>;

void addTranslate(CLI::App& app, Chosen& chosen);
void addConvert(CLI::App& app, Chosen& chosen);
void addCheck(CLI::App& app, Chosen& chosen);
void addRead(CLI::App& app, Chosen& chosen);
void addMonitors(CLI::App& app, Chosen& chosen);
void addScript(CLI::App& app, Chosen& chosen);

} // namespace wb::cli
