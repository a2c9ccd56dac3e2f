#include "report/range_limits.h"

#include <array>

#include "report/range_limits_layout.h"

namespace wb::report {

namespace {

struct RangeField {
    std::string_view words;
    std::string_view unit;
    int factor;
};

/// By limit.
constexpr std::array<RangeField, limitCount> rangeFields = {{
    {"Min Vertical Freq - ", " Hz", 1},
    {"Max Vertical Freq - ", " Hz", 1},
    {"Min Horiz. Freq - ", " KHz", 1},
    {"Max Horiz. Freq - ", " KHz", 1},
    {"Pixel Clock  - ", " MHz", clockUnit},
}};
constexpr int inputTop = 120; ///< twips

void showLimit(const DescriptorBlock& block, int i) {
    Control& option = block.screen.DtaOpt(i);
    const int value = block.cellValue(limitCells.first + i);
    if (i == clockLimit && value == unspecifiedLimit) {
        block.showAndReport(option, {"Pixel Clock - Not Specified"});
        return;
    }
    const RangeField& field = rangeFields[static_cast<std::size_t>(i)];
    block.showAndReport(option, {field.words, std::to_string(value * field.factor), field.unit});
}

void showCurveField(const DescriptorBlock& block, int i, Texts words) {
    block.showAndReport(block.screen.S_GTF(i), words, 12);
}

void showCurve(const DescriptorBlock& block) {
    showCurveField(block, 0, {"Start Hor Freq - ", std::to_string(block.cellValue(curveStartCell) * 2), " KHz"});
    showCurveField(block, 1, {"C - ", formatNumber(block.cellValue(curveCCell) / 2.0, "0")});
    const std::string m =
        hexToDecimalText(block.workbench, block.cell(curveMHighCell).text() + block.cell(curveMLowCell).text());
    showCurveField(block, 2, {"M - ", formatNumber(m, "0")});
    showCurveField(block, 3, {"K - ", std::to_string(block.cellValue(curveKCell))});
    showCurveField(block, 4, {"J - ", formatNumber(block.cellValue(curveJCell) / 2.0, "0")});
}

void convertSecondaryGtf(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.DTAFrame(0).setEnabled(false);
    block.report({"Secondary GTF - Supported"});
    screen.DTAGTF.setValue(1);
    screen.frmS_GTF(0).setEnabled(true);
    showCurve(block);
    screen.DTaInput.setTop(inputTop);
    if (screen.frmS_GTF(0).enabled() && seeks(block.workbench)) {
        block.workbench.focus.moveTo(screen.DTaInput);
    }
    if (block.workbench.ModifyEDIDOn == flagFalse) {
        for (int i = formulaCells.first; i <= formulaCells.last; ++i) {
            block.cell(i).setLocked(true);
        }
    }
}

} // namespace

void convertRangeLimits(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.DTAFrame(0).setEnabled(true);
    for (int i = 0; i < limitCount; ++i) {
        showLimit(block, i);
    }
    screen.DTaInput.setTop(inputTop);
    screen.DTAGTF.setEnabled(true);
    const std::string formula = block.cell(formulaCell).text();
    if (formula == noFormula) {
        block.report({"Secondary GTF - Not Supported"});
        screen.DTAGTF.setValue(0);
    } else if (formula == reservedFormula) {
        block.report({"Reserved for EDID 1.4 Timings"});
        screen.DTAGTF.setValue(0);
        screen.frmS_GTF(0).setEnabled(false);
    } else {
        convertSecondaryGtf(block);
    }
}

} // namespace wb::report
