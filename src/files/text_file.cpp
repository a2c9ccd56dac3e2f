#include "files/text_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "core/base/failure.h"
#include "core/base/file_names.h"
#include "files/file_content.h"

namespace wb::files {

namespace {

constexpr std::size_t chunkSize = std::size_t{1} << 16U;

FailureKind kindOf(const std::error_code& error) {
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system) {
        return FailureKind::PermissionDenied;
    }
    return error == std::errc::no_space_on_device ? FailureKind::DiskFull : FailureKind::PathFileAccess;
}

/// What the C library told last.
std::error_code lastError() {
    return {errno, std::generic_category()};
}

bool folderExists(const std::filesystem::path& folder) {
    std::error_code error;
    return folder.empty() || std::filesystem::is_directory(folder, error);
}

std::FILE* openFile(const std::string& name, const char* mode) {
    std::error_code error;
    const std::filesystem::path path = pathOf(name);
    if (name.empty() || std::filesystem::is_directory(path, error)) {
        throw Failure(FailureKind::PathFileAccess);
    }
    std::FILE* file = openStream(path, mode);
    if (file == nullptr) {
        const std::error_code code = lastError();
        const bool missing = code == std::errc::no_such_file_or_directory && folderExists(path.parent_path());
        throw Failure(missing ? FailureKind::FileNotFound : kindOf(code));
    }
    return file;
}

} // namespace

bool fileExists(const std::string& name) {
    std::error_code error;
    return std::filesystem::is_regular_file(pathOf(name), error);
}

void deleteFile(const std::string& name) {
    std::error_code error;
    if (!std::filesystem::remove(pathOf(name), error)) {
        throw Failure(error ? kindOf(error) : FailureKind::FileNotFound);
    }
}

LineReader::LineReader(const std::string& name) : file_(openFile(name, "rb")), buffer_(chunkSize) {
    requireReadableSize(name);
}

LineReader LineReader::ofText(std::string_view text) {
    LineReader reader;
    reader.rest_ = text;
    return reader;
}

bool LineReader::fill() {
    if (!rest_.empty() || file_ == nullptr) {
        return !rest_.empty();
    }
    const std::size_t count = std::fread(buffer_.data(), 1, buffer_.size(), file_.get());
    if (count == 0 && std::ferror(file_.get()) != 0) {
        throw Failure(kindOf(lastError()));
    }
    taken_ += count;
    if (taken_ > largestInput) {
        failAbove();
    }
    rest_ = {buffer_.data(), count};
    return count > 0;
}

bool LineReader::atEnd() {
    return !fill();
}

std::string LineReader::readLine() {
    if (atEnd()) {
        throw Failure(FailureKind::InputPastEnd);
    }
    std::string line;
    while (fill()) {
        const std::size_t newLine = rest_.find('\n');
        line += rest_.substr(0, newLine);
        if (newLine == std::string_view::npos) {
            rest_ = {};
            continue;
        }
        rest_.remove_prefix(newLine + 1);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        break;
    }
    return line;
}

Writer::Writer(const std::string& name, Buffering buffering) : file_(openFile(name, "wb")) {
    if (buffering == Buffering::EachWrite) {
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    }
}

void Writer::write(std::string_view text) {
    if (file_ == nullptr) {
        throw Failure(FailureKind::PathFileAccess);
    }
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size()) {
        throw Failure(kindOf(lastError()));
    }
}

void Writer::close() {
    if (file_ == nullptr) {
        return;
    }
    errno = 0;
    if (std::fclose(file_.release()) != 0) {
        throw Failure(kindOf(lastError()));
    }
}

} // namespace wb::files
