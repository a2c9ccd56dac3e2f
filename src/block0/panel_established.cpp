#include "block0/panel_established.h"

#include "block0/panel.h"
#include "core/base/image_layout.h"
#include "report/established_timings.h"

namespace wb::block0 {

void ET1_Click(Workbench& workbench, int index) {
    changeBit(workbench, cells::establishedTimings1, report::establishedTimingBit(index),
              workbench.frmEDID().ET1(index));
}

void ET2_Click(Workbench& workbench, int index) {
    changeBit(workbench, cells::establishedTimings2, report::establishedTimingBit(index),
              workbench.frmEDID().ET2(index));
}

void ET3_Click(Workbench& workbench, int index) {
    changeBit(workbench, cells::reservedTimings, report::reservedTimingBit, workbench.frmEDID().ET3(index));
}

} // namespace wb::block0
