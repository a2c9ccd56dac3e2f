#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <memory>

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
    if (name == standardStream) {
        return runScript(std::cin, name);
    }
    try {
        std::istringstream script(readInput(name).content);
        return runScript(script, name);
    } catch (const CliError& error) {
        complain(name, error.what());
        return somethingFailed;
    }
}

} // namespace

void addScript(CLI::App& app, Chosen& chosen) {
    CLI::App* command = app.add_subcommand("script", "Drive the screens of the program by a script");
    const auto file = std::make_shared<std::string>(standardStream);
    command->add_option("FILE", *file, "The script; - (the default) is standard input")->type_name("");
    command->callback([file, &chosen] { chosen = [file] { return run(*file); }; });
}

} // namespace wb::cli
