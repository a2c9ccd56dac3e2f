#include "report/range_limits.h"

#include <array>

namespace wb::report {

namespace {

struct RangeField {
    std::string_view words;
    std::string_view unit;
    int factor;
};

/// Cells 5 to 9 of the block (VESA E-EDID Standard, Release A, section 3.10.3).
constexpr std::array<RangeField, 5> rangeFields = {{
    {"Min Vertical Freq - ", " Hz", 1},
    {"Max Vertical Freq - ", " Hz", 1},
    {"Min Horiz. Freq - ", " KHz", 1},
    {"Max Horiz. Freq - ", " KHz", 1},
    {"Pixel Clock  - ", " MHz", 10},
}};
constexpr int clockField = 4;
constexpr int unspecifiedClock = 255;
constexpr int inputTop = 120; ///< twips

std::string rangeText(int i, int value) {
    const RangeField& field = rangeFields[static_cast<std::size_t>(i)];
    if (i == clockField && value == unspecifiedClock) {
        return "Pixel Clock - Not Specified";
    }
    return std::string(field.words) + std::to_string(value * field.factor) + std::string(field.unit);
}

void showCurveField(const DescriptorBlock& block, int i, const std::string& words) {
    block.showAndReport(block.screen.S_GTF(i), words, 12);
}

/// Cells 12 to 17 of the block; C and J are stored doubled.
void showCurve(const DescriptorBlock& block) {
    showCurveField(block, 0, "Start Hor Freq - " + std::to_string(block.cellValue(12) * 2) + " KHz");
    showCurveField(block, 1, "C - " + formatNumber(block.cellValue(13) / 2.0, "0"));
    const std::string m = hexToDecimalText(block.workbench, block.cell(15).text() + block.cell(14).text());
    showCurveField(block, 2, "M - " + formatNumber(m, "0"));
    showCurveField(block, 3, "K - " + std::to_string(block.cellValue(16)));
    showCurveField(block, 4, "J - " + formatNumber(block.cellValue(17) / 2.0, "0"));
}

void convertSecondaryGtf(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.DTAFrame(0).setEnabled(false);
    block.report("Secondary GTF - Supported");
    screen.DTAGTF.setValue(1);
    screen.frmS_GTF(0).setEnabled(true);
    showCurve(block);
    screen.DTaInput.setTop(inputTop);
    if (screen.frmS_GTF(0).enabled() && seeks(block.workbench)) {
        block.workbench.focus.moveTo(screen.DTaInput);
    }
    if (block.workbench.ModifyEDIDOn == flagFalse) {
        for (int i = 10; i <= 17; ++i) {
            block.cell(i).setLocked(true);
        }
    }
}

} // namespace

void convertRangeLimits(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.DTAFrame(0).setEnabled(true);
    for (int i = 0; i < static_cast<int>(rangeFields.size()); ++i) {
        block.showAndReport(screen.DtaOpt(i), rangeText(i, block.cellValue(5 + i)));
    }
    screen.DTaInput.setTop(inputTop);
    screen.DTAGTF.setEnabled(true);
    const std::string support = block.cell(10).text();
    if (support == "00") {
        block.report("Secondary GTF - Not Supported");
        screen.DTAGTF.setValue(0);
    } else if (support == "04") {
        block.report("Reserved for EDID 1.4 Timings");
        screen.DTAGTF.setValue(0);
        screen.frmS_GTF(0).setEnabled(false);
    } else {
        convertSecondaryGtf(block);
    }
}

} // namespace wb::report
