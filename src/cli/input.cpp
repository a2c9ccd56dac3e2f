#include "cli/input.h"

#include <algorithm>

#include "cli/cli_error.h"
#include "files/file_content.h"

namespace wb::cli {

Input readInput(const std::string& name) {
    try {
        if (name == standardStream) {
            return {name, files::readStream(stdin)};
        }
        return {name, files::readFile(name)};
    } catch (const files::InputError& error) {
        throw CliError(error.what());
    }
}

void requireOneStandardInput(const std::vector<std::string>& names) {
    if (std::count(names.begin(), names.end(), standardStream) > 1) {
        throw UsageError("standard input is named more than once");
    }
}

} // namespace wb::cli
