#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace wb::cli {

/// Which files a command is to work on.
struct FileOptions {
    std::vector<std::string> names; ///< as the user gave them
    std::string listFile;           ///< a file with further names, "-" for standard input; empty: none
    bool zeroEnded = false;         ///< the names in it end with NUL instead of line ends
    bool recursive = false;         ///< folders stand for all files below them
};

/// A file of a batch.
struct BatchFile {
    std::string name;
    std::string below; ///< its path below the folder that stood for it; of others the name of the file alone
};

/// FILE…, -r, --files-from and -0.
void addFileOptions(CLI::App& command, FileOptions& options);

/// The files, those below a folder in the order of their paths. A folder that cannot be read is told and makes
/// `complete` false. No file at all, and standard input named twice, are a UsageError; a list that cannot be read is a
/// CliError.
std::vector<BatchFile> filesOf(const FileOptions& options, bool& complete);

} // namespace wb::cli
