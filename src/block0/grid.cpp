#include "block0/grid.h"

#include "core/base/text.h"
#include "report/show_report.h"

namespace wb::block0 {

namespace {

/// With editing off every panel is shown but dead, and every cell is read-only.
void setGate(const BlockScreenRules& rules, BlockScreen& screen, bool open) {
    screen.txtBrand.setLocked(!open);
    screen.txtModel.setLocked(!open);
    for (int i = screen.Hints.first(); i <= screen.Hints.last(); ++i) {
        screen.Hints(i).setEnabled(open);
    }
    for (int i = open ? rules.firstUnlockedCell : 0; i < BlockScreen::cellCount; ++i) {
        screen.txtEdit(i).setLocked(!open);
    }
}

} // namespace

void colourCells(const Statements& run, BlockScreen& screen, CellRange cells, CellColour colour) {
    for (int i = cells.first; i <= cells.last; ++i) {
        run([&] { screen.txtEdit(i).setBackColor(colour); });
    }
}

void colourField(BlockScreen& screen, CellRange group, CellRange field) {
    const Statements run(screen.workbench(), Statements::OnFailure::LeaveProcedure);
    colourCells(run, screen, group, CellColour::Group);
    colourCells(run, screen, field, CellColour::Field);
}

void beginFocusDispatch(const BlockScreenRules& rules, Workbench& workbench) {
    BlockScreen& screen = rules.screen(workbench);
    screen.InFocusDispatch = flagTrue;
    screen.DTHelp.setVisible(false);
    setGate(rules, screen, workbench.ModifyEDIDOn != flagFalse);
    for (int i = screen.Hints.first(); i <= screen.Hints.last(); ++i) {
        screen.Hints(i).setVisible(false);
    }
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        screen.txtEdit(i).setBackColor(CellColour::Window);
    }
}

void endFocusDispatch(const BlockScreenRules& rules, Workbench& workbench, int index) {
    BlockScreen& screen = rules.screen(workbench);
    const Statements run(workbench, rules.onFailure);
    rules.recalculateChecksum(workbench);
    screen.InFocusDispatch = flagFalse;
    run([&] { SelectAllInControl(screen.txtEdit(index)); });
    if (workbench.DocumentOpen != flagFalse && workbench.EDIDRedecodeNeeded != flagFalse) {
        run([&] { report::ShowReport(workbench, false); });
        workbench.EDIDRedecodeNeeded = flagFalse;
    }
}

void txtEdit_KeyPress(Workbench&, int, int& keyAscii) {
    keyAscii = static_cast<unsigned char>(upperCase(static_cast<char>(keyAscii)));
}

void txtEdit_LostFocus(const BlockScreenRules& rules, Workbench& workbench, int index) {
    procedure(rules, workbench, [&](BlockScreen& screen, const Statements& run) {
        if (screen.txtEdit(index).text().size() > 2) {
            run([&] { workbench.showMessage(std::string(rules.lengthMessage)); });
            run([&] { workbench.focus.moveTo(screen.txtEdit(index)); });
        }
    });
}

} // namespace wb::block0
