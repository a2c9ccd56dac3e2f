#include "cli/file_list.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cli/cli_error.h"
#include "cli/input.h"
#include "cli/output.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> namesIn(const std::string& list, char end) {
    std::vector<std::string> names;
    for (std::size_t place = 0; place < list.size();) {
        const std::size_t last = std::min(list.find(end, place), list.size());
        std::string name = list.substr(place, last - place);
        if (end == '\n' && name.ends_with('\r')) {
            name.pop_back();
        }
        if (!name.empty()) {
            names.push_back(std::move(name));
        }
        place = last + 1;
    }
    return names;
}

/// The ordinary files below a folder; links to folders are not followed, so that the walk ends.
void addBelow(const fs::path& folder, std::vector<BatchFile>& files, bool& complete) {
    std::error_code error;
    std::vector<fs::path> found;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(folder, options, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_regular_file(ignored)) {
            found.push_back(entry->path());
        }
    }
    if (error) {
        complain(folder.string(), error.message());
        complete = false;
    }
    std::sort(found.begin(), found.end());
    for (const fs::path& path : found) {
        files.push_back({path.string(), path.lexically_relative(folder).string()});
    }
}

std::string listOf(const FileOptions& options) {
    try {
        return readInput(options.listFile).content;
    } catch (const CliError& error) {
        throw CliError(options.listFile + ": " + error.what());
    }
}

} // namespace

void addFileOptions(CLI::App& command, FileOptions& options) {
    command.add_option("FILE", options.names, "File in any form, told by its content; - is standard input")
        ->type_name("");
    command.add_flag("-r,--recursive", options.recursive, "Take all files below a folder")->disable_flag_override();
    command.add_option("--files-from", options.listFile, "Take the names in FILE too, one a line; - is standard input")
        ->type_name("FILE")
        ->take_last();
    command.add_flag("-0,--null", options.zeroEnded, "The names in that file end with NUL")->disable_flag_override();
}

std::vector<BatchFile> filesOf(const FileOptions& options, bool& complete) {
    std::vector<std::string> names = options.names;
    std::vector<std::string> streams = names;
    streams.push_back(options.listFile);
    requireOneStandardInput(streams);
    if (!options.listFile.empty()) {
        const std::vector<std::string> listed = namesIn(listOf(options), options.zeroEnded ? '\0' : '\n');
        names.insert(names.end(), listed.begin(), listed.end());
    }
    requireOneStandardInput(names);
    if (names.empty() && options.listFile.empty()) {
        throw UsageError("FILE is required");
    }
    std::vector<BatchFile> files;
    for (const std::string& name : names) {
        std::error_code ignored;
        if (options.recursive && name != standardStream && fs::is_directory(name, ignored)) {
            addBelow(name, files, complete);
        } else {
            files.push_back({name, fs::path(name).filename().string()});
        }
    }
    return files;
}

} // namespace wb::cli
