#include "fields/block0.h"

#include "fields/detailed_timing.h"
#include "fields/scope.h"

namespace wb::fields {

namespace {

constexpr std::array<std::size_t, 4> slots = {54, 72, 90, 108};

} // namespace

void readBlock0(Reading& reading) {
    const Scope base(reading, 0, "base", "E-EDID 1.4");
    base.addBytes(0, slots[0], "head", "Head");
    for (std::size_t i = 0; i < slots.size(); ++i) {
        readDetailedTiming(base.inner(slots[i], "detailed[" + std::to_string(i + 1) + "]", "E-EDID 1.4, 3.10.2"),
                           i == 0);
    }
    base.add({.name = "extension_count", .label = "Extension blocks", .parts = {{126}}});
    base.add({.name = "checksum", .label = "Check sum", .parts = {{127}}});
}

} // namespace wb::fields
