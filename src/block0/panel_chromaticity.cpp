#include "block0/panel_chromaticity.h"

#include "block0/cell_writing.h"
#include "block0/grid.h"
#include "block0/panel.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/chromaticity.h"
#include "report/chromaticity_layout.h"

namespace wb::block0 {

namespace {

constexpr int firstHighCell = report::chromaticityFields.front().upper.cell;

int numberOf(Workbench& workbench, const std::string& digits) {
    return roundToInt16(strictNumber(BinaryTextToDecimal(workbench, digits)));
}

} // namespace

void openChromaticityPanel(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    const bool isValue = index >= firstHighCell; // the two cells before hold low bits only
    screen.chkChroma.deselect();
    screen.lbChromaChange(0).setVisible(isValue);
    screen.lbChromaChange(1).setVisible(!isValue);
    screen.ChromaValue.setVisible(isValue);
    if (isValue) {
        screen.chkChroma(index - firstHighCell).setValue(-1);
    }
    colourField(screen, cells::chromaticity, {index, index});
    report::ConvertChromaticity(workbench);
    if (isValue && seeks(workbench)) {
        workbench.focus.moveTo(screen.ChromaValue);
    }
}

void chkChroma_Click(Workbench& workbench, int index) {
    trapped(workbench, [&] { workbench.focus.moveTo(workbench.frmEDID().txtEdit(firstHighCell + index)); });
}

void ChromaValue_GotFocus(Workbench& workbench, int) {
    SelectAllInControl(workbench.frmEDID().ChromaValue);
}

void ChromaValue_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        const double entry = strictNumber(screen.ChromaValue.text());
        if (!isCoordinate(workbench, entry)) {
            return;
        }
        const std::string digits = report::FractionToChromaBits(workbench, entry);
        const int coordinate = screen.chkChroma.firstSelected();
        if (coordinate >= 0) {
            writeCoordinate(screen, digits, report::chromaticityFields[static_cast<std::size_t>(coordinate)]);
        }
        report::ConvertChromaticity(workbench);
    });
}

bool isCoordinate(Workbench& workbench, double entry) {
    if (entry > 1.0) {
        workbench.showMessage("This value must be a fraction less than 1.00");
        return false;
    }
    return true;
}

void writeCoordinate(BlockScreen& screen, const std::string& digits, const SplitField& field, int firstCell) {
    Workbench& workbench = screen.workbench();
    writeBits(screen, firstCell + field.lower.cell, field.lower.range, numberOf(workbench, rightPart(digits, 2)));
    writeByte(screen, firstCell + field.upper.cell, numberOf(workbench, leftPart(digits, 8)));
}

} // namespace wb::block0
