#include "files/file_content.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "core/base/file_names.h"
#include "files/text_file.h"

namespace wb::files {

namespace {

[[noreturn]] void fail(int error) {
    throw InputError(std::generic_category().message(error));
}

std::string limitText(std::size_t most) {
    return std::to_string(most) + " bytes, which is the most that is read";
}

} // namespace

std::string readFile(const std::string& path) {
    const std::filesystem::path place = pathOf(path);
    std::error_code ignored;
    if (!requireReadableSize(path) && std::filesystem::is_directory(place, ignored)) {
        fail(EISDIR);
    }
    const FileHandle file(openStream(place, "rb"));
    if (file == nullptr) {
        fail(errno);
    }
    std::setvbuf(file.get(), nullptr, _IONBF, 0); // readStream asks for much at a time
    return readStream(file.get());
}

std::string readStream(std::FILE* stream) {
    constexpr std::size_t firstPiece = std::size_t{1} << 12U; // holds most files
    constexpr std::size_t largestPiece = std::size_t{1} << 20U;
    std::string content;
    for (std::size_t wanted = firstPiece;; wanted = std::min(wanted * 2, largestPiece)) {
        const std::size_t size = content.size();
        const std::size_t piece = std::min(wanted, largestInput + 1 - size);
        content.resize(size + piece);
        const std::size_t count = std::fread(content.data() + size, 1, piece, stream);
        content.resize(size + count);
        if (std::ferror(stream) != 0) {
            fail(errno);
        }
        if (content.size() > largestInput) {
            failAbove();
        }
        if (count < piece) {
            return content;
        }
    }
}

bool requireReadableSize(const std::string& path) {
    std::error_code error; // also for all but ordinary files
    const std::uintmax_t size = std::filesystem::file_size(pathOf(path), error);
    if (!error && size > largestInput) {
        throw InputError("has " + std::to_string(size) + " bytes, more than " + limitText(largestInput));
    }
    return !error;
}

void failAbove(std::size_t most) {
    throw InputError("has more than " + limitText(most));
}

} // namespace wb::files
