#pragma once

#include <stdexcept>

namespace wb::cli {

/// What stops the work on one file; the text tells the user why, without the name of the file.
class CliError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Wrong use of the options, found after they were read.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace wb::cli
