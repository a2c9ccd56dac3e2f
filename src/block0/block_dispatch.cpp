#include "block0/block_dispatch.h"

#include "block0/grid.h"
#include "block0/panel_detailed_timing.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/color_point_layout.h"
#include "report/descriptor_layout.h"
#include "report/detailed_timing.h"
#include "report/detailed_timing_layout.h"
#include "report/monitor_descriptor.h"
#include "report/range_limits_layout.h"
#include "report/standard_timings_layout.h"

namespace wb::block0 {

namespace {

constexpr int lastStereo = report::noStereoOption - 1;

void captionPanels(FrmEdid& screen) {
    const std::string caption = detailedTimingCaption(screen.CurrentBlockBase);
    for (const int panel : {FrmEdid::timingValuePanel, FrmEdid::timingFlagPanel, FrmEdid::descriptorPanel}) {
        screen.Hints(panel).setCaption(caption);
    }
    screen.Hints(FrmEdid::timingDescriptorPanel)
        .setCaption("Ext. Standard Timing" + caption.substr(caption.find(" (")));
}

/// The cell at `offset` of the block in the field colour; the first two are one field.
void colourDescriptorCell(FrmEdid& screen, int offset) {
    const int base = screen.CurrentBlockBase;
    colourField(screen, noCells, offset <= 1 ? CellRange{base, base + 1} : oneCell(base + offset));
}

void openRangeLimits(FrmEdid& screen, int offset) {
    const int base = screen.CurrentBlockBase;
    if (screen.txtEdit(base + report::formulaCell).text() != report::noFormula) {
        for (int i = report::formulaCells.first; i <= report::formulaCells.last; ++i) {
            screen.txtEdit(base + i).setLocked(false);
        }
    }
    screen.DtaOpt.deselect();
    if (report::limitCells.contains(offset)) {
        screen.DtaOpt(offset - report::limitCells.first).setValue(-1);
    }
}

void openColourPoint(FrmEdid& screen, int offset) {
    screen.Windex(0).setVisible(true);
    screen.Windex(1).setVisible(true);
    screen.DtaOptWhite.deselect();
    for (int option = 0; option < report::whiteOptionCount; ++option) {
        if (report::whiteOptionCell(option) == offset) {
            screen.DtaOptWhite(option).setValue(-1);
        }
    }
}

void openStandardTimings(FrmEdid& screen, int offset) {
    screen.Hints(FrmEdid::descriptorPanel).setVisible(false);
    screen.Hints(FrmEdid::timingDescriptorPanel).setVisible(true);
    screen.ExtSTOpt.deselect(report::descriptorTimingCount - 1);
    const bool isPair = report::descriptorTimingCells.contains(offset);
    screen.ExtStaFrame.setEnabled(isPair);
    if (isPair) {
        screen.ExtSTOpt((offset - report::descriptorTimingCells.first) / 2).setValue(-1);
    } else if (offset <= 1) {
        screen.DT(0).setValue(-1); // though this option lies on a hidden panel
    }
}

void openDescriptor(FrmEdid& screen, int offset) {
    screen.Hints(FrmEdid::descriptorPanel).setVisible(true);
    screen.CurrentBlockIsDescriptor = flagTrue;
    screen.DTInput.setVisible(true);
    colourDescriptorCell(screen, offset);
    const std::string tag = upperCase(screen.txtEdit(screen.CurrentBlockBase + report::descriptorTagCell).text());
    switch (report::descriptorFamily(tag)) {
        case report::RangeLimits:
            openRangeLimits(screen, offset);
            break;
        case report::ColorPoint:
            openColourPoint(screen, offset);
            break;
        case report::StandardTimings:
            openStandardTimings(screen, offset);
            break;
        default:
            break;
    }
}

} // namespace

void openBlock(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    screen.Windex(0).setVisible(false);
    screen.Windex(1).setVisible(false);
    if (workbench.ModifyEDIDOn != flagFalse) {
        screen.DTHelp.setVisible(true);
    }
    const int number = (index - detailedBlockBase(0)) / detailedBlockSize;
    const int base = detailedBlockBase(number);
    screen.CurrentBlockBase = static_cast<std::int16_t>(base);
    screen.CurrentBlockNumber = static_cast<std::int16_t>(number);
    resetDetailedTiming(screen, lastStereo);
    colourField(screen, {base, base + detailedBlockSize - 1}, noCells);
    captionPanels(screen);
    if (hasDescriptorMark(screen, base)) {
        openDescriptor(screen, index - base);
    } else {
        screen.CurrentBlockIsDescriptor = flagFalse;
        showDetailedTimingField(Statements(workbench, Statements::OnFailure::LeaveProcedure), screen, index - base);
    }
    report::ConvertDetailedTiming(workbench);
}

} // namespace wb::block0
