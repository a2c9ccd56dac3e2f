#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "block0_fixture.h"
#include "report/monitor_descriptor.h"

namespace wb::report {

/// Works on the first of the four descriptors of a program that is not shown.
class Descriptor : public Block0 {
protected:
    Descriptor() { select(0); }

    void select(int number) {
        screen.CurrentBlockBase = static_cast<std::int16_t>(54 + 18 * number);
        screen.CurrentBlockNumber = static_cast<std::int16_t>(number);
    }
    /// Decodes block 0 with the tag and the payload from its first cell on.
    void decode(std::string_view tag, std::initializer_list<std::string_view> payload) {
        set(57, {tag});
        set(59, payload);
        ConvertDetailedTiminga(workbench);
    }
    std::string report() { return workbench.DetailedBlockText(0); }
};

} // namespace wb::report
