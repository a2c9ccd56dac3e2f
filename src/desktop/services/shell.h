#pragma once

#include "platform/services.h"

namespace wb::desktop {

/// Starts other programs; the device console tool is left to what stands in for it on this system.
class QtShell : public platform::Shell {
public:
    explicit QtShell(platform::Shell& deviceTool) : deviceTool_(deviceTool) {}

    bool start(const platform::ShellCommand& command) override;

private:
    platform::Shell& deviceTool_;
};

} // namespace wb::desktop
