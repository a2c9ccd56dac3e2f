#pragma once

#include <cstdio>
#include <optional>
#include <string>

#include "files/text_file.h"

namespace wb::cli {

/// A file with a name a line, or a name before each NUL, read as far as names are asked for.
class NameList {
public:
    /// "-" is standard input; `end` is '\n' or '\0'. A file that cannot be opened is a CliError.
    NameList(std::string file, char end);

    /// The next name that is not empty; nothing after the last. A failure, and a name of more than 64 KiB, is a
    /// CliError.
    std::optional<std::string> next();

private:
    [[noreturn]] void fail(int error) const;

    std::string file_;
    char end_;
    files::FileHandle handle_;
    std::FILE* stream_ = nullptr;
};

} // namespace wb::cli
