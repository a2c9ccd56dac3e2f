#include "fields/mode_flags.h"

namespace wb::fields {

namespace {

Mode modeOf(const ModeFlag& flag) {
    Mode mode{.source = ModeSource::Established, .width = flag.width, .height = flag.height};
    mode.interlaced = flag.interlaced;
    mode.refreshMilliHertz = std::int64_t{flag.hertz} * 1000;
    return mode;
}

} // namespace

void readModeFlags(const Scope& scope, std::span<const ModeFlag> modes) {
    for (std::size_t i = 0; i < modes.size(); ++i) {
        const auto bit = static_cast<std::uint8_t>(7 - i % 8);
        const Parts parts = {{i / 8, bit, bit}};
        scope.add({.name = modes[i].name, .label = modes[i].label, .parts = parts, .kind = Kind::Flag});
        if (scope.raw(parts) != 0) {
            scope.summary().modes.push_back(modeOf(modes[i]));
        }
    }
}

} // namespace wb::fields
