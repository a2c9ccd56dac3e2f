#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "script/driver.h"
#include "support/temporary_folder.h"

/// The scenarios: scripts of whole sessions and the trace that each must leave, through whatever front end.
namespace wb::test {

struct Scenario {
    std::string name;
    std::filesystem::path script;
    std::filesystem::path expected;
};

inline std::ostream& operator<<(std::ostream& out, const Scenario& scenario) {
    return out << scenario.name;
}

/// All scenarios, by name.
inline std::vector<Scenario> scenarios() {
    std::vector<Scenario> found;
    for (const auto& entry : std::filesystem::directory_iterator(WORKBENCH_SOURCE_DIR "/tests/scenarios")) {
        std::filesystem::path path = entry.path();
        if (path.extension() == ".script") {
            found.push_back({path.stem().string(), path, path.replace_extension(".expected")});
        }
    }
    std::sort(found.begin(), found.end(), [](const Scenario& a, const Scenario& b) { return a.name < b.name; });
    return found;
}

/// The name of a scenario as a parameter of tests.
inline std::string scenarioTestName(const testing::TestParamInfo<Scenario>& info) {
    std::string name = info.param.name;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
    return name;
}

/// Runs the script of a scenario and compares `trace`, where the driver prints, with what is expected. A trace that
/// differs is told by the first line that does and the command that printed it, and kept as a file of the build folder.
testing::AssertionResult leavesItsTrace(const Scenario& scenario, script::Driver& driver, const std::string& trace);

/// The folder in which a scenario runs, its working folder while the object lives: new, with copies of the shared input
/// files and, in `samples`, of the samples.
class ScenarioFolder {
public:
    ScenarioFolder() : before_(std::filesystem::current_path()) {
        namespace fs = std::filesystem;
        fs::copy(WORKBENCH_SOURCE_DIR "/tests/scenarios/files", folder_.file("."), fs::copy_options::recursive);
        fs::copy(WORKBENCH_SOURCE_DIR "/samples", folder_.file("samples"), fs::copy_options::recursive);
        fs::current_path(folder_.file("."));
    }
    ScenarioFolder(const ScenarioFolder&) = delete;
    ScenarioFolder& operator=(const ScenarioFolder&) = delete;
    ~ScenarioFolder() { std::filesystem::current_path(before_); }

private:
    TemporaryFolder folder_;
    std::filesystem::path before_;
};

} // namespace wb::test
