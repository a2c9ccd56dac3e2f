#include "cea/header.h"

#include "cea/data_blocks.h"
#include "cea/handlers.h"
#include "cea/panels.h"
#include "cea/procedure.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"

namespace wb::cea {

namespace {

std::string roundedCellText(double value) {
    return ByteToHex2(roundToInt16(value));
}

} // namespace

void BuildVersion(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const std::string version = std::to_string(run.readByte(extensionCells::version));
        run.screen.txtVersion.setText(version);
        run.screen.VerRev.setText(version);
        run.screen.Hints(panels::version).setCaption("Version Number (1)");
        run.screen.lbEDID(0).setCaption({"Version Number - ", version});
    });
}

void VerRev_KeyUp(Workbench& workbench, int /*index*/, int keyCode) {
    onEnter(workbench, keyCode, [](const Procedure& run) {
        const double value = Value(run.workbench, run.screen.VerRev.text());
        if (value >= 1 && value <= 3) {
            run.write(extensionCells::version, roundedCellText(value));
            BuildVersion(run.workbench);
        } else {
            run.workbench.showMessage("Valid number are 1 - 3");
        }
    });
}

void DetailOffset_KeyUp(Workbench& workbench, int /*index*/, int keyCode) {
    onEnter(workbench, keyCode, [](const Procedure& run) {
        const double value = Value(run.workbench, run.screen.DetailOffset.text());
        if ((value >= 4 && value <= 109) || value == 0) {
            run.write(extensionCells::timingOffset, roundedCellText(value));
            LocateDataBlocks(run.workbench);
        } else {
            run.workbench.showMessage("Valid number are 4 - 109");
        }
    });
}

void VerRev_GotFocus(Workbench& workbench, int /*index*/) {
    SelectAllInControl(workbench.frmCEA_EXT().VerRev);
}

void DetailOffset_GotFocus(Workbench& workbench, int /*index*/) {
    SelectAllInControl(workbench.frmCEA_EXT().DetailOffset);
}

std::string offsetCaption(const std::string& offset) {
    return offset == "0" ? "No Detailed Timings provided" : "Detailed Timing Start at - " + offset;
}

} // namespace wb::cea
