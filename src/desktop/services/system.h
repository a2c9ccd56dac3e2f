#pragma once

#include <memory>

#include "platform/services.h"

namespace wb::desktop {

/// What the desktop takes from the system that it runs on.
class System {
public:
    static std::unique_ptr<System> make();

    virtual ~System() = default;
    virtual platform::Registry& registry() = 0;
    virtual platform::Shell& shell() = 0;
};

} // namespace wb::desktop
