#include "block0/panel_established.h"

#include "block0/cell_writing.h"
#include "block0/field_decoders.h"
#include "core/edid_image.h"

namespace wb::block0 {

namespace {

void writeBit(Workbench& workbench, int cell, const Control& check, int bit) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        if (screen.InFocusDispatch != flagFalse) {
            return;
        }
        replaceBits(screen, cell, 255 - bit, check.value() == 1 ? bit : 0);
        decodeFieldOf(workbench, cell);
        RecalcBlock0Checksum(workbench);
    });
}

} // namespace

void ET1_Click(Workbench& workbench, int index) {
    writeBit(workbench, 35, workbench.frmEDID().ET1(index), 128 >> index);
}

void ET2_Click(Workbench& workbench, int index) {
    writeBit(workbench, 36, workbench.frmEDID().ET2(index), 128 >> index);
}

void ET3_Click(Workbench& workbench, int index) {
    writeBit(workbench, 37, workbench.frmEDID().ET3(index), 128);
}

} // namespace wb::block0
