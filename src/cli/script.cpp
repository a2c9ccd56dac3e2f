#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/output.h"
#include "script/driver.h"
#include "script/script_error.h"
#include "shell/wiring.h"

namespace wb::cli {

namespace {

int runScript(std::istream& script, const std::string& name) {
    platform::headless::HeadlessPlatform platform;
    Workbench workbench(platform.services(), shell::wiring());
    script::ModelFrontEnd user(workbench);
    script::Driver driver({workbench, platform, user, [](const std::string& line) {
                               print(line + '\n');
                               flushOutput(); // who writes a script while it runs waits for this
                           }});
    try {
        driver.run(script);
    } catch (const script::ScriptError& error) {
        complain(name + ':' + std::to_string(error.line()), error.what());
        return wrongUse;
    }
    return success;
}

int run(const std::string& name) {
    try {
        if (name == standardStream) {
            const int status = runScript(std::cin, name);
            if (status == success && std::ferror(stdin) != 0) { // which std::cin reads, but takes for the end
                throw CliError(std::strerror(errno));
            }
            return status;
        }
        std::istringstream script(readInput(name).content);
        return runScript(script, name);
    } catch (const CliError& error) {
        complain(name, error.what());
        return somethingFailed;
    }
}

} // namespace

Run addScript(CLI::App& command) {
    const auto file = std::make_shared<std::string>(standardStream);
    command.add_option("FILE", *file, "The script; - (the default) is standard input")->type_name("");
    return [file] { return run(*file); };
}

} // namespace wb::cli
