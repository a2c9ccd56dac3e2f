#include "shell/printing.h"

#include "report/show_report.h"

namespace wb::shell {

namespace {

constexpr int printerFlags = platform::printNoPageNumbers + platform::printReturnDeviceContext;

/// Only the report window has a document; reading the selection of any other child fails, which leaves the flags as
/// they are. The report is built anew after the dialog, so that the selection never narrows what is printed.
int flagsFor(Workbench& workbench) {
    const bool isDocument = workbench.windows.activeChild()->id() == ScreenId::Document;
    const bool selection = isDocument && workbench.frmDocument().rtftext.selLength() != 0;
    return selection ? printerFlags + platform::printSelection : printerFlags;
}

} // namespace

void mnuFilePageSetup(Workbench& workbench) {
    workbench.platform.dialogs.pageSetup("Page Setup");
}

void mnuFilePrint(Workbench& workbench) {
    if (workbench.EDIDLoaded == flagFalse || workbench.windows.activeChild() == nullptr ||
        !workbench.platform.dialogs.print("Print", flagsFor(workbench))) {
        return;
    }
    silently([&] { report::ShowReport(workbench, true); });
    silently([&] { workbench.platform.printer.print(workbench.frmDocument().rtftext.text()); });
    silently([&] { workbench.windows.unload(ScreenId::Document); });
}

} // namespace wb::shell
