#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "cli/folder_walk.h"
#include "cli/name_list.h"

namespace wb::cli {

class Syntax;

/// Which files a command is to work on.
struct FileOptions {
    std::vector<std::string> names; ///< as the user gave them
    std::string listFile;           ///< a file with further names, "-" for standard input; empty: none
    bool zeroEnded = false;         ///< the names in it end with NUL instead of line ends
    bool recursive = false;         ///< folders stand for all files below them

    bool any() const { return !names.empty() || !listFile.empty(); }
};

/// A file of a batch.
struct BatchFile {
    std::string name;
    std::string below;       ///< its path below the folder that stood for it; of others the name of the file alone
    std::uint64_t place = 0; ///< where KeptFiles has it
};

/// FILE…, -r, --files-from and -0.
void addFileOptions(Syntax& syntax, FileOptions& options);

/// The files one after the other, those below a folder in the order of their paths. What it holds at a time does not
/// grow with their number.
class FileList {
public:
    /// No file at all, and standard input named twice, are a UsageError; a list that cannot be read is a CliError. The
    /// options are to outlive the list of the files.
    explicit FileList(const FileOptions& options);

    /// The next file; nothing after the last. A list of names that cannot be read on is a CliError, and where it names
    /// standard input a second time it is a UsageError.
    std::optional<BatchFile> next();
    /// Whether there are two or more; to be asked before the first was taken.
    bool several();

    /// False where a folder could not be read, which is told.
    bool complete() const { return complete_; }

private:
    std::optional<BatchFile> find();
    std::optional<BatchFile> nextBelow();
    std::optional<std::string> nextName();

    const FileOptions& options_;
    std::size_t nextOption_ = 0;
    std::optional<NameList> list_;
    std::size_t standardInputs_ = 0;
    std::filesystem::path folder_;   ///< the one that stands for its files
    std::optional<FolderWalk> walk_; ///< below it
    std::deque<BatchFile> ahead_;    ///< found already
    bool complete_ = true;
};

} // namespace wb::cli
