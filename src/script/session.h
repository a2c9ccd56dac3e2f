#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/workbench.h"
#include "platform/headless/headless_platform.h"
#include "script/front_end.h"
#include "script/parser.h"

namespace wb::script {

/// What the commands of a script work on. The referred objects outlive the script.
struct Session {
    Workbench& workbench;
    platform::headless::HeadlessPlatform& platform;
    FrontEnd& frontEnd;
    /// Takes each line of the trace, without its line end.
    std::function<void(const std::string& line)> print;
    /// What `$NAME` stands for.
    Substitutions substitutions{};
    /// Whether a refusal, and a box that has no queued answer, is a failure.
    bool strict = false;
};

/// Prints "NAME = VALUE".
void printValue(const Session& session, std::string_view name, std::string_view value);

/// Prints a text between "--- NAME" and "--- end", each CR LF as a line end.
void printBlock(const Session& session, std::string_view name, std::string_view text);

} // namespace wb::script
