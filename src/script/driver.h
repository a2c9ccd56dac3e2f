#pragma once

#include <istream>

#include "script/commands.h"

namespace wb::script {

/// Runs scripts on a program. What the program shows goes to the same trace as what the commands print, in the order in
/// which it happens. The program starts before the first command.
class Driver {
public:
    explicit Driver(Session session);
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    ~Driver();

    /// Runs the lines as they are read. A ScriptError ends the script and names the line.
    void run(std::istream& script);
    /// Runs one line, without its line end.
    void runLine(std::string_view line);

private:
    void execute(const Command& command);

    Session session_;
    bool started_ = false;
};

} // namespace wb::script
