#pragma once

#include <string_view>

/// Steps that the rows of the focus dispatch share.
namespace wb::cea {

struct Procedure;

/// Shows a panel in place of the tag panel; with `words`, captions it for the cell.
void showPanel(const Procedure& run, int panel);
void showPanel(const Procedure& run, int panel, int index, std::string_view words);

void colourField(const Procedure& run, int index);
/// The data bytes of a block in the group colour, then the cell.
void colourInBlock(const Procedure& run, int index, int start, int length);

/// The header of a block keeps the tag panel, which then edits this kind.
void openHeader(const Procedure& run, int index, std::string_view kind);

} // namespace wb::cea
