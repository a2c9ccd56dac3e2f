#include "cea/screen.h"

#include "cea/definitions.h"
#include "cea/detailed_slots.h"
#include "cea/procedure.h"

namespace wb::cea {

namespace {

BlockScreen& extensionScreen(Workbench& workbench) {
    return workbench.frmCEA_EXT();
}

void fillCells(const Procedure& run) {
    for (int i = 2; i < BlockScreen::cellCount; ++i) {
        run.cell(i).setText("00");
    }
    run.cell(0).setText("02");
    run.cell(1).setText("03");
}

} // namespace

const block0::BlockScreenRules ceaScreenRules = {
    .screen = &extensionScreen,
    .firstUnlockedCell = 1,
    .lengthMessage = "Please Enter Your Values In Hex",
    .recalculateChecksum = &CalcCheckSum,
    .convertDetailedTiming = &ConvertDetailedTiming,
    .onFailure = Statements::OnFailure::NextStatement,
};

void Form_Load(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        fillCells(run);
        run.wb.EDIDModified = flagFalse;
        run.wb.EDIDRedecodeNeeded = flagFalse;
        run.wb.EDIDLoaded = flagTrue;
        run.screen.txtBrand.setText(run.wb.frmEDID().txtBrand.text());
        run.screen.txtModel.setText(run.wb.frmEDID().txtModel.text());
        run.wb.ExtDetailedBlockText.create(7);
        run.wb.ExtDetailedBlockNote.create(13);
        CalcCheckSum(run.wb);
        BuildCEA_EXT_Definations(run.wb);
    });
}

void Cmd_Return_Click(Workbench& workbench, int /*index*/) {
    procedure(workbench, [](const Procedure& run) {
        run.statement([&] { run.wb.windows.hide(run.screen); });
        run.wb.CEAScreenOpen = flagFalse;
        if (run.wb.EDIDLoaded != flagFalse) {
            run.statement([&] { run.wb.windows.show(run.wb.frmEDID()); });
            run.statement([&] { run.wb.focus.moveTo(run.wb.frmEDID().txtEdit(0)); });
        }
    });
}

} // namespace wb::cea
