#include "block0/panel_descriptor.h"

#include <array>
#include <string>
#include <string_view>

#include "block0/cell_writing.h"
#include "block0/descriptor_entry.h"
#include "block0/panel.h"
#include "core/edid_image.h"
#include "report/color_point_layout.h"
#include "report/descriptor_layout.h"
#include "report/detailed_timing.h"
#include "report/range_limits_layout.h"
#include "report/standard_timings_layout.h"

namespace wb::block0 {

namespace {

/// By option of `S_GTF`; that of M leads to the cell with its upper digits.
constexpr auto curveFocus = std::to_array<int>(
    {report::curveStartCell, report::curveCCell, report::curveMHighCell, report::curveKCell, report::curveJCell});

void focusOn(Workbench& workbench, int offset) {
    whenUserActs(workbench,
                 [&](FrmEdid& screen) { workbench.focus.moveTo(screen.txtEdit(screen.CurrentBlockBase + offset)); });
}

void setCell(FrmEdid& screen, int offset, std::string_view text) {
    screen.txtEdit(screen.CurrentBlockBase + offset).setText(std::string(text));
}

void showCurve(FrmEdid& screen, bool curve) {
    screen.DTAFrame(0).setVisible(!curve);
    screen.frmS_GTF(0).setVisible(curve);
}

} // namespace

void DTa_Click(Workbench& workbench, int index) {
    constexpr int definedByManufacturer = 7;
    whenUserActs(workbench, [&](FrmEdid& screen) {
        if (index == definedByManufacturer) {
            setCell(screen, report::descriptorTagCell, "00");
        } else {
            writeByte(screen, screen.CurrentBlockBase + report::descriptorTagCell, report::descriptorTag(index));
            if (index == report::StandardTimings) {
                setCell(screen, report::descriptorTimingCells.last + 1, report::lineFeedText);
            }
            setCell(screen, report::descriptorReservedCell, "00");
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
                setCell(screen, report::formulaCell, report::secondaryGtf);
                setCell(screen, report::formulaReservedCell, "00");
            } else {
                setCell(screen, report::formulaCell, report::noFormula);
                setCell(screen, report::formulaReservedCell, report::lineFeedText);
                for (int i = report::curveCells.first; i <= report::curveCells.last; ++i) {
                    setCell(screen, i, report::blankText);
                }
            }
        }
        RecalcBlock0Checksum(workbench);
    });
}

void DtaOpt_Click(Workbench& workbench, int index) {
    focusOn(workbench, report::limitCells.first + index);
}

void DtaOptWhite_Click(Workbench& workbench, int index) {
    focusOn(workbench, report::whiteOptionCell(index));
}

void S_GTF_Click(Workbench& workbench, int index) {
    focusOn(workbench, curveFocus[static_cast<std::size_t>(index)]);
}

void Windex_Click(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        const int indexByte = report::whitePointCell(index);
        if (screen.Windex(index).value() == 0) {
            setCell(screen, indexByte, "00");
        } else {
            setCell(screen, indexByte, index == 0 ? "01" : "02");
            screen.DtaOptWhite(report::optionsOfPoint * index).setValue(-1);
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
