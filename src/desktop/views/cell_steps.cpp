#include "desktop/views/cell_steps.h"

#include <algorithm>
#include <array>

#include "core/base/image_layout.h"

namespace wb::desktop {

namespace {

constexpr int columns = 10;
constexpr int lastCell = blockSize - 1;

constexpr int left(int cell) {
    return cell - 1;
}
constexpr int right(int cell) {
    return cell + 1;
}
constexpr int up(int cell) {
    return cell - columns;
}
constexpr int down(int cell) {
    return cell + columns;
}
constexpr int rowStart(int cell) {
    return cell / columns * columns;
}
constexpr int rowEnd(int cell) {
    return std::min(rowStart(cell) + columns - 1, lastCell);
}
constexpr int top(int cell) {
    return cell % columns;
}
constexpr int bottom(int cell) {
    const int column = cell % columns;
    return lastCell - (lastCell - column) % columns;
}
constexpr int first(int) {
    return 0;
}
constexpr int last(int) {
    return lastCell;
}

struct Row {
    Qt::Key key;
    Qt::KeyboardModifier modifier;
    int (*lead)(int cell);
    TextEdge from;
};

constexpr auto rows = std::to_array<Row>({
    {Qt::Key_Up, Qt::NoModifier, &up, TextEdge::Any},
    {Qt::Key_Down, Qt::NoModifier, &down, TextEdge::Any},
    {Qt::Key_PageUp, Qt::NoModifier, &top, TextEdge::Any},
    {Qt::Key_PageDown, Qt::NoModifier, &bottom, TextEdge::Any},
    {Qt::Key_Left, Qt::NoModifier, &left, TextEdge::Start},
    {Qt::Key_Right, Qt::NoModifier, &right, TextEdge::End},
    {Qt::Key_Home, Qt::NoModifier, &rowStart, TextEdge::Start},
    {Qt::Key_End, Qt::NoModifier, &rowEnd, TextEdge::End},
    {Qt::Key_Home, Qt::ControlModifier, &first, TextEdge::Start},
    {Qt::Key_End, Qt::ControlModifier, &last, TextEdge::End},
});

const Row* rowOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const Row& r) { return r.key == event.key() && modifiers == r.modifier; });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace

std::optional<CellStep> cellStep(const QKeyEvent& event, int cell) {
    const Row* row = rowOf(event);
    const int target = row != nullptr ? row->lead(cell) : cell;
    if (target == cell || target < 0 || target > lastCell) {
        return std::nullopt;
    }
    return CellStep{target, row->from};
}

bool isRowKey(const QKeyEvent& event) {
    const Row* row = rowOf(event);
    return row != nullptr && row->from == TextEdge::Any;
}

} // namespace wb::desktop
