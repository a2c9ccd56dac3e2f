#include "block0/panel.h"

#include "block0/cell_writing.h"
#include "block0/field_decoders.h"
#include "core/edid_image.h"

namespace wb::block0 {

void changeBits(Workbench& workbench, int cell, int keep, int bits) {
    replaceBits(workbench.frmEDID(), cell, keep, bits);
    decodeFieldOf(workbench, cell);
    RecalcBlock0Checksum(workbench);
}

void changeBit(Workbench& workbench, int cell, int bit, const Control& check) {
    whenUserActs(workbench, [&](FrmEdid&) { changeBits(workbench, cell, 255 - bit, check.value() == 1 ? bit : 0); });
}

} // namespace wb::block0
