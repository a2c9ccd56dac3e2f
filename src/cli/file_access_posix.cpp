#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

#include <array>
#include <cerrno>

#include "cli/file_access.h"

namespace wb::cli {

namespace {

constexpr mode_t allPermissions = S_IRWXU | S_IRWXG | S_IRWXO;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// What others may, for the group.
mode_t groupAsOthers(mode_t mode) {
    return (mode & ~mode_t{S_IRWXG}) | (mode & S_IRWXG & ((mode & S_IRWXO) << 3U));
}

/// Gives an open file the access list of another one, or none where that has none: a new file takes one from its
/// folder. False where it may have another one then.
bool takeAccessList([[maybe_unused]] int file, [[maybe_unused]] const std::filesystem::path& from) {
#ifdef __linux__
    constexpr const char* name = "system.posix_acl_access";
    constexpr std::size_t longest = 65536; // of any attribute
    const auto isNone = [] { return errno == ENODATA || errno == ENOTSUP; };
    std::array<char, longest> list{};
    const ssize_t size = getxattr(from.c_str(), name, list.data(), list.size());
    if (size >= 0) {
        return fsetxattr(file, name, list.data(), static_cast<std::size_t>(size), 0) == 0;
    }
    const bool wantsNone = isNone();
    const bool hasNone = fremovexattr(file, name) == 0 || isNone();
    return wantsNone && hasNone;
#else
    return true;
#endif
}

} // namespace

std::FILE* createFile(const std::filesystem::path& path, Readers readers) {
    const mode_t usual = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const mode_t mode = readers == Readers::Owner ? S_IRUSR | S_IWUSR : usual;
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    std::FILE* const stream = file < 0 ? nullptr : fdopen(file, "wb");
    if (file >= 0 && stream == nullptr) {
        const int error = errno;
        close(file);
        unlink(path.c_str());
        errno = error;
    }
    return stream;
}

std::error_code createOwnFolder(const std::filesystem::path& path) {
    return mkdir(path.c_str(), S_IRWXU) == 0 ? std::error_code() : lastError();
}

std::filesystem::path behindLinks(const std::filesystem::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)) {
        return path; // nearly all, and one question instead of one for each folder on the way
    }
    std::error_code ignored;
    return std::filesystem::canonical(path, ignored);
}

void takeAccess(std::FILE* file, const std::filesystem::path& from) {
    struct stat old {};
    struct stat now {};
    const int descriptor = fileno(file);
    if (stat(from.c_str(), &old) != 0 || fstat(descriptor, &now) != 0) {
        return;
    }
    const mode_t mode = old.st_mode & allPermissions;
    const bool same = old.st_uid == now.st_uid && old.st_gid == now.st_gid;
    const bool groupKept = same || fchown(descriptor, old.st_uid, old.st_gid) == 0 || old.st_gid == now.st_gid ||
                           fchown(descriptor, now.st_uid, old.st_gid) == 0;
    // Beside a list the bits of the group are the most that anybody of the list may, which is not for the group alone.
    const bool groupMeansTheSame = groupKept && takeAccessList(descriptor, from);
    fchmod(descriptor, groupMeansTheSame ? mode : groupAsOthers(mode));
}

std::error_code syncFile(std::FILE* file) {
    if (fsync(fileno(file)) != 0 && errno != EINVAL && errno != ENOTSUP && errno != ENOSYS) {
        return lastError();
    }
    return {};
}

void syncFolder(const std::filesystem::path& folder) {
    const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

} // namespace wb::cli
