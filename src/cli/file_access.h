#pragma once

#include <cstdio>
#include <filesystem>
#include <system_error>

/// Who may read new files, and when they are on the disk; each kind of system has a file of its own.
namespace wb::cli {

enum class Readers {
    Usual, ///< what the settings of the user's session give
    Owner, ///< nobody else, as long as it is not known who may
};

/// Creates a file and opens it for writing. Null after a failure, also where the file is there; errno tells why.
std::FILE* createFile(const std::filesystem::path& path, Readers readers);

/// Creates a folder that is its user's alone from the beginning.
std::error_code createOwnFolder(const std::filesystem::path& path);

/// The file of that name behind its symbolic links; the folders on the way to it may be links still. Empty where there
/// is none.
std::filesystem::path behindLinks(const std::filesystem::path& path);

/// Gives an open file owner, group, permissions and (on Linux) access list of another one, as far as the system lets
/// it: without the bits that let a program run as its owner or group, and where the group or the list cannot be kept,
/// with no more for the group than for all. Where the other file is not there nothing changes.
void takeAccess(std::FILE* file, const std::filesystem::path& from);

/// Waits until what was written to an open file is on the disk; where a device knows no such thing, that is none.
std::error_code syncFile(std::FILE* file);

/// The same for the names in a folder, as far as the system can tell.
void syncFolder(const std::filesystem::path& folder);

} // namespace wb::cli
