#include "block0/panel_established.h"

#include "block0/panel.h"

namespace wb::block0 {

void ET1_Click(Workbench& workbench, int index) {
    changeBit(workbench, 35, 128 >> index, workbench.frmEDID().ET1(index));
}

void ET2_Click(Workbench& workbench, int index) {
    changeBit(workbench, 36, 128 >> index, workbench.frmEDID().ET2(index));
}

void ET3_Click(Workbench& workbench, int index) {
    changeBit(workbench, 37, 128, workbench.frmEDID().ET3(index));
}

} // namespace wb::block0
