#pragma once

#include <chrono>
#include <memory>
#include <optional>

namespace wb::adapters {

enum class HotplugEvent {
    Change,      ///< the system tells of a change of its graphics adapters or their connectors
    Quiet,       ///< nothing happened in the time given
    Stop,        ///< the user or the system asks the program to end (SIGINT, SIGTERM)
    OutputClosed ///< nobody reads standard output any more
};

/// What happens to the monitors of the running system.
class Hotplug {
public:
    virtual ~Hotplug() = default;
    /// Waits for the next event; without a time as long as it takes. A failure is a std::system_error.
    virtual HotplugEvent next(std::optional<std::chrono::milliseconds> patience) = 0;
};

/// Whether the program was built with what watchMonitors needs.
bool canWatchMonitors();

/// The events of the kernel, by libudev; null where the program was built without it. While the object lives, SIGINT
/// and SIGTERM end nothing by themselves. What cannot be had is a std::system_error.
std::unique_ptr<Hotplug> watchMonitors();

} // namespace wb::adapters
