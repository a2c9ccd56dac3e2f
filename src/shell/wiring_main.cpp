#include "acquire/base_location.h"
#include "acquire/get_edid.h"
#include "acquire/scan.h"
#include "files/export_hex.h"
#include "files/save.h"
#include "shell/calculator.h"
#include "shell/frame.h"
#include "shell/information.h"
#include "shell/lifecycle.h"
#include "shell/printing.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace wb::shell {

namespace {

/// A handler for a procedure that takes no index.
template <void (*procedure)(Workbench&)>
void handler(Workbench& workbench, int) {
    procedure(workbench);
}

} // namespace

void connectMainScreen(Screen& screen) {
    auto& frame = static_cast<FrmMain&>(screen);
    frame.mnuFileNew.on.click = &handler<mnuFileNew>;
    frame.mnuFileOpen.on.click = &handler<mnuFileOpen>;
    frame.mnuFileClose.on.click = &handler<mnuFileClose>;
    frame.mnuFileSave.on.click = &handler<files::FileSave>;
    frame.mnuFileSaveAs.on.click = &handler<files::FileSaveAs>;
    frame.mnuFilePageSetup.on.click = &handler<mnuFilePageSetup>;
    frame.mnuFilePrintPreview.on.click = &handler<translateEDID>;
    frame.mnuFilePrint.on.click = &handler<mnuFilePrint>;
    frame.ExportHex.on.click = &handler<files::ExportHex_Click>;
    frame.HexCalculator.on.click = &handler<HexCalculator_Click>;
    frame.GetEDIDData.on.click = &handler<acquire::GetEDIDData>;
    frame.Windows2000.on.click = &handler<acquire::Windows2000_Click>;
    frame.mnuFileExit.on.click = &handler<mnuFileExit>;
    frame.mnuWindowCascade.on.click = &handler<arrange<platform::Arrangement::Cascade>>;
    frame.mnuWindowTileHorizontal.on.click = &handler<arrange<platform::Arrangement::TileHorizontal>>;
    frame.mnuWindowTileVertical.on.click = &handler<arrange<platform::Arrangement::TileVertical>>;
    frame.mnuWindowArrangeIcons.on.click = &handler<arrange<platform::Arrangement::ArrangeIcons>>;
    frame.Info.on.click = &handler<Info_Click>;
    frame.mnuHelpAbout.on.click = &handler<mnuHelpAbout_Click>;
    frame.tbToolBar.on.click = &tbToolBar_ButtonClick;
    frame.Command1.on.click = &handler<translateEDID>;
    frame.Command2.on.click = &handler<Command2_Click>;
    frame.Command3.on.click = &handler<Command3_Click>;
    frame.Command4.on.click = &handler<Command4_Click>;
    frame.Command5.on.click = &handler<acquire::Command5_Click>;
}

void connectHexCalculatorScreen(Screen& screen) {
    auto& calculator = static_cast<FrmHexCalculator&>(screen);
    calculator.Command1.on.click = &frmHexCalculator_Command1_Click;
    calculator.Option1.on.click = &frmHexCalculator_Option1_Click;
    calculator.keyUp = &frmHexCalculator_KeyUp;
}

void connectDocumentScreen(Screen& screen) {
    static_cast<FrmDocument&>(screen).resize = &frmDocument_Resize;
}

void connectHelpScreen(Screen& screen) {
    static_cast<FrmHelp&>(screen).Command1.on.click = &handler<frmHelp_Command1_Click>;
}

void connectEdidRegScreen(Screen& screen) {
    static_cast<FrmEdidReg&>(screen).Command1.on.click = &acquire::frmEDIDREG_Command1_Click;
}

void connectAboutScreen(Screen& screen) {
    auto& about = static_cast<FrmAbout&>(screen);
    about.cmdOK.on.click = &handler<frmAbout_cmdOK_Click>;
    about.cmdSysInfo.on.click = &handler<StartSysInfo>;
}

} // namespace wb::shell
