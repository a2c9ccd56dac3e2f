#include "cli/command_line.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/syntax.h"
#include "cli/usage_sentences.h"
#include "core/version.h"

namespace wb::cli {

namespace {

struct Command {
    std::string_view name;
    const char* description;
    Run (*addOptions)(Syntax& syntax);
    int whenItFails = somethingFailed;
};

Run addHelp(Syntax& syntax);

constexpr auto commands = std::to_array<Command>({
    {"translate", "Print the report of each file", &addTranslate},
    {"convert", "Write an image in another format", &addConvert},
    {"check", "Tell what is wrong with each file", &addCheck},
    {"inspect", "Tell what every byte of each file means", &addInspect},
    {"diff", "Tell the fields in which two images differ", &addDiff, imagesNotCompared},
    {"repair", "Put the check sums of each image right", &addRepair},
    {"scrub", "Take the serial numbers out of each image", &addScrub},
    {"set", "Set maker, name, timings and more of each image, or of a new one", &addSet},
    {"read", "Print what the running system stored of a monitor", &addRead},
    {"monitors", "List the attached monitors, and where their EDID comes from", &addMonitors},
    {"override", "Tell how to have Linux take an image for that of a monitor", &addOverride},
    {"script", "Drive the screens of the program by a script", &addScript},
    {"help", "Tell how the program or one of its commands is used", &addHelp},
});

std::string programOf(const Command* command) {
    return command == nullptr ? "edidwb" : "edidwb " + std::string(command->name);
}

int complainOfUsage(const std::string& message, const Command* command) {
    complain(message + "\nTry '" + programOf(command) + " --help' for more information.");
    return wrongUse;
}

/// Each command is a program of its own to the option library, which would otherwise hand what it does not expect, all
/// behind "--" included, back to the commands.
int runCommand(const Command& command, const std::vector<std::string>& arguments) {
    Syntax syntax(programOf(&command), command.description);
    const Run run = command.addOptions(syntax);
    if (const std::optional<std::string> text = syntax.read(arguments)) {
        print(*text);
        return success;
    }
    return run();
}

const Command* commandOf(std::string_view name) {
    const auto* const command =
        std::find_if(commands.begin(), commands.end(), [&](const Command& known) { return known.name == name; });
    return command == commands.end() ? nullptr : command;
}

const Command* commandIn(const std::vector<std::string>& arguments) {
    return arguments.empty() ? nullptr : commandOf(arguments.front());
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
    if (!arguments.empty() && !arguments.front().starts_with('-')) {
        throw UsageError(unknownCommand(arguments.front(), commandNames()));
    }
    Syntax syntax("edidwb", "Reads, explains and converts the EDID of monitors.");
    syntax.version(std::string("edidwb ") + programVersion());
    for (const Command& command : commands) {
        syntax.subcommand(command.name, command.description);
    }
    syntax.footer("'edidwb help COMMAND' tells the options of a command, what its exit status means, and examples.");
    const bool any = !arguments.empty();
    const std::optional<std::string> text = syntax.read(any ? std::vector{arguments.front()} : arguments);
    print(text.value_or(""));
    return text ? success : wrongUse;
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

Run addHelp(Syntax& syntax) {
    const auto name = std::make_shared<std::string>();
    syntax.operand("COMMAND", "The command to tell of; without it all are listed", name.get());
    syntax.footer(
        "  edidwb help\n"
        "  edidwb help convert\n\n"
        "Exit status: 0 all went well, 2 wrong usage.");
    return [name] { return runHelp(*name); };
}

} // namespace

int runCommandLine(const std::vector<std::string>& arguments) {
    const Command* const command = commandIn(arguments);
    try {
        return command == nullptr ? runWithoutCommand(arguments)
                                  : runCommand(*command, {arguments.begin() + 1, arguments.end()});
    } catch (const UsageError& error) {
        return complainOfUsage(error.what(), command);
    }
}

int statusWhenStopped(const std::vector<std::string>& arguments) {
    const Command* const command = commandIn(arguments);
    return command == nullptr ? somethingFailed : command->whenItFails;
}

} // namespace wb::cli
