#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "cli/cleanup.h"
#include "cli/command_line.h"
#include "cli/commands.h"
#include "cli/output.h"

int main(int argc, char** argv) {
    wb::cli::prepareStreams();
    wb::cli::removeTemporariesOnSignals();
    try {
        const int status = wb::cli::runCommandLine(std::vector<std::string>(argv + 1, argv + argc));
        wb::cli::flushOutput();
        return status;
    } catch (const wb::cli::OutputError& error) {
        if (error.readerGone()) {
            wb::cli::endByBrokenPipe();
        }
        std::fprintf(stderr, "edidwb: %s\n", error.what());
        return wb::cli::somethingFailed;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "edidwb: %s\n", error.what());
        return wb::cli::somethingFailed;
    }
}
