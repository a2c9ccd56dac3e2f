#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <optional>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "core/version.h"

namespace wb::cli {

namespace {

struct Command {
    std::string_view name;
    const char* description;
    Run (*addOptions)(CLI::App& command);
};

constexpr auto commands = std::to_array<Command>({
    {"translate", "Print the report of each file", &addTranslate},
    {"convert", "Write an image in another format", &addConvert},
    {"check", "Tell what is wrong with each file", &addCheck},
    {"inspect", "Tell what every byte of each file means", &addInspect},
    {"diff", "Tell the fields in which two images differ", &addDiff},
    {"repair", "Put the check sums of each image right", &addRepair},
    {"scrub", "Take the serial numbers out of each image", &addScrub},
    {"read", "Print what the running system stored of a monitor", &addRead},
    {"monitors", "List the attached monitors, and where their EDID comes from", &addMonitors},
    {"override", "Tell how to have Linux take an image for that of a monitor", &addOverride},
    {"script", "Drive the screens of the program by a script", &addScript},
});

/// What the option library takes for something else is put right: it reads "[...]" and "{}" as lists, which are names
/// of files here, and behind "--NAME=" it takes the next argument for the value, which is empty.
void putRight(std::vector<std::string>& arguments) {
    bool optionsEnded = false;
    for (std::string& argument : arguments) {
        const bool looksLikeAList = (argument.starts_with('[') && argument.ends_with(']')) || argument == "{}";
        if (looksLikeAList) {
            argument.insert(0, "./");
        }
        optionsEnded = optionsEnded || argument == "--";
        if (!optionsEnded && argument.starts_with("--") && argument.find('=') == argument.size() - 1) {
            throw UsageError("no value in '" + argument + "'");
        }
    }
}

int complainOfUsage(const std::string& message) {
    complain(message + "\nTry 'edidwb --help' for more information.");
    return wrongUse;
}

/// Reads the arguments. Gives the exit status where that is all: after help and version, and after wrong use.
std::optional<int> parse(CLI::App& app, std::vector<std::string> arguments) {
    app.allow_windows_style_options(false);
    std::reverse(arguments.begin(), arguments.end()); // the order in which the option library takes them
    try {
        app.parse(arguments);
        return std::nullopt;
    } catch (const CLI::CallForHelp&) {
        print(app.help());
    } catch (const CLI::CallForVersion& version) {
        print(version.what() + std::string("\n"));
    } catch (const CLI::ParseError& error) {
        const bool extra = app.remaining_size() > 0;
        return complainOfUsage(extra ? "not expected: " + CLI::detail::join(app.remaining(), " ") : error.what());
    }
    return success;
}

/// Each command is a program of its own to the option library, which would otherwise hand what it does not expect, all
/// behind "--" included, back to the commands.
int runCommand(const Command& command, const std::vector<std::string>& arguments) {
    CLI::App app(command.description, "edidwb " + std::string(command.name));
    const Run run = command.addOptions(app);
    const std::optional<int> status = parse(app, arguments);
    return status ? *status : run();
}

int runWithoutCommand(const std::vector<std::string>& arguments) {
    CLI::App app("Reads, explains and converts the EDID of monitors.", "edidwb");
    app.set_version_flag("--version", std::string("edidwb ") + programVersion());
    app.require_subcommand(1);
    for (const Command& command : commands) {
        app.add_subcommand(std::string(command.name), command.description);
    }
    const bool any = !arguments.empty();
    return parse(app, any ? std::vector{arguments.front()} : arguments).value_or(wrongUse);
}

} // namespace

int runCommandLine(std::vector<std::string> arguments) {
    try {
        putRight(arguments);
        const std::string name = arguments.empty() ? "" : arguments.front();
        const auto* const command =
            std::find_if(commands.begin(), commands.end(), [&](const Command& known) { return known.name == name; });
        return command == commands.end() ? runWithoutCommand(arguments)
                                         : runCommand(*command, {arguments.begin() + 1, arguments.end()});
    } catch (const UsageError& error) {
        return complainOfUsage(error.what());
    }
}

} // namespace wb::cli
