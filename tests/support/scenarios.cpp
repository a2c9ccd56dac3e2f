#include "support/scenarios.h"

#include <fstream>

#include "script/script_error.h"

namespace wb::test {

namespace {

struct ScriptLine {
    std::string text;
    std::size_t traceEnd; ///< length of the trace after it
};

std::string placeOf(const Scenario& scenario, std::size_t line) {
    return scenario.script.string() + ':' + std::to_string(line + 1) + ": ";
}

/// The line of a text that begins at `start`.
std::string lineAt(const std::string& text, std::size_t start) {
    return start < text.size() ? text.substr(start, text.find('\n', start) - start) : "(the end)";
}

/// Where the first line begins in which two texts differ.
std::size_t firstDifferentLine(const std::string& a, const std::string& b) {
    const auto place = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    const auto before = a.substr(0, static_cast<std::size_t>(place)).rfind('\n');
    return before == std::string::npos ? 0 : before + 1;
}

/// Writes the trace below the build folder; each test has a file of its own, since tests run side by side.
std::filesystem::path keepTrace(const Scenario& scenario, const std::string& trace) {
    std::string suite = testing::UnitTest::GetInstance()->current_test_info()->test_suite_name();
    std::replace(suite.begin(), suite.end(), '/', '-');
    const std::filesystem::path folder = std::filesystem::path(WORKBENCH_TRACES) / suite;
    std::filesystem::create_directories(folder);
    std::filesystem::path file = folder / (scenario.name + ".actual");
    std::ofstream(file, std::ios::binary) << trace;
    return file;
}

testing::AssertionResult difference(const Scenario& scenario, const std::vector<ScriptLine>& lines,
                                    const std::string& expected, const std::string& trace) {
    const std::size_t start = firstDifferentLine(expected, trace);
    const auto line =
        std::find_if(lines.begin(), lines.end(), [&](const ScriptLine& each) { return each.traceEnd > start; });
    const std::string command = line == lines.end()
                                    ? scenario.script.string() + ": behind the last line"
                                    : placeOf(scenario, static_cast<std::size_t>(line - lines.begin())) + line->text;
    const std::string actual = keepTrace(scenario, trace).string();
    return testing::AssertionFailure() << command << "\n  expected: " << lineAt(expected, start)
                                       << "\n    actual: " << lineAt(trace, start) << "\ndiff -u --text '"
                                       << scenario.expected.string() << "' '" << actual << "'\n";
}

} // namespace

testing::AssertionResult leavesItsTrace(const Scenario& scenario, script::Driver& driver, const std::string& trace) {
    std::ifstream script(scenario.script, std::ios::binary);
    std::vector<ScriptLine> lines;
    for (std::string text; std::getline(script, text);) {
        try {
            driver.runLine(text);
        } catch (const script::ScriptError& error) {
            return testing::AssertionFailure() << placeOf(scenario, lines.size()) << error.what();
        }
        lines.push_back({text, trace.size()});
    }
    if (!std::filesystem::exists(scenario.expected)) {
        return testing::AssertionFailure() << "run scripts/regenerate-expected " << scenario.name << " and review";
    }
    const std::string expected = TemporaryFolder::read(scenario.expected.string());
    return trace == expected ? testing::AssertionSuccess() : difference(scenario, lines, expected, trace);
}

} // namespace wb::test
