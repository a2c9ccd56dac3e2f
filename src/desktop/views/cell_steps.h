#pragma once

#include <QKeyEvent>
#include <optional>

/// The keys that lead from a cell of the grid to another one, as in a hexadecimal editor.
namespace wb::desktop {

/// Where the cursor must stand in a text that may be edited before the key leaves it: before that it moves inside.
enum class TextEdge { Any, Start, End };

struct CellStep {
    int cell; ///< 0 to 127
    TextEdge from;
};

/// Where the key leads from that cell; nothing for other keys, and where there is no cell in that direction.
std::optional<CellStep> cellStep(const QKeyEvent& event, int cell);
/// Whether the key is one of those that always mean another cell, be there one or not.
bool isRowKey(const QKeyEvent& event);

} // namespace wb::desktop
