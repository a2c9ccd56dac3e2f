#include "report/color_point.h"

#include "report/basic_display.h"
#include "report/chromaticity.h"

namespace wb::report {

namespace {

constexpr int optionCount = 6;

std::string coordinateText(const DescriptorBlock& block, int highCell, int low) {
    return chromaText(ChromaBitsToFraction(block.workbench, block.cellValue(highCell), low));
}

void showWhite(const DescriptorBlock& block, int option, const std::string& words) {
    block.showAndReport(block.screen.DtaOptWhite(option), words, 20);
}

/// The cells of a point from `first` on: index, low bits, X, Y, gamma (VESA E-EDID Standard, Release A,
/// section 3.10.3).
void showUsedPoint(const DescriptorBlock& block, int first, int option) {
    const int lowX = (block.cellValue(first + 1) & 12) / 4;
    showWhite(block, option, "White X - " + coordinateText(block, first + 2, lowX));
    const int lowY = block.cellValue(first + 1) & 3;
    showWhite(block, option + 1, "White Y - " + coordinateText(block, first + 3, lowY));
    showWhite(block, option + 2, "Gamma  - " + gammaText(block.cellValue(first + 4)));
}

void blankUnusedPoint(const DescriptorBlock& block, int first, int option) {
    for (int i = 1; i <= 4; ++i) {
        block.cell(first + i).setText("00");
    }
    for (int i = 0; i <= 2; ++i) {
        block.screen.DtaOptWhite(option + i).setEnabled(false);
    }
}

void convertWhitePoint(const DescriptorBlock& block, int point) {
    const int first = 5 + 5 * point;
    const int option = 3 * point;
    block.report("White Point #" + std::to_string(point + 1), 15);
    if (block.cellValue(first) > 0) {
        showUsedPoint(block, first, option);
        return;
    }
    blankUnusedPoint(block, first, option);
    block.screen.NotUsed(point).setEnabled(true);
    block.report("Not Used", 20);
}

/// DTaInput gets the value of the selected option, which is what follows the dash of its caption.
void showSelectedValue(FrmEdid& screen) {
    for (int i = 0; i < optionCount; ++i) {
        const std::string& caption = screen.DtaOptWhite(i).caption();
        const auto dash = caption.find('-');
        if (!screen.DtaOptWhite(i).selected() || dash == std::string::npos) {
            continue;
        }
        const auto start = caption.find_first_not_of(' ', dash + 1);
        screen.DTaInput.setText(start == std::string::npos ? std::string() : caption.substr(start));
        return;
    }
}

} // namespace

void convertColorPoint(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.DTAFrame(1).setEnabled(true);
    screen.Windex(0).setEnabled(true);
    screen.Windex(1).setEnabled(true);
    for (int i = 0; i < optionCount; ++i) {
        screen.DtaOptWhite(i).setEnabled(true);
        block.workbench.focus.moveTo(screen.DTaInput);
    }
    screen.NotUsed(0).setEnabled(false);
    screen.NotUsed(1).setEnabled(false);
    convertWhitePoint(block, 0);
    convertWhitePoint(block, 1);
    if (block.cellValue(5) != 0 && block.cellValue(10) != 0) {
        block.cell(15).setText("0A");
        block.cell(16).setText("20");
        block.cell(17).setText("20");
    }
    showSelectedValue(screen);
}

} // namespace wb::report
