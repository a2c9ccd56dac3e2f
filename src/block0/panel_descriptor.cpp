#include "block0/panel_descriptor.h"

#include "block0/cell_writing.h"
#include "block0/descriptor_entry.h"
#include "block0/panel.h"
#include "core/edid_image.h"
#include "report/detailed_timing.h"

namespace wb::block0 {

namespace {

constexpr int rangeFields = 5;      ///< of the block: first cell of the limits
constexpr int curveSupport = 10;    ///< of a range limits block: kind of the secondary timing formula
constexpr int firstIndexByte = 5;   ///< of a colour point block
constexpr int whitePointLength = 5; ///< index, low bits, two high bytes, gamma

void focusOn(Workbench& workbench, int offset) {
    whenUserActs(workbench,
                 [&](FrmEdid& screen) { workbench.focus.moveTo(screen.txtEdit(screen.CurrentBlockBase + offset)); });
}

void setCell(FrmEdid& screen, int offset, const char* text) {
    screen.txtEdit(screen.CurrentBlockBase + offset).setText(text);
}

void showCurve(FrmEdid& screen, bool curve) {
    screen.DTAFrame(0).setVisible(!curve);
    screen.frmS_GTF(0).setVisible(curve);
}

} // namespace

void DTa_Click(Workbench& workbench, int index) {
    constexpr int standardTimings = 5;
    constexpr int definedByManufacturer = 7;
    whenUserActs(workbench, [&](FrmEdid& screen) {
        if (index == definedByManufacturer) {
            setCell(screen, 3, "00");
        } else {
            writeByte(screen, screen.CurrentBlockBase + 3, 255 - index);
            if (index == standardTimings) {
                setCell(screen, 17, "0A");
            }
            setCell(screen, 4, "00");
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
                setCell(screen, curveSupport, "02");
                setCell(screen, curveSupport + 1, "00");
            } else {
                setCell(screen, curveSupport, "00");
                setCell(screen, curveSupport + 1, "0A");
                for (int i = curveSupport + 2; i <= curveSupport + 7; ++i) {
                    setCell(screen, i, "20");
                }
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
            setCell(screen, indexByte, "00");
        } else {
            setCell(screen, indexByte, index == 0 ? "01" : "02");
            screen.DtaOptWhite(3 * index).setValue(-1);
        }
        report::ConvertDetailedTiming(workbench);
    });
}

void DTaInput_GotFocus(Workbench& workbench, int) {
    SelectAllInControl(workbench.frmEDID().DTaInput);
}

void DTaInput_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        if (screen.DTa.firstSelected() >= 0 && writeDescriptorEntry(screen)) {
            report::ConvertDetailedTiming(workbench);
        }
    });
}

} // namespace wb::block0
