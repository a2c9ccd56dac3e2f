#pragma once

#include <string_view>

#include "core/workbench.h"

namespace wb::shell {

/// Typing into cell after cell as a user does, as part of one action. While it lives, Auto Cell Seek, which lets nobody
/// type into cells, is switched off, and an open report is not made anew after each change: one at the end will do, and
/// so many builds would move the timings of the extension out of it.
class CellTyping {
public:
    explicit CellTyping(Workbench& workbench);
    CellTyping(const CellTyping&) = delete;
    CellTyping& operator=(const CellTyping&) = delete;
    ~CellTyping();

    /// Gives the focus to the cell of a byte of the image; false where it does not get there.
    bool goTo(int byte);
    /// Types keys into the control that has the focus.
    void type(std::string_view keys);
    /// Types the whole text of the cell of a byte, and the program makes of that what it does; false where the focus
    /// does not get there and where the cell is locked.
    bool typeCell(int byte, std::string_view text);

private:
    void switchSeeking();

    Workbench& workbench_;
    bool seeks_;
    bool changed_ = false;
};

} // namespace wb::shell
