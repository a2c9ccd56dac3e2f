#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>

#ifdef __unix__
#include <fcntl.h>
#endif

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "core/version.h"

namespace {

using namespace wb::cli;

/// The option library reads "[...]" and "{}" as lists; as the name of a file they are kept from that.
std::vector<std::string> argumentsOf(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    for (std::string& argument : arguments) {
        const bool looksLikeAList = (argument.starts_with('[') && argument.ends_with(']')) || argument == "{}";
        if (looksLikeAList) {
            argument.insert(0, "./");
        }
    }
    return {arguments.rbegin(), arguments.rend()}; // the order in which the option library takes them
}

/// A reader that has gone is an error like any other, and a standard stream that is closed stays unusable: no file that
/// is opened later takes its place.
void prepareStreams() {
#ifdef __unix__
    std::signal(SIGPIPE, SIG_IGN);
    for (int stream = 0; stream <= 2; ++stream) {
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
        }
    }
#endif
}

int complainOfUsage(const std::string& message) {
    complain(message + "\nTry 'edidwb --help' for more information.");
    return wrongUse;
}

int run(int argc, char** argv) {
    useBinaryStreams();
    CLI::App app("Reads, explains and converts the EDID of monitors.", "edidwb");
    app.set_version_flag("--version", std::string("edidwb ") + wb::programVersion());
    app.require_subcommand(1);
    Chosen chosen;
    addTranslate(app, chosen);
    addConvert(app, chosen);
    addCheck(app, chosen);
    addRead(app, chosen);
    addMonitors(app, chosen);
    addScript(app, chosen);
    try {
        app.parse(argumentsOf(argc, argv));
        return chosen();
    } catch (const CLI::CallForHelp&) {
        print(app.help());
    } catch (const CLI::CallForVersion& version) {
        print(version.what() + std::string("\n"));
    } catch (const CLI::ParseError& error) {
        return complainOfUsage(error.what());
    } catch (const UsageError& error) {
        return complainOfUsage(error.what());
    }
    return success;
}

} // namespace

int main(int argc, char** argv) {
    prepareStreams();
    try {
        const int status = run(argc, argv);
        flushOutput();
        return status;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "edidwb: %s\n", error.what());
        return somethingFailed;
    }
}
