#include "files/save.h"

#include "core/base/text.h"
#include "core/edid_image.h"
#include "core/step.h"
#include "core/view.h"
#include "files/common_dialog.h"
#include "files/data_file.h"
#include "files/text_file.h"
#include "report/block0_report.h"
#include "report/extension_report.h"

namespace wb::files {

namespace {

/// The file is written that many times over, each pass anew, so that it ends up as the last pass wrote it.
constexpr int savePasses = 5;

void showPointer(Workbench& workbench, platform::Pointer pointer) {
    workbench.platform.eventLoop.setPointer(pointer);
    workbench.platform.eventLoop.processPending();
}

/// Hands over the lines of each block when they are built.
template <class Take>
void buildBlocks(Workbench& workbench, const Take& take) {
    const Step step(workbench, "building the report");
    report::BuildBlock0Report(workbench);
    take(dataFileText(workbench.ReportBlock0Lines));
    if (hasExtensionByDecimalText(workbench)) {
        report::BuildExtensionReport(workbench);
        take(dataFileText(workbench.ReportExtLines));
    }
}

void writeImage(Workbench& workbench) {
    if (fileExists(workbench.CurrentFileName)) {
        deleteFile(workbench.CurrentFileName);
    }
    Writer file(workbench.CurrentFileName);
    buildBlocks(workbench, [&](const std::string& text) { file.write(text); });
    file.close();
}

/// False when there is still no name to write to.
bool saveOnce(Workbench& workbench) {
    if (workbench.CurrentFileName.empty()) {
        FileSaveAs(workbench);
        if (workbench.CurrentFileName.empty()) {
            return false;
        }
    }
    writeImage(workbench);
    noteSaved(workbench);
    return true;
}

/// The same under the hourglass, with a chance for pending events at both ends; a failure passes on after that.
bool savePass(Workbench& workbench) {
    showPointer(workbench, platform::Pointer::Hourglass);
    bool named = false;
    try {
        named = saveOnce(workbench);
    } catch (const Failure&) {
        showPointer(workbench, platform::Pointer::Normal);
        throw;
    }
    showPointer(workbench, platform::Pointer::Normal);
    return named;
}

void tellWritten(Workbench& workbench) {
    if (workbench.view != nullptr && workbench.EDIDLoaded != flagFalse) {
        workbench.view->fileWritten({.name = workbench.CurrentFileName,
                                     .kind = WrittenFile::Kind::DataFile,
                                     .blocks = hasExtensionByDecimalText(workbench) ? 2 : 1});
    }
}

} // namespace

void FileSave(Workbench& workbench) {
    trapped(workbench, [&] {
        for (int pass = 0; pass < savePasses; ++pass) {
            if (workbench.EDIDLoaded != flagFalse && !savePass(workbench)) {
                return;
            }
        }
        tellWritten(workbench);
    });
}

std::string dataFileContent(Workbench& workbench) {
    std::string content;
    for (int pass = 0; pass < savePasses; ++pass) {
        content.clear();
        buildBlocks(workbench, [&](const std::string& text) { content += text; });
    }
    return content;
}

void FileSaveAs(Workbench& workbench) {
    trapped(workbench, [&] {
        if (workbench.EDIDLoaded == flagFalse) {
            return;
        }
        const std::string name = askSaveName(workbench, "Save As", "All Files (*.*)|*.*");
        if (name.empty()) {
            return;
        }
        workbench.CurrentFileName = name;
        if (fileExists(name)) {
            if (!askReplace(workbench, name)) {
                return;
            }
            deleteFile(name);
        }
        FileSave(workbench);
    });
}

bool offerSave(Workbench& workbench) {
    if (workbench.EDIDModified == flagFalse || !workbench.askYesNo("Save Changes?")) {
        return true;
    }
    FileSave(workbench);
    return workbench.EDIDModified == flagFalse;
}

bool askReplace(Workbench& workbench, const std::string& name) {
    return workbench.askYesNo(name + "\r\n\r\nExists! Do you want to Replace it?");
}

} // namespace wb::files
