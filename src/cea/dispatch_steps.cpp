#include "cea/dispatch_steps.h"

#include "cea/location.h"
#include "cea/panels.h"
#include "cea/procedure.h"

namespace wb::cea {

void showPanel(const Procedure& run, int panel) {
    run.screen.Hints(panels::tag).setVisible(false);
    run.screen.Hints(panel).setVisible(true);
}

void showPanel(const Procedure& run, int panel, int index, std::string_view words) {
    showPanel(run, panel);
    run.captionPanel(panel, index, words);
}

void colourField(const Procedure& run, int index) {
    run.colour(index, index, CellColour::Field);
}

void colourInBlock(const Procedure& run, int index, int start, int length) {
    run.colour(location(start, 1), location(start, length), CellColour::Group);
    colourField(run, index);
}

void openHeader(const Procedure& run, int index, std::string_view kind) {
    run.captionPanel(panels::tag, index, "Data Block Tag Codes (");
    colourField(run, index);
    run.workbench.DataBlockKind = kind;
}

} // namespace wb::cea
