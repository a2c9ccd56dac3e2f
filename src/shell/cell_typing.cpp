#include "shell/cell_typing.h"

#include <utility>

#include "core/input.h"
#include "shell/go_to_byte.h"

namespace wb::shell {

CellTyping::CellTyping(Workbench& workbench) : workbench_(workbench), seeks_(workbench.AutoCellSeekOn != flagFalse) {
    switchSeeking();
}

CellTyping::~CellTyping() {
    if (changed_) {
        workbench_.EDIDRedecodeNeeded = flagTrue;
    }
    switchSeeking();
}

void CellTyping::switchSeeking() {
    if (seeks_) {
        input::click(workbench_.frmMain().Command3);
    }
}

bool CellTyping::goTo(int byte) {
    if (std::exchange(workbench_.EDIDRedecodeNeeded, flagFalse) != flagFalse) {
        changed_ = true;
    }
    return goToByte(workbench_, byte);
}

void CellTyping::type(std::string_view keys) {
    for (const char key : keys) {
        input::typeCharacter(workbench_, key);
    }
}

bool CellTyping::typeCell(int byte, std::string_view text) {
    if (!goTo(byte) || workbench_.focus.current()->locked()) {
        return false;
    }
    Control& cell = *workbench_.focus.current();
    input::select(cell, 0, static_cast<int>(cell.text().size()));
    type(text);
    return true;
}

} // namespace wb::shell
