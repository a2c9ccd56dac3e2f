#include "shell/lifecycle.h"

#include <utility>

#include "block0/extension_button.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "core/input.h"
#include "files/common_dialog.h"
#include "files/data_file.h"
#include "files/image_loading.h"
#include "files/save.h"
#include "report/identity.h"
#include "report/monitor_descriptor.h"
#include "shell/frame.h"

namespace wb::shell {

namespace {

/// What Open does before it asks for a name.
void makeRoomForImage(Workbench& workbench) {
    workbench.CurrentFileName.clear();
    if (workbench.EDIDLoaded == flagFalse) {
        workbench.windows.show(workbench.frmEDID());
    } else {
        files::clearIdentityTexts(workbench);
    }
}

/// Opens the data file of that name, which `read` reads into EDIDCells. A file that is none is told there.
template <class Read>
void openNamed(Workbench& workbench, const std::string& name, Read&& read) {
    workbench.CurrentFileName = name;
    workbench.frmEDID().setCaption(name);
    if (!std::forward<Read>(read)()) {
        return;
    }
    workbench.LoadedBytes.clear();
    files::LoadBlock0Cells(workbench);
    workbench.focus.moveTo(workbench.frmEDID().txtEdit(0));
    if (block0::UpdateExtensionButton(workbench)) {
        files::LoadExtensionCells(workbench);
    }
    noteLoaded(workbench);
    workbench.EDIDModified = flagFalse;
}

/// Open, with a name that the caller finds once there is room for the image.
template <class FindName>
void open(Workbench& workbench, FindName&& findName) {
    makeRoomForImage(workbench);
    const std::string name = std::forward<FindName>(findName)();
    if (!name.empty()) {
        openNamed(workbench, name, [&] { return files::ReadEDIDDataFile(workbench); });
    }
    workbench.EDIDLoaded = flagTrue;
}

} // namespace

void mnuFileNew(Workbench& workbench) {
    trapped(workbench, [&] {
        if (!files::offerSave(workbench)) {
            return;
        }
        if (workbench.EDIDLoaded != flagFalse) {
            if (workbench.askYesNo("Are You Sure?", "New EDID Data File", platform::Icon::Question)) {
                files::InitNewImage(workbench);
            }
        } else {
            workbench.windows.show(workbench.frmEDID());
            files::InitNewImage(workbench);
        }
        workbench.CurrentFileName.clear();
        if (block0::UpdateExtensionButton(workbench) && workbench.ModifyEDIDOn == flagFalse) {
            Command2_Click(workbench);
        }
        noteLoaded(workbench);
        workbench.focus.moveTo(workbench.frmEDID());
        workbench.EDIDModified = flagFalse;
    });
}

void mnuFileOpen(Workbench& workbench) {
    open(workbench, [&] { return files::askOpenName(workbench, "Open", "EDID/DDC Data Files (*.DAT)|*.DAT"); });
}

bool dropDataFile(Workbench& workbench, const std::string& name) {
    const Screen* frame = workbench.loaded(ScreenId::Main);
    if (frame == nullptr || !input::reachable(*frame)) {
        return false;
    }
    workbench.runUserAction(Deed::Other, nullptr, [&] { open(workbench, [&] { return name; }); });
    return true;
}

bool openDataFile(Workbench& workbench, const std::string& name, std::string_view content) {
    bool loaded = false;
    trapped(workbench, [&] {
        makeRoomForImage(workbench);
        openNamed(workbench, name, [&] { return loaded = files::readDataFile(workbench, content); });
        workbench.EDIDLoaded = flagTrue;
    });
    return loaded;
}

void mnuFileClose(Workbench& workbench) {
    for (const ScreenId id : {ScreenId::HexCalculator, ScreenId::Edid, ScreenId::Document, ScreenId::CeaExt}) {
        const Screen* active = workbench.windows.activeChild();
        if (active != nullptr && active->id() == id) {
            silently([&] { workbench.windows.unload(id); });
        }
    }
}

void frmEDID_Load(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            screen.txtEdit(i).setText("00");
        }
        workbench.LoadedBytes.clear();
        workbench.EDIDModified = flagFalse;
        workbench.EDIDRedecodeNeeded = flagFalse;
        workbench.EDIDLoaded = flagTrue;
        workbench.DetailedBlockText.create(detailedBlockCount);
    });
}

void frmEDID_Unload(Workbench& workbench, bool& cancel) {
    cancel = !files::offerSave(workbench);
    workbench.EDIDLoaded = flagFalse;
}

void frmCEA_EXT_Unload(Workbench& workbench, bool&) {
    workbench.CEAScreenOpen = flagFalse;
}

void frmDocument_Load(Workbench& workbench) {
    frmDocument_Resize(workbench);
    workbench.DocumentOpen = flagTrue;
}

void frmDocument_Unload(Workbench& workbench, bool&) {
    workbench.DocumentOpen = flagFalse;
}

void frmDocument_Resize(Workbench& workbench) {
    constexpr int margin = FrmDocument::margin;
    FrmDocument& screen = workbench.frmDocument();
    const int width = screen.innerWidth - 2 * margin;
    const int height = screen.innerHeight - 2 * margin;
    if (width >= 0 && height >= 0) {
        screen.rtftext.setBounds({.left = margin, .top = margin, .width = width, .height = height});
    }
}

bool FillInModelInfo(Workbench& workbench) {
    FrmEdid& screen = workbench.frmEDID();
    screen.txtModel.setText("");
    screen.txtBrand.setText("");
    std::string code = report::GetProductCode(workbench);
    code = code.substr(0, code.find('('));
    // Vendor and code are joined with the bytes of the code in the other order; nothing uses the outcome.
    [[maybe_unused]] const std::string joined =
        report::GetManufacturer(workbench) + rightPart(code, 2) + leftPart(code, 2);
    if (screen.txtModel.text().empty()) {
        screen.txtModel.setText(GetModelName(workbench, "UNKNOWN MODEL"));
    }
    if (screen.txtBrand.text().empty()) {
        screen.txtBrand.setText(GetBrandName(workbench, "UNKNOWN BRAND"));
    }
    return true;
}

std::string GetModelName(Workbench& workbench, const std::string& otherwise) {
    return trappedOr(workbench, std::string(), [&] {
        FrmEdid& screen = workbench.frmEDID();
        std::string name;
        for (int block = 0; block < detailedBlockCount; ++block) {
            if (report::appendMonitorName(screen, block, name)) {
                return name;
            }
        }
        return otherwise;
    });
}

std::string GetBrandName(Workbench& workbench, const std::string& otherwise) {
    return workbench.IDManufacturerName.empty() ? otherwise : workbench.IDManufacturerName;
}

} // namespace wb::shell
