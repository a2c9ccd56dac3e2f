#include "adapters/hotplug.h"

namespace wb::adapters {

bool canWatchMonitors() {
    return false;
}

std::unique_ptr<Hotplug> watchMonitors() {
    return nullptr;
}

} // namespace wb::adapters
