#include <CLI/CLI.hpp>
#include <limits>
#include <memory>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/image_check.h"
#include "cli/output.h"
#include "cli/program.h"

namespace wb::cli {

namespace {

/// A data file never holds more than these blocks.
constexpr std::size_t blocksOfDataFile = 2;

std::vector<Finding> checkDataFile(const Input& input) {
    Program program;
    std::vector<Finding> findings = checkImage(program.dataFileBytes(input), blocksOfDataFile);
    for (const std::string& box : program.boxes()) {
        findings.push_back({false, inOneLine(box)});
    }
    return findings;
}

/// Prints one line about the file. False when anything about it is wrong.
bool checkFile(const std::string& name) {
    const Input input = readInput(name);
    const Content content = imageIn(input);
    const std::vector<Finding> findings = content.kind == ContentKind::DataFile
                                              ? checkDataFile(input)
                                              : checkImage(content.image, std::numeric_limits<std::size_t>::max());
    bool good = true;
    std::string line = name;
    for (const Finding& finding : findings) {
        good = good && finding.good;
        line += (&finding == &findings.front() ? ": " : ", ") + finding.text;
    }
    print(line + '\n');
    return good;
}

int run(const std::vector<std::string>& files) {
    requireOneStandardInput(files);
    bool good = true;
    for (const std::string& name : files) {
        try {
            good = checkFile(name) && good;
        } catch (const CliError& error) {
            complain(name, error.what());
            good = false;
        }
    }
    return good ? success : somethingFailed;
}

} // namespace

Run addCheck(CLI::App& command) {
    const auto files = std::make_shared<std::vector<std::string>>();
    command.add_option("FILE", *files, "File in any format; - is standard input")->type_name("")->required();
    return [files] { return run(*files); };
}

} // namespace wb::cli
