#include <cerrno>

#include <io.h>

#include "cli/file_access.h"
#include "core/base/file_names.h"

namespace wb::cli {

/// The folder decides who may read, whatever is asked for.
std::FILE* createFile(const std::filesystem::path& path, Readers) {
    return openStream(path, "wbx");
}

std::error_code createOwnFolder(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::create_directory(path, error) && !error) {
        error = std::make_error_code(std::errc::file_exists);
    }
    return error;
}

/// Short names become the long ones, too.
std::filesystem::path behindLinks(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::canonical(path, ignored);
}

void takeAccess(std::FILE*, const std::filesystem::path&) {}

std::error_code syncFile(std::FILE* file) {
    return _commit(_fileno(file)) == 0 || errno == EINVAL ? std::error_code()
                                                          : std::error_code(errno, std::generic_category());
}

/// The system keeps the names of a folder by itself, and has nothing to wait for.
void syncFolder(const std::filesystem::path&) {}

} // namespace wb::cli
