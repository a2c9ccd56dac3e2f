#include <string>
#include <vector>

#include <windows.h>

#include "cli/entry.h"
#include "core/base/file_names.h"

// The C runtime puts the files that match in the place of a wildcard that stands without quotes, as shells elsewhere
// do.
extern "C" {
int _dowildcard = -1;
}

namespace {

/// The console takes UTF-8, which names of files are in, while the program runs.
class ConsoleInUtf8 {
public:
    ConsoleInUtf8() : before_(GetConsoleOutputCP()) { SetConsoleOutputCP(CP_UTF8); }
    ConsoleInUtf8(const ConsoleInUtf8&) = delete;
    ConsoleInUtf8& operator=(const ConsoleInUtf8&) = delete;
    ~ConsoleInUtf8() {
        if (before_ != 0) {
            SetConsoleOutputCP(before_);
        }
    }

private:
    UINT before_; ///< 0 where there is no console
};

} // namespace

/// The narrow arguments are in the code page of the system, which has no letters of other scripts; these have.
int wmain(int argc, wchar_t** argv) {
    const ConsoleInUtf8 console;
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(wb::nameOf(argv[i]));
    }
    return wb::cli::runProgram(arguments);
}
