#include "files/common_dialog.h"

namespace wb::files {

namespace {

template <class Ask>
std::string askName(Workbench& workbench, const std::string& title, const std::string& filter, Ask&& ask) {
    FrmMain& frame = workbench.frmMain();
    frame.dialogFilter = filter;
    frame.dialogFileName = ask(platform::FileDialogRequest{
        .title = title, .folder = workbench.platform.programFolder, .filter = filter, .name = frame.dialogFileName});
    return frame.dialogFileName;
}

} // namespace

std::string askOpenName(Workbench& workbench, const std::string& title, const std::string& filter) {
    return askName(workbench, title, filter, [&](const platform::FileDialogRequest& request) {
        return workbench.platform.dialogs.openFile(request);
    });
}

std::string askSaveName(Workbench& workbench, const std::string& title, const std::string& filter) {
    return askName(workbench, title, filter, [&](const platform::FileDialogRequest& request) {
        return workbench.platform.dialogs.saveFile(request);
    });
}

} // namespace wb::files
