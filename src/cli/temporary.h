#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "cli/cleanup.h"
#include "cli/file_access.h"
#include "core/base/file_names.h"

namespace wb::cli {

/// A new file of its own that is deleted when it goes out of scope, unless it was moved to its place before, and when a
/// signal ends the program.
class TemporaryFile {
public:
    /// Creates it in that folder; a failure is a CliError.
    explicit TemporaryFile(const std::filesystem::path& folder, Readers readers = Readers::Owner);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& path() const { return path_; }
    /// Writes the whole content; a failure is a CliError.
    void write(std::string_view content);
    /// Gives it owner, group and permissions of another file, as takeAccess() does.
    void takeAccessOf(const std::filesystem::path& other);
    /// Waits until the content is on the disk; a failure is a CliError.
    void sync();
    /// Closes and renames it, over a file of that name if there is one; a failure is a CliError.
    void moveTo(const std::filesystem::path& place);
    /// The same, but a file of that name, which another program may just have made, is a CliError too. Where the file
    /// system has no hard links it is replaced.
    void moveToNew(const std::filesystem::path& place);

private:
    void close();

    std::filesystem::path path_; ///< empty once it was moved away
    std::optional<CleanupMark> mark_;
    std::FILE* file_ = nullptr;
};

/// A new empty folder, for its user alone, that is deleted with the file it holds when it goes out of scope, and when a
/// signal ends the program.
class TemporaryFolder {
public:
    /// Creates it where the system keeps such folders, for a file of that name; a failure is a CliError.
    explicit TemporaryFolder(const std::string& fileName);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    /// The path of the one file in it.
    std::string file() const { return nameOf(file_); }

private:
    std::filesystem::path path_;
    std::filesystem::path file_;
    std::optional<CleanupMark> mark_;
    std::optional<CleanupMark> fileMark_;
};

/// Writes and closes; a failure (also of what the system kept back until the close) is a CliError.
void writeAndClose(std::FILE* file, std::string_view content);

} // namespace wb::cli
