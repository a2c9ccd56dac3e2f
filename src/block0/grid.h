#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/statements.h"
#include "core/workbench.h"

/// The grid of cells that both block screens have: the gate, the colours, and the common ends of a focus dispatch.
namespace wb::block0 {

/// What tells the two block screens apart where they share code.
struct BlockScreenRules {
    BlockScreen& (*screen)(Workbench&); ///< the screen; a touch
    int firstUnlockedCell;              ///< cells below it keep their lock when editing is switched on
    std::string_view lengthMessage;     ///< told when a cell is left with more than two characters
    void (*recalculateChecksum)(Workbench&);
    void (*convertDetailedTiming)(Workbench&);
    Statements::OnFailure onFailure;
};

/// Runs `body(screen, run)` as a procedure of that screen. Statements given to `run` are single ones: where the screen
/// goes on with the next statement, each shows its own failure.
template <class Body>
void procedure(const BlockScreenRules& rules, Workbench& workbench, Body&& body) {
    trapped(workbench,
            [&] { std::forward<Body>(body)(rules.screen(workbench), Statements(workbench, rules.onFailure)); });
}

/// Cells `first` to `last`.
struct CellRange {
    int first;
    int last;

    constexpr bool contains(int cell) const { return cell >= first && cell <= last; }
};
inline constexpr CellRange noCells{0, -1};

inline constexpr int enterKey = 13;

/// Gives cells a background colour, each as a statement of its own.
void colourCells(const Statements& run, BlockScreen& screen, CellRange cells, CellColour colour);

/// The two highlight colours of a visit: first the group, then the field.
void colourField(BlockScreen& screen, CellRange group, CellRange field);

/// The head of a focus dispatch: raises InFocusDispatch, opens or closes the gate (locks of cells and identity texts,
/// panels enabled or not), hides all panels and takes the colours from all cells.
void beginFocusDispatch(const BlockScreenRules& rules, Workbench& workbench);

/// The end of a focus dispatch: check sum, InFocusDispatch lowered, the cell's text selected, and an open report that
/// is out of date made anew.
void endFocusDispatch(const BlockScreenRules& rules, Workbench& workbench, int index);

/// Replaces the key by its upper-case character; nothing else is filtered.
void txtEdit_KeyPress(Workbench& workbench, int index, int& keyAscii);

/// A cell with more than two characters is told to the user and takes the focus back.
void txtEdit_LostFocus(const BlockScreenRules& rules, Workbench& workbench, int index);

} // namespace wb::block0
