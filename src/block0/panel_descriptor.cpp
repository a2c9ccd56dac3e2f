#include "block0/panel_descriptor.h"

#include "block0/cell_writing.h"
#include "block0/descriptor_entry.h"
#include "block0/grid.h"
#include "core/edid_image.h"
#include "report/detailed_timing.h"

namespace wb::block0 {

namespace {

constexpr int rangeFields = 5;      ///< of the block: first cell of the limits
constexpr int curveSupport = 10;    ///< of a range limits block: kind of the secondary timing formula
constexpr int firstIndexByte = 5;   ///< of a colour point block
constexpr int whitePointLength = 5; ///< index, low bits, two high bytes, gamma

void focusOn(Workbench& workbench, int offset) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        if (screen.InFocusDispatch == flagFalse) {
            workbench.focus.moveTo(screen.txtEdit(screen.CurrentBlockBase + offset));
        }
    });
}

void setCells(FrmEdid& screen, int first, int last, const char* text) {
    for (int i = first; i <= last; ++i) {
        screen.txtEdit(screen.CurrentBlockBase + i).setText(text);
    }
}

void showCurve(FrmEdid& screen, bool curve) {
    screen.DTAFrame(0).setVisible(!curve);
    screen.frmS_GTF(0).setVisible(curve);
}

} // namespace

void DTa_Click(Workbench& workbench, int index) {
    constexpr int standardTimings = 5;
    constexpr int definedByManufacturer = 7;
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        if (screen.InFocusDispatch != flagFalse) {
            return;
        }
        if (index == definedByManufacturer) {
            setCells(screen, 3, 3, "00");
        } else {
            writeByte(screen, screen.CurrentBlockBase + 3, 255 - index);
            if (index == standardTimings) {
                setCells(screen, 17, 17, "0A");
            }
            setCells(screen, 4, 4, "00");
        }
        report::ConvertDetailedTiming(workbench);
    });
}

void DTAGTF_Click(Workbench& workbench, int) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        if (workbench.ModifyEDIDOn != flagFalse) {
            const bool curve = screen.DTAGTF.value() != 0;
            showCurve(screen, curve);
            if (curve) {
                setCells(screen, curveSupport, curveSupport, "02");
                setCells(screen, curveSupport + 1, curveSupport + 1, "00");
            } else {
                setCells(screen, curveSupport, curveSupport, "00");
                setCells(screen, curveSupport + 1, curveSupport + 1, "0A");
                setCells(screen, curveSupport + 2, curveSupport + 7, "20");
            }
        }
        RecalcBlock0Checksum(workbench);
    });
}

void DtaOpt_Click(Workbench& workbench, int index) {
    focusOn(workbench, rangeFields + index);
}

void DtaOptWhite_Click(Workbench& workbench, int index) {
    focusOn(workbench, index <= 2 ? 7 + index : 9 + index);
}

void S_GTF_Click(Workbench& workbench, int index) {
    focusOn(workbench, index <= 1 ? 12 + index : 13 + index);
}

void Windex_Click(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        const int indexByte = firstIndexByte + whitePointLength * index;
        if (screen.Windex(index).value() == 0) {
            setCells(screen, indexByte, indexByte, "00");
        } else {
            setCells(screen, indexByte, indexByte, index == 0 ? "01" : "02");
            screen.DtaOptWhite(3 * index).setValue(-1);
        }
        report::ConvertDetailedTiming(workbench);
    });
}

void DTaInput_GotFocus(Workbench& workbench, int) {
    trapped(workbench, [&] { SelectAllInControl(workbench.frmEDID().DTaInput); });
}

void DTaInput_KeyUp(Workbench& workbench, int, int keyCode) {
    if (keyCode != enterKey) {
        return;
    }
    trapped(workbench, [&] {
        if (workbench.frmEDID().DTa.firstSelected() >= 0 && writeDescriptorEntry(workbench.frmEDID())) {
            report::ConvertDetailedTiming(workbench);
        }
    });
}

} // namespace wb::block0
