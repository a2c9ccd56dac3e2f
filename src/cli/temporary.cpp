#include "cli/temporary.h"

#include <cerrno>
#include <cstring>
#include <random>
#include <utility>

#include "cli/cli_error.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace {

constexpr int tries = 100;

std::string randomName() {
    static constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr int length = 12;
    std::random_device random;
    std::uniform_int_distribution<std::size_t> letter(0, letters.size() - 1);
    std::string name = ".edidwb-";
    for (int i = 0; i < length; ++i) {
        name += letters[letter(random)];
    }
    return name;
}

} // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& folder, Readers readers) {
    for (int i = 0; i < tries && file_ == nullptr; ++i) {
        path_ = folder / randomName();
        mark_.emplace(CleanupMark::Kind::File, nameOf(path_));
        file_ = createFile(path_, readers);
        if (file_ == nullptr && errno != EEXIST) {
            break;
        }
    }
    if (file_ == nullptr) {
        throw CliError(std::strerror(errno));
    }
    std::setvbuf(file_, nullptr, _IONBF, 0); // the whole content comes at once
}

TemporaryFile::~TemporaryFile() {
    if (file_ != nullptr) {
        std::fclose(file_);
    }
    if (!path_.empty()) {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
}

void TemporaryFile::write(std::string_view content) {
    if (std::fwrite(content.data(), 1, content.size(), file_) != content.size()) {
        throw CliError(std::strerror(errno));
    }
}

void TemporaryFile::takeAccessOf(const std::filesystem::path& other) {
    takeAccess(file_, other);
}

void TemporaryFile::sync() {
    if (const std::error_code error = syncFile(file_)) {
        throw CliError(reasonOf(error));
    }
}

void TemporaryFile::close() {
    if (file_ != nullptr && std::fclose(std::exchange(file_, nullptr)) != 0) {
        throw CliError(std::strerror(errno));
    }
}

void TemporaryFile::moveTo(const std::filesystem::path& place) {
    close();
    std::error_code error;
    std::filesystem::rename(path_, place, error);
    if (error) {
        throw CliError(reasonOf(error));
    }
    path_.clear();
}

void TemporaryFile::moveToNew(const std::filesystem::path& place) {
    close();
    std::error_code error;
    std::filesystem::create_hard_link(path_, place, error);
    if (error == std::errc::file_exists) {
        throw CliError(reasonOf(error));
    }
    if (error) {
        moveTo(place);
    }
}

TemporaryFolder::TemporaryFolder(const std::string& fileName) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    if (!error) {
        error = std::make_error_code(std::errc::file_exists);
    }
    for (int i = 0; i < tries && error == std::errc::file_exists; ++i) {
        path_ = parent / randomName();
        mark_.emplace(CleanupMark::Kind::Folder, nameOf(path_));
        error = createOwnFolder(path_);
    }
    if (error) {
        throw CliError("no temporary folder: " + reasonOf(error));
    }
    file_ = path_ / pathOf(fileName);
    fileMark_.emplace(CleanupMark::Kind::File, nameOf(file_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
    std::filesystem::remove(path_, ignored);
}

void writeAndClose(std::FILE* file, std::string_view content) {
    const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
    const int writeError = errno;
    if (std::fclose(file) != 0 || !written) {
        throw CliError(std::strerror(written ? errno : writeError));
    }
}

} // namespace wb::cli
