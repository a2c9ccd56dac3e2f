#include "cli/name_list.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "cli/cli_error.h"
#include "cli/input.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace {

/// No system takes longer ones; what is longer is no list of names.
constexpr std::size_t longestName = std::size_t{1} << 16U;

} // namespace

NameList::NameList(std::string file, char end) : file_(std::move(file)), end_(end) {
    if (file_ == standardStream) {
        stream_ = stdin;
        return;
    }
    const std::filesystem::path path = pathOf(file_);
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        fail(EISDIR);
    }
    handle_.reset(openStream(path, "rb"));
    if (handle_ == nullptr) {
        fail(errno);
    }
    stream_ = handle_.get();
}

std::optional<std::string> NameList::next() {
    std::string name;
    for (int c = 0; c != EOF;) {
        name.clear();
        while ((c = std::getc(stream_)) != EOF && c != static_cast<unsigned char>(end_)) {
            if (name.size() == longestName) {
                throw CliError(file_ + ": a name is longer than " + std::to_string(longestName) + " bytes");
            }
            name += static_cast<char>(c);
        }
        if (std::ferror(stream_) != 0) {
            fail(errno);
        }
        if (end_ == '\n' && name.ends_with('\r')) {
            name.pop_back();
        }
        if (!name.empty()) {
            return name;
        }
    }
    return std::nullopt;
}

void NameList::fail(int error) const {
    throw CliError(file_ + ": " + std::generic_category().message(error));
}

} // namespace wb::cli
