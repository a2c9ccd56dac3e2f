#pragma once

#include <stdexcept>
#include <string>

namespace wb::script {

/// What ends a script: a line that cannot be understood or names something that does not exist.
class ScriptError : public std::runtime_error {
public:
    explicit ScriptError(const std::string& message, int line = 0) : std::runtime_error(message), line_(line) {}

    /// The line of the script, from 1; 0 while it is not known.
    int line() const { return line_; }

private:
    int line_;
};

} // namespace wb::script
