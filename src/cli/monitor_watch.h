#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "adapters/hotplug.h"
#include "cli/system.h"

namespace wb::cli {

/// Tells of the attached monitors, then of each change of them, until the program is asked to end.
class MonitorWatch {
public:
    using List = std::function<std::vector<Monitor>()>;
    /// `event` is "listed", "connected", "changed" or "disconnected".
    using Tell = std::function<void(std::string_view event, const Monitor& monitor, bool taken)>;

    MonitorWatch(List list, Tell tell) : list_(std::move(list)), tell_(std::move(tell)) {}

    /// Goes on until the source says Stop; that nobody reads standard output any more is an OutputError. Failures of
    /// the list and of the source come through.
    void run(adapters::Hotplug& source);

private:
    struct Known {
        Monitor monitor;
        bool taken = false;
    };

    std::vector<Known> look() const;
    void update();

    List list_;
    Tell tell_;
    std::vector<Known> known_;
};

} // namespace wb::cli
