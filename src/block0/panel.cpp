#include "block0/panel.h"

#include "block0/cell_writing.h"
#include "block0/field_decoders.h"
#include "core/edid_image.h"

namespace wb::block0 {

void changeBits(Workbench& workbench, int cell, BitRange range, int number) {
    writeBits(workbench.frmEDID(), cell, range, number);
    decodeFieldOf(workbench, cell);
    RecalcBlock0Checksum(workbench);
}

void changeBit(Workbench& workbench, int cell, int place, const Control& check) {
    whenUserActs(workbench, [&](FrmEdid&) { changeBits(workbench, cell, {place, place}, check.value() == 1 ? 1 : 0); });
}

} // namespace wb::block0
