#include "cli/input.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include "cli/cli_error.h"

namespace wb::cli {

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 30U;

[[noreturn]] void failBySystem() {
    throw CliError(std::strerror(errno));
}

std::string readAll(std::FILE* file) {
    std::vector<char> buffer(std::size_t{1} << 16U);
    std::string content;
    for (;;) {
        const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file);
        content.append(buffer.data(), count);
        if (content.size() > largestFile) {
            throw CliError("is too large");
        }
        if (count < buffer.size()) {
            if (std::ferror(file) != 0) {
                failBySystem();
            }
            return content;
        }
    }
}

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

Input readInput(const std::string& name) {
    if (name == standardStream) {
        return {name, readAll(stdin), false};
    }
    std::error_code error;
    if (std::filesystem::is_directory(name, error)) {
        throw CliError("is a directory");
    }
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(name.c_str(), "rb"));
    if (file == nullptr) {
        failBySystem();
    }
    return {name, readAll(file.get()), std::filesystem::is_regular_file(name, error)};
}

void requireOneStandardInput(const std::vector<std::string>& names) {
    if (std::count(names.begin(), names.end(), standardStream) > 1) {
        throw UsageError("standard input is named more than once");
    }
}

} // namespace wb::cli
