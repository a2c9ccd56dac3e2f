#include "cea/dispatch_steps.h"

namespace wb::cea {

void showPanel(const Procedure& run, int panel) {
    run.screen.Hints(tagPanel).setVisible(false);
    run.screen.Hints(panel).setVisible(true);
}

void captionPanel(const Procedure& run, int panel, int index, std::string_view words) {
    run.screen.Hints(panel).setCaption(std::string(words) + std::to_string(index) + ")");
}

void showPanel(const Procedure& run, int panel, int index, std::string_view words) {
    showPanel(run, panel);
    captionPanel(run, panel, index, words);
}

void colourField(const Procedure& run, int index) {
    run.colour(index, index, CellColour::Field);
}

/// The data bytes of a block in the group colour, then the cell.
void colourInBlock(const Procedure& run, int index, int start, int length) {
    run.colour(location(start, 1), location(start, length), CellColour::Group);
    colourField(run, index);
}

void openHeader(const Procedure& run, int index, std::string_view kind) {
    captionPanel(run, tagPanel, index, "Data Block Tag Codes (");
    colourField(run, index);
    run.workbench.DataBlockKind = kind;
}

} // namespace wb::cea
