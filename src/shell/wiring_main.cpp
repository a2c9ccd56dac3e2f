#include "files/save.h"
#include "shell/frame.h"
#include "shell/lifecycle.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace wb::shell {

namespace {

/// A handler for a procedure that takes no index.
template <void (*procedure)(Workbench&)>
void handler(Workbench& workbench, int) {
    procedure(workbench);
}

/// What the program cannot do yet is out of the user's reach.
void disableWhatIsMissing(FrmMain& frame) {
    for (Control* entry : {static_cast<Control*>(&frame.mnuFilePageSetup), static_cast<Control*>(&frame.mnuFilePrint),
                           static_cast<Control*>(&frame.ExportHex), static_cast<Control*>(&frame.HexCalculator),
                           static_cast<Control*>(&frame.GetEDIDData), static_cast<Control*>(&frame.Windows2000),
                           static_cast<Control*>(&frame.Info), static_cast<Control*>(&frame.mnuHelpAbout),
                           static_cast<Control*>(&frame.Command5)}) {
        entry->setEnabled(false);
    }
    for (const int key : {5, 6, 7}) {
        frame.tbToolBar(key).setEnabled(false);
    }
}

} // namespace

void connectMainScreen(Screen& screen) {
    auto& frame = static_cast<FrmMain&>(screen);
    frame.mnuFileNew.on.click = &handler<mnuFileNew>;
    frame.mnuFileOpen.on.click = &handler<mnuFileOpen>;
    frame.mnuFileClose.on.click = &handler<mnuFileClose>;
    frame.mnuFileSave.on.click = &handler<files::FileSave>;
    frame.mnuFileSaveAs.on.click = &handler<files::FileSaveAs>;
    frame.mnuFilePrintPreview.on.click = &handler<translateEDID>;
    frame.mnuFileExit.on.click = &handler<mnuFileExit>;
    frame.mnuWindowCascade.on.click = &handler<arrange<platform::Arrangement::Cascade>>;
    frame.mnuWindowTileHorizontal.on.click = &handler<arrange<platform::Arrangement::TileHorizontal>>;
    frame.mnuWindowTileVertical.on.click = &handler<arrange<platform::Arrangement::TileVertical>>;
    frame.mnuWindowArrangeIcons.on.click = &handler<arrange<platform::Arrangement::ArrangeIcons>>;
    frame.tbToolBar.on.click = &tbToolBar_ButtonClick;
    frame.Command1.on.click = &handler<translateEDID>;
    frame.Command2.on.click = &handler<Command2_Click>;
    frame.Command3.on.click = &handler<Command3_Click>;
    frame.Command4.on.click = &handler<Command4_Click>;
    disableWhatIsMissing(frame);
}

} // namespace wb::shell
