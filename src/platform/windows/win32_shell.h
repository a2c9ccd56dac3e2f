#pragma once

#include "platform/services.h"

namespace wb::platform::windows {

/// Starts programs through the system's shell.
class Win32Shell : public Shell {
public:
    bool start(const ShellCommand& command) override;
};

} // namespace wb::platform::windows
