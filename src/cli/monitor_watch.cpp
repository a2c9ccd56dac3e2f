#include "cli/monitor_watch.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "cli/monitor_list.h"
#include "cli/output.h"

namespace wb::cli {

namespace {

using namespace std::chrono_literals;
using adapters::HotplugEvent;

/// The kernel tells of a plug before it has read the EDID, and not again after that.
constexpr int laterLooks = 4;
constexpr std::chrono::milliseconds pause = 500ms;

bool same(const Monitor& one, const Monitor& other) {
    return one.source == other.source && one.edid == other.edid && one.error == other.error;
}

/// The element of that monitor in a list, or null.
template <class List>
auto* findIn(List& list, const std::string& name) {
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const auto& one) { return one.monitor.name == name; });
    return found == list.end() ? nullptr : &*found;
}

} // namespace

std::vector<MonitorWatch::Known> MonitorWatch::look() const {
    const std::vector<Monitor> monitors = list_();
    const Monitor* const taken = takenByRead(monitors);
    std::vector<Known> known;
    known.reserve(monitors.size());
    for (const Monitor& monitor : monitors) {
        known.push_back({monitor, &monitor == taken});
    }
    return known;
}

void MonitorWatch::update() {
    std::vector<Known> now = look();
    for (const Known& before : known_) {
        if (findIn(now, before.monitor.name) == nullptr) {
            tell_("disconnected", before.monitor, false);
        }
    }
    for (const Known& one : now) {
        const Known* const before = findIn(known_, one.monitor.name);
        if (before == nullptr) {
            tell_("connected", one.monitor, one.taken);
        } else if (before->taken != one.taken || !same(before->monitor, one.monitor)) {
            tell_("changed", one.monitor, one.taken);
        }
    }
    known_ = std::move(now);
    flushOutput();
}

void MonitorWatch::run(adapters::Hotplug& source) {
    known_ = look();
    for (const Known& one : known_) {
        tell_("listed", one.monitor, one.taken);
    }
    flushOutput();
    int looks = 0;
    for (;;) {
        switch (source.next(looks > 0 ? std::optional(pause) : std::nullopt)) {
            case HotplugEvent::Change:
                looks = laterLooks;
                update();
                break;
            case HotplugEvent::Quiet:
                --looks;
                update();
                break;
            case HotplugEvent::OutputClosed:
                throw OutputError("standard output: nobody reads it any more", true);
            case HotplugEvent::Stop:
                return;
        }
    }
}

} // namespace wb::cli
