#include "cli/file_list.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cli/cli_error.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/syntax.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace fs = std::filesystem;

void addFileOptions(Syntax& syntax, FileOptions& options) {
    syntax.operand("FILE", "File in any form, told by its content; - is standard input", &options.names);
    syntax.flag("-r,--recursive", "Take all files below a folder", options.recursive);
    syntax.option("--files-from", "FILE", "Take the names in FILE too, one a line; - is standard input",
                  &options.listFile);
    syntax.flag("-0,--null", "The names in that file end with NUL", options.zeroEnded);
}

FileList::FileList(const FileOptions& options) : options_(options) {
    std::vector<std::string> streams = options.names;
    streams.push_back(options.listFile);
    requireOneStandardInput(streams);
    if (!options.listFile.empty()) {
        list_.emplace(options.listFile, options.zeroEnded ? '\0' : '\n');
    } else if (!options.any()) {
        throw UsageError("FILE is required");
    }
}

std::optional<BatchFile> FileList::next() {
    if (ahead_.empty()) {
        return find();
    }
    BatchFile file = std::move(ahead_.front());
    ahead_.pop_front();
    return file;
}

bool FileList::several() {
    while (ahead_.size() < 2) {
        std::optional<BatchFile> file = find();
        if (!file) {
            return false;
        }
        ahead_.push_back(std::move(*file));
    }
    return true;
}

std::optional<BatchFile> FileList::find() {
    for (;;) {
        if (walk_) {
            if (std::optional<BatchFile> file = nextBelow()) {
                return file;
            }
        }
        std::optional<std::string> name = nextName();
        if (!name) {
            return std::nullopt;
        }
        std::error_code ignored;
        if (!options_.recursive || *name == standardStream || !fs::is_directory(pathOf(*name), ignored)) {
            std::string below = nameOf(pathOf(*name).filename());
            return BatchFile{.name = std::move(*name), .below = std::move(below)};
        }
        folder_ = pathOf(*name);
        walk_.emplace(folder_);
    }
}

std::optional<BatchFile> FileList::nextBelow() {
    const std::optional<fs::path> below = walk_->next();
    if (!below) {
        complete_ = complete_ && walk_->complete();
        walk_.reset();
        return std::nullopt;
    }
    return BatchFile{.name = nameOf(folder_ / *below), .below = nameOf(*below)};
}

/// First those of the command line, then those of the list.
std::optional<std::string> FileList::nextName() {
    std::optional<std::string> name;
    if (nextOption_ < options_.names.size()) {
        name = options_.names[nextOption_++];
    } else if (list_) {
        name = list_->next();
    }
    if (name == standardStream && ++standardInputs_ > 1) {
        throw UsageError("standard input is named more than once");
    }
    return name;
}

} // namespace wb::cli
