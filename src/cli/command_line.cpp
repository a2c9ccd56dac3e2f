#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <memory>
#include <optional>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/usage_sentences.h"
#include "core/version.h"

namespace wb::cli {

namespace {

struct Command {
    std::string_view name;
    const char* description;
    Run (*addOptions)(CLI::App& command);
};

Run addHelp(CLI::App& command);

constexpr auto commands = std::to_array<Command>({
    {"translate", "Print the report of each file", &addTranslate},
    {"convert", "Write an image in another format", &addConvert},
    {"check", "Tell what is wrong with each file", &addCheck},
    {"inspect", "Tell what every byte of each file means", &addInspect},
    {"diff", "Tell the fields in which two images differ", &addDiff},
    {"repair", "Put the check sums of each image right", &addRepair},
    {"scrub", "Take the serial numbers out of each image", &addScrub},
    {"set", "Set maker, name, timings and more of each image, or of a new one", &addSet},
    {"read", "Print what the running system stored of a monitor", &addRead},
    {"monitors", "List the attached monitors, and where their EDID comes from", &addMonitors},
    {"override", "Tell how to have Linux take an image for that of a monitor", &addOverride},
    {"script", "Drive the screens of the program by a script", &addScript},
    {"help", "Tell how the program or one of its commands is used", &addHelp},
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
        return complainOfUsage(sentenceOf(error, app));
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

const Command* commandOf(std::string_view name) {
    const auto* const command =
        std::find_if(commands.begin(), commands.end(), [&](const Command& known) { return known.name == name; });
    return command == commands.end() ? nullptr : command;
}

std::vector<std::string> commandNames() {
    std::vector<std::string> names;
    names.reserve(commands.size());
    for (const Command& command : commands) {
        names.emplace_back(command.name);
    }
    return names;
}

int runWithoutCommand(const std::vector<std::string>& arguments) {
    CLI::App app("Reads, explains and converts the EDID of monitors.", "edidwb");
    app.set_version_flag("--version", std::string("edidwb ") + programVersion());
    app.require_subcommand(1);
    for (const Command& command : commands) {
        app.add_subcommand(std::string(command.name), command.description);
    }
    app.footer("'edidwb help COMMAND' tells the options of a command, what its exit status means, and examples.");
    if (!arguments.empty() && !arguments.front().starts_with('-')) {
        throw UsageError(unknownCommand(arguments.front(), commandNames()));
    }
    const bool any = !arguments.empty();
    return parse(app, any ? std::vector{arguments.front()} : arguments).value_or(wrongUse);
}

int runHelp(const std::string& name) {
    if (name.empty()) {
        return runWithoutCommand({"--help"});
    }
    const Command* const command = commandOf(name);
    if (command == nullptr) {
        throw UsageError(unknownCommand(name, commandNames()));
    }
    return runCommand(*command, {"--help"});
}

Run addHelp(CLI::App& command) {
    const auto name = std::make_shared<std::string>();
    command.add_option("COMMAND", *name, "The command to tell of; without it all are listed")->type_name("");
    command.footer(
        "  edidwb help\n"
        "  edidwb help convert\n\n"
        "Exit status: 0 all went well, 2 wrong usage.");
    return [name] { return runHelp(*name); };
}

} // namespace

int runCommandLine(std::vector<std::string> arguments) {
    try {
        putRight(arguments);
        const Command* const command = arguments.empty() ? nullptr : commandOf(arguments.front());
        return command == nullptr ? runWithoutCommand(arguments)
                                  : runCommand(*command, {arguments.begin() + 1, arguments.end()});
    } catch (const UsageError& error) {
        return complainOfUsage(error.what());
    }
}

} // namespace wb::cli
