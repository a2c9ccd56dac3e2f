#include "cli/entry.h"

#include <exception>

#include "cli/attempt.h"
#include "cli/cleanup.h"
#include "cli/command_line.h"
#include "cli/output.h"

namespace wb::cli {

int runProgram(const std::vector<std::string>& arguments) {
    prepareStreams();
    removeTemporariesOnSignals();
    const int stopped = statusWhenStopped(arguments);
    try {
        const int status = withinMemory([&] { return runCommandLine(arguments); });
        flushOutput();
        return status;
    } catch (const OutputError& error) {
        if (error.readerGone()) {
            endByBrokenPipe();
        }
        complainAtTheEnd(error.what());
        return stopped;
    } catch (const std::exception& error) {
        complainAtTheEnd(error.what());
        return stopped;
    }
}

} // namespace wb::cli
