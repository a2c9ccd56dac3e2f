#pragma once

#include <sstream>
#include <string>

#include "platform/headless/headless_platform.h"
#include "script/driver.h"
#include "script/script_error.h"
#include "shell/wiring.h"

namespace wb::script {

/// A program that scripts drive piece by piece.
class ScriptRunner {
public:
    /// The trace of the script, and where it ended early "LINE: MESSAGE".
    std::string run(const std::string& script) {
        trace_.clear();
        std::istringstream lines(script);
        try {
            driver_.run(lines);
        } catch (const ScriptError& error) {
            trace_ += std::to_string(error.line()) + ": " + error.what() + '\n';
        }
        return trace_;
    }

    Workbench& workbench() { return workbench_; }

private:
    platform::headless::HeadlessPlatform platform_;
    Workbench workbench_{platform_.services(), shell::wiring()};
    ModelFrontEnd user_{workbench_};
    std::string trace_;
    Driver driver_{{workbench_, platform_, user_, [this](const std::string& line) { trace_ += line + '\n'; }}};
};

inline std::string runScript(const std::string& script) {
    return ScriptRunner().run(script);
}

} // namespace wb::script
