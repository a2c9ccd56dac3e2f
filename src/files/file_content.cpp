#include "files/file_content.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "core/base/file_names.h"
#include "files/text_file.h"

namespace wb::files {

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 30U;

[[noreturn]] void fail(int error) {
    throw std::system_error(error, std::generic_category());
}

} // namespace

std::string readFile(const std::string& path) {
    const std::filesystem::path place = pathOf(path);
    std::error_code ignored;
    if (std::filesystem::is_directory(place, ignored)) {
        fail(EISDIR);
    }
    const FileHandle file(openStream(place, "rb"));
    if (file == nullptr) {
        fail(errno);
    }
    return readStream(file.get());
}

std::string readStream(std::FILE* stream) {
    constexpr std::size_t firstPiece = std::size_t{1} << 12U; // holds most files
    constexpr std::size_t largestPiece = std::size_t{1} << 20U;
    std::string content;
    for (std::size_t piece = firstPiece;; piece = std::min(piece * 2, largestPiece)) {
        const std::size_t size = content.size();
        content.resize(size + piece);
        const std::size_t count = std::fread(content.data() + size, 1, piece, stream);
        content.resize(size + count);
        if (std::ferror(stream) != 0) {
            fail(errno);
        }
        if (content.size() > largestFile) {
            fail(EFBIG);
        }
        if (count < piece) {
            return content;
        }
    }
}

} // namespace wb::files
