#pragma once

#include <functional>

/// The subcommands. Each adds its options to the command and gives what it does once they are read, which gives the
/// exit status.
namespace wb::cli {

class Syntax;

/// Exit statuses.
inline constexpr int success = 0;
inline constexpr int somethingFailed = 1;
inline constexpr int wrongUse = 2;
/// That of "diff" for all failures: somethingFailed would tell that the images differ.
inline constexpr int imagesNotCompared = 2;

using Run = std::function<int()>;

Run addTranslate(Syntax& syntax);
Run addConvert(Syntax& syntax);
Run addCheck(Syntax& syntax);
Run addInspect(Syntax& syntax);
Run addDiff(Syntax& syntax);
Run addRepair(Syntax& syntax);
Run addScrub(Syntax& syntax);
Run addSet(Syntax& syntax);
Run addRead(Syntax& syntax);
Run addMonitors(Syntax& syntax);
Run addOverride(Syntax& syntax);
Run addScript(Syntax& syntax);

} // namespace wb::cli
