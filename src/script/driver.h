#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "script/commands.h"
#include "script/script_error.h"

namespace wb::script {

/// A command by the name that scripts use.
struct CommandRow {
    std::string_view name;
    std::string_view usage; ///< of the arguments
    std::size_t least;      ///< how many arguments
    std::size_t most;
    void (*run)(Session& session, const Arguments& arguments);
    std::string_view words; ///< what it does, in one short line
};

/// Runs scripts on a program. What the program shows goes to the same trace as what the commands print, in the order in
/// which it happens. The program starts before the first command.
class Driver {
public:
    /// `further` are commands beside those of the library; they outlive the driver.
    explicit Driver(Session session, std::span<const CommandRow> further = {});
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    ~Driver();

    /// Runs the lines as they are read. A ScriptError ends the script and names the line; where there is a `tell` it
    /// takes the error instead, and the script goes on. A line above files::largestInput ends it in any case.
    void run(std::istream& script, const std::function<void(const ScriptError& error)>& tell = {});
    /// Runs one line, without its line end.
    void runLine(std::string_view line);

private:
    void execute(const Command& command);
    const CommandRow& rowOf(const Command& command) const;
    void printHelp() const;

    Session session_;
    std::span<const CommandRow> further_;
    std::optional<std::string> unansweredBox_; ///< the first one of the command that runs
    bool started_ = false;
};

} // namespace wb::script
