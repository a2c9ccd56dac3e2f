#include "shell/go_to_byte.h"

#include "core/input.h"

namespace wb::shell {

namespace {

/// With Auto Cell Seek the focus goes on from a cell to the input box of its panel.
bool arrivedAt(const Control& cell) {
    const Control* holder = cell.screen().workbench().focus.current();
    return holder == &cell || (holder != nullptr && &holder->screen() == &cell.screen() &&
                               holder->name() != "txtEdit" && cell.screen().workbench().AutoCellSeekOn != flagFalse);
}

bool reportTookTheFocus(const Workbench& workbench) {
    const Control* holder = workbench.focus.current();
    return holder != nullptr && holder->screen().id() == ScreenId::Document;
}

} // namespace

bool goToByte(Workbench& workbench, int byte) {
    Control* cell = cellOf(workbench, byte);
    if (cell == nullptr) {
        return false;
    }
    if (!cell->screen().shown() && cell->screen().id() == ScreenId::CeaExt) {
        input::click(workbench.frmMain().Command4);
    }
    // A report that was out of date is built anew on the way and takes the focus, as after each change; then it is up
    // to date, and does not do so a second time.
    if (input::moveFocus(*cell) && reportTookTheFocus(workbench)) {
        input::moveFocus(*cell);
    }
    return arrivedAt(*cell);
}

Control* cellOf(const Workbench& workbench, int byte) {
    const ScreenId id = byte < blockSize ? ScreenId::Edid : ScreenId::CeaExt;
    auto* screen = static_cast<BlockScreen*>(workbench.loaded(id));
    return screen != nullptr && byte >= 0 && byte < imageSize ? &screen->txtEdit(byte % blockSize) : nullptr;
}

std::optional<int> byteOf(const Control* control) {
    if (control == nullptr || control->name() != "txtEdit") {
        return std::nullopt;
    }
    return control->index() + (control->screen().id() == ScreenId::Edid ? 0 : blockSize);
}

std::optional<int> focusedByte(const Workbench& workbench) {
    return byteOf(workbench.focus.current());
}

} // namespace wb::shell
