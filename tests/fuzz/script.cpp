#include <algorithm>
#include <filesystem>
#include <sstream>

#include "fuzz/targets.h"
#include "script/script_runner.h"
#include "support/temporary_folder.h"

namespace wb::fuzz {

namespace {

/// Makes a folder of its own the current one, and removes it in the end.
class Sandbox {
public:
    Sandbox() : before_(std::filesystem::current_path()) { std::filesystem::current_path(folder_.file(".")); }
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;
    ~Sandbox() { std::filesystem::current_path(before_); }

private:
    std::filesystem::path before_;
    test::TemporaryFolder folder_;
};

/// Whether no argument can name a place outside the current folder. What cannot be parsed names none.
bool staysInside(std::string_view line) {
    try {
        const auto command = script::parseLine(line);
        return !command || std::none_of(command->arguments.begin(), command->arguments.end(), [](const auto& argument) {
            return argument.text.find('/') != std::string::npos;
        });
    } catch (const script::ScriptError&) {
        return true;
    }
}

} // namespace

void script(std::string_view input) {
    constexpr std::size_t mostLines = 40;
    const Sandbox sandbox;
    script::ScriptRunner runner;
    std::istringstream lines{std::string(input)};
    std::string line;
    for (std::size_t count = 0; count < mostLines && std::getline(lines, line); ++count) {
        if (staysInside(line)) {
            runner.run(line + '\n'); // a mistake does not end the session, so that what follows is reached
        }
    }
}

} // namespace wb::fuzz
