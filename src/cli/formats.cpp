#include "cli/formats.h"

#include "cli/cli_error.h"
#include "cli/program.h"
#include "forms/writers.h"

namespace wb::cli {

namespace {

constexpr const char* dataFile = "dat";
constexpr const char* report = "report";

} // namespace

std::vector<std::string> formatNames() {
    std::vector<std::string> names = {dataFile, report};
    for (const forms::WrittenForm& form : forms::writtenForms()) {
        names.emplace_back(form.name);
    }
    return names;
}

std::string formatHelp() {
    std::string help = "dat (data file), report";
    for (const forms::WrittenForm& form : forms::writtenForms()) {
        help += ", " + std::string(form.name) + " (" + std::string(form.words) + ')';
    }
    return help;
}

bool isFormOfBytes(const std::string& format) {
    return forms::writtenForm(format) != nullptr;
}

std::string extensionOf(const std::string& format) {
    return format == report ? ".txt" : format == dataFile ? ".DAT" : '.' + format;
}

std::string contentAs(const std::string& format, const Image& image) {
    return forms::writtenForm(format)->write(image);
}

std::string contentAs(const std::string& format, Program& program) {
    return format == dataFile ? program.dataFile() : program.report();
}

} // namespace wb::cli
