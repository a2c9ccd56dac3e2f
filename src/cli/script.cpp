#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>

#include "cli/attempt.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/script_files.h"
#include "cli/syntax.h"
#include "script/driver.h"
#include "shell/wiring.h"

namespace wb::cli {

namespace {

struct Options {
    std::string file = standardStream;
    std::vector<std::string> settings;
    bool strict = false;
};

script::Substitutions substitutionsOf(const std::vector<std::string>& settings) {
    script::Substitutions substitutions;
    for (const std::string& setting : settings) {
        const std::size_t sign = setting.find('=');
        const std::string name = setting.substr(0, sign);
        if (sign == std::string::npos || !script::isSubstitutionName(name)) {
            throw UsageError("--set takes NAME=VALUE with a name of letters, digits and underscores, not '" + setting +
                             "'");
        }
        substitutions[name] = setting.substr(sign + 1);
    }
    return substitutions;
}

/// A person at a terminal goes on after an error, which counts in the exit status all the same.
enum class AfterError { End, GoOn };

int runScript(std::istream& script, const Options& options, AfterError afterError) {
    platform::headless::HeadlessPlatform platform;
    Workbench workbench(platform.services(), shell::wiring());
    script::ModelFrontEnd user(workbench);
    script::Driver driver({.workbench = workbench,
                           .platform = platform,
                           .frontEnd = user,
                           .print =
                               [](const std::string& line) {
                                   printText(line + '\n');
                                   flushOutput(); // who writes a script while it runs waits for this
                               },
                           .substitutions = substitutionsOf(options.settings),
                           .strict = options.strict},
                          fileCommands());
    int status = success;
    const auto tell = [&](const script::ScriptError& error) {
        complain(options.file + ':' + std::to_string(error.line()), error.what());
        const bool mistake = error.kind() == script::ScriptError::Kind::Mistake;
        status = std::max(status, mistake ? wrongUse : somethingFailed);
    };
    try {
        afterError == AfterError::GoOn ? driver.run(script, tell) : driver.run(script);
    } catch (const script::ScriptError& error) {
        tell(error);
    }
    return status;
}

int runInput(const Options& options) {
    if (options.file == standardStream) {
        const int status = runScript(std::cin, options, isTerminal(stdin) ? AfterError::GoOn : AfterError::End);
        if (status == success && std::ferror(stdin) != 0) { // which std::cin reads, but takes for the end
            throw CliError(std::strerror(errno));
        }
        return status;
    }
    std::istringstream script(readInput(options.file).content);
    return runScript(script, options, AfterError::End);
}

int run(const Options& options) {
    int status = somethingFailed;
    attempt(options.file, [&] { status = runInput(options); });
    return status;
}

} // namespace

Run addScript(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    syntax.operand("FILE", "The script; - (the default) is standard input", &options->file);
    syntax.flag("--strict", "Fail where an action is refused or a box has no queued answer", options->strict);
    syntax.option("--set", "NAME=VALUE", "Put VALUE where the script says $NAME; may be given several times",
                  &options->settings);
    syntax.footer(
        "The command \"help\" of a script lists the commands of scripts.\n\n"
        "  edidwb script session.script\n"
        "  edidwb script --strict --set IN=monitor.bin session.script\n\n"
        "Exit status: 0 all went well, 1 something failed in a right line, 2 wrong usage or a mistake in the script.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
