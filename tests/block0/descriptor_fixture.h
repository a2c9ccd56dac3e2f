#pragma once

#include "block0/editor.h"

namespace wb::test {

/// An editor with Modify EDID on and the third block in hand.
class DescriptorEditor : public Editor {
protected:
    static constexpr int base = 90;

    DescriptorEditor() { switchModify(); }
    /// A descriptor whose cells behind the tag are all "11".
    void makeBlock(const char* tag) {
        program.setCells(base, {"00", "00", "00", tag, "11", "11", "11", "11", "11", "11", "11", "11", "11", "11", "11",
                                "11", "11", "11"});
    }
    std::string payload() { return cells(base + 5, base + 17); }
    std::string at(int offset) { return cell(base + offset); }
};

} // namespace wb::test
