#include "cli/formats.h"

#include <array>

#include "cli/cli_error.h"
#include "cli/program.h"

namespace wb::cli {

namespace {

struct Format {
    const char* name;
    std::string (Program::*content)();
};

constexpr std::array<Format, 4> formats = {{{"dat", &Program::dataFile},
                                            {"hex", &Program::hexExport},
                                            {"bin", &Program::binaryImage},
                                            {"report", &Program::report}}};

} // namespace

std::vector<std::string> formatNames() {
    std::vector<std::string> names;
    names.reserve(formats.size());
    for (const Format& format : formats) {
        names.emplace_back(format.name);
    }
    return names;
}

std::string contentAs(const std::string& format, Program& program) {
    for (const Format& known : formats) {
        if (known.name == format) {
            return (program.*known.content)();
        }
    }
    throw UsageError("unknown format '" + format + "'");
}

} // namespace wb::cli
