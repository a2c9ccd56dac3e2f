#pragma once

#include "block0/screen_rules.h"
#include "core/base/image_layout.h"

/// The grid of cells that both block screens have: the gate, the colours, and the common ends of a focus dispatch.
namespace wb::block0 {

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
