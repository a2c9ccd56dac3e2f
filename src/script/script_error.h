#pragma once

#include <stdexcept>
#include <string>

namespace wb::script {

/// What ends a script.
class ScriptError : public std::runtime_error {
public:
    enum class Kind {
        Mistake, ///< a line that cannot be understood or names something that does not exist
        Failure  ///< a line that is right and whose outcome is not what the script relies on
    };

    explicit ScriptError(const std::string& message, Kind kind = Kind::Mistake, int line = 0)
        : std::runtime_error(message), kind_(kind), line_(line) {}

    Kind kind() const { return kind_; }
    /// The same error in that line.
    ScriptError at(int line) const { return ScriptError(what(), kind_, line); }

    /// The line of the script, from 1; 0 while it is not known.
    int line() const { return line_; }

private:
    Kind kind_;
    int line_;
};

} // namespace wb::script
