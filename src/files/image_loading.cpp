#include "files/image_loading.h"

#include "cea/definitions.h"
#include "core/base/extension_tags.h"
#include "core/base/image_layout.h"
#include "core/cells.h"
#include "report/definitions.h"

namespace wb::files {

namespace {

/// Where the buffer holds the offset of the first detailed timing of the extension block.
constexpr int timingOffsetPlace = blockSize + extensionCells::timingOffset;

void fillCells(BlockScreen& screen, std::string_view text) {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        screen.txtEdit(i).setText(std::string(text));
    }
}

} // namespace

void LoadBlock0Cells(Workbench& workbench) {
    trapped(workbench, [&] {
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            workbench.frmEDID().txtEdit(i).setText(workbench.EDIDCells(i));
        }
        report::BuildEDIDDefinations(workbench);
    });
}

void LoadExtensionCells(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmCeaExt& screen = workbench.frmCEA_EXT();
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            screen.txtEdit(i).setText(workbench.EDIDCells(BlockScreen::cellCount + i));
        }
        if (byteAt(screen, extensionCells::tag) != ceaTag) {
            return;
        }
        workbench.CEADtdOffset = static_cast<std::int16_t>(byteOf(workbench, workbench.EDIDCells(timingOffsetPlace)));
        cea::BuildCEA_EXT_Definations(workbench);
        screen.txtModel.setText(workbench.frmEDID().txtModel.text());
    });
}

void InitNewImage(Workbench& workbench) {
    FrmEdid& screen = workbench.frmEDID();
    workbench.LoadedBytes.clear();
    fillCells(screen, "00");
    if (workbench.askYesNo("CEA 861 EDID Timing Extension?")) {
        screen.txtEdit(extensionCountCell).setText("01");
        FrmCeaExt& extension = workbench.frmCEA_EXT();
        fillCells(extension, "00");
        extension.txtEdit(extensionCells::tag).setText(std::string(ceaTagText));
    } else {
        screen.txtEdit(extensionCountCell).setText("00");
    }
    for (int i = cells::header.first + 1; i < cells::header.last; ++i) {
        screen.txtEdit(i).setText("FF");
    }
    clearIdentityTexts(workbench);
    workbench.focus.moveTo(screen.txtEdit(0));
}

void clearIdentityTexts(Workbench& workbench) {
    FrmEdid& screen = workbench.frmEDID();
    screen.txtBrand.setText("");
    screen.txtModel.setText("");
    screen.txtVersion.setText("");
    screen.txtRevision.setText("");
}

} // namespace wb::files
