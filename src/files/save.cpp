#include "files/save.h"

#include "core/edid_image.h"
#include "core/text.h"
#include "files/common_dialog.h"
#include "files/data_file.h"
#include "files/text_file.h"
#include "report/block0_report.h"
#include "report/extension_report.h"

namespace wb::files {

namespace {

/// The file is written that many times over, each pass anew, so that it ends up as the last pass wrote it.
constexpr int savePasses = 5;

/// The hourglass while a save runs, with a chance for pending events at both ends.
class Hourglass {
public:
    explicit Hourglass(platform::EventLoop& events) : events_(events) { set(platform::Pointer::Hourglass); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { set(platform::Pointer::Normal); }

private:
    void set(platform::Pointer pointer) {
        events_.setPointer(pointer);
        events_.processPending();
    }

    platform::EventLoop& events_;
};

void writeImage(Workbench& workbench) {
    if (fileExists(workbench.CurrentFileName)) {
        deleteFile(workbench.CurrentFileName);
    }
    Writer file(workbench.CurrentFileName);
    report::BuildBlock0Report(workbench);
    file.write(dataFileText(workbench.ReportBlock0Lines));
    if (hasExtensionByDecimalText(workbench)) {
        report::BuildExtensionReport(workbench);
        file.write(dataFileText(workbench.ReportExtLines));
    }
    file.close();
}

/// False when there is still no name to write to.
bool savePass(Workbench& workbench) {
    const Hourglass hourglass(workbench.platform.eventLoop);
    if (workbench.CurrentFileName.empty()) {
        FileSaveAs(workbench);
        if (workbench.CurrentFileName.empty()) {
            return false;
        }
    }
    writeImage(workbench);
    workbench.EDIDModified = flagFalse;
    return true;
}

} // namespace

void FileSave(Workbench& workbench) {
    trapped(workbench, [&] {
        for (int pass = 0; pass < savePasses; ++pass) {
            if (workbench.EDIDLoaded != flagFalse && !savePass(workbench)) {
                return;
            }
        }
    });
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
