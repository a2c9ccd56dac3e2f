#pragma once

#include <string>
#include <utility>

#include "platform/headless/headless_platform.h"
#include "script/driver.h"
#include "shell/wiring.h"
#include "support/scenarios.h"

namespace wb::test {

/// A program without a view, driven by the lines of a script in a scenario's folder.
struct ModelSession {
    ModelSession()
        : workbench(platform.services(), shell::wiring()),
          model(workbench),
          driver({workbench, platform, model, [this](const std::string& line) { trace += line + '\n'; }}) {}

    /// Runs one line and gives what it left in the trace.
    std::string run(const std::string& line) {
        driver.runLine(line);
        return std::exchange(trace, {});
    }

    ScenarioFolder folder;
    platform::headless::HeadlessPlatform platform;
    Workbench workbench;
    script::ModelFrontEnd model;
    std::string trace;
    script::Driver driver;
};

} // namespace wb::test
