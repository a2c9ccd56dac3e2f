#include "files/file_content.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

#include "files/text_file.h"

namespace wb::files {

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 30U;

[[noreturn]] void fail(int error) {
    throw std::system_error(error, std::generic_category());
}

} // namespace

std::string readFile(const std::string& path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        fail(EISDIR);
    }
    const FileHandle file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) {
        fail(errno);
    }
    return readStream(file.get());
}

std::string readStream(std::FILE* stream) {
    std::vector<char> buffer(std::size_t{1} << 16U);
    std::string content;
    std::size_t count = 0;
    do {
        count = std::fread(buffer.data(), 1, buffer.size(), stream);
        if (std::ferror(stream) != 0) {
            fail(errno);
        }
        content.append(buffer.data(), count);
        if (content.size() > largestFile) {
            fail(EFBIG);
        }
    } while (count == buffer.size());
    return content;
}

} // namespace wb::files
