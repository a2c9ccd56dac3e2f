#include "shell/frame.h"

#include "report/show_report.h"

namespace wb::shell {

void translateEDID(Workbench& workbench) {
    report::ShowReport(workbench, false);
}

void Command2_Click(Workbench& workbench) {
    workbench.ModifyEDIDOn = flag(workbench.ModifyEDIDOn == flagFalse);
    const bool on = workbench.ModifyEDIDOn != flagFalse;
    FrmMain& frame = workbench.frmMain();
    frame.Command3.setEnabled(on);
    frame.Command2.setCaption(on ? "Modify EDID (ON)" : "Modify EDID (OFF)");
    if (on) {
        workbench.focus.moveTo(workbench.frmEDID().txtEdit(0));
    }
}

void Command3_Click(Workbench& workbench) {
    workbench.AutoCellSeekOn = flag(workbench.AutoCellSeekOn == flagFalse);
    workbench.frmMain().Command3.setCaption(workbench.AutoCellSeekOn != flagFalse ? "Auto Cell Seek (ON)"
                                                                                  : "Auto Cell Seek (OFF)");
}

void Command4_Click(Workbench& workbench) {
    if (workbench.CEAScreenOpen != flagFalse) {
        return;
    }
    FrmCeaExt& screen = workbench.frmCEA_EXT();
    workbench.windows.show(screen);
    screen.Cmd_Return.setEnabled(true);
    workbench.CEAScreenOpen = flagTrue;
    if (workbench.EDIDLoaded != flagFalse) {
        workbench.focus.moveTo(screen);
        workbench.focus.moveTo(screen.txtEdit(1));
    }
}

void tbToolBar_ButtonClick(Workbench& workbench, int index) {
    FrmMain& frame = workbench.frmMain();
    const auto place = static_cast<std::size_t>(index - frame.tbToolBar.first());
    Control& entry = frame.*FrmMain::toolBarKeys.at(place).entry;
    entry.raiseClick();
}

} // namespace wb::shell
