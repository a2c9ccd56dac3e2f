#include "cea/screen.h"

#include "cea/checksum.h"
#include "cea/definitions.h"
#include "cea/detailed_slots.h"
#include "cea/procedure.h"
#include "core/base/extension_tags.h"
#include "core/base/image_layout.h"

namespace wb::cea {

namespace {

BlockScreen& extensionScreen(Workbench& workbench) {
    return workbench.frmCEA_EXT();
}

void fillCells(const Procedure& run) {
    for (int i = extensionCells::timingOffset; i < BlockScreen::cellCount; ++i) {
        run.cell(i).setText("00");
    }
    run.cell(extensionCells::tag).setText(ceaTagText);
    run.cell(extensionCells::version).setText("03");
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
        run.workbench.EDIDModified = flagFalse;
        run.workbench.EDIDRedecodeNeeded = flagFalse;
        run.workbench.EDIDLoaded = flagTrue;
        run.screen.txtBrand.setText(run.workbench.frmEDID().txtBrand.text());
        run.screen.txtModel.setText(run.workbench.frmEDID().txtModel.text());
        run.workbench.ExtDetailedBlockText.create(7);
        run.workbench.ExtDetailedBlockNote.create(13);
        CalcCheckSum(run.workbench);
        BuildCEA_EXT_Definations(run.workbench);
    });
}

void Cmd_Return_Click(Workbench& workbench, int /*index*/) {
    procedure(workbench, [](const Procedure& run) {
        run.statement([&] { run.workbench.windows.hide(run.screen); });
        run.workbench.CEAScreenOpen = flagFalse;
        if (run.workbench.EDIDLoaded != flagFalse) {
            run.statement([&] { run.workbench.windows.show(run.workbench.frmEDID()); });
            run.statement([&] { run.workbench.focus.moveTo(run.workbench.frmEDID().txtEdit(0)); });
        }
    });
}

} // namespace wb::cea
