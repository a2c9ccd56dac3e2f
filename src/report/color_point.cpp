#include "report/color_point.h"

#include "report/basic_display.h"
#include "report/chromaticity.h"
#include "report/color_point_layout.h"
#include "report/descriptor_layout.h"

namespace wb::report {

namespace {

std::string coordinateText(const DescriptorBlock& block, int first, const SplitField& field) {
    const int low = bits(block.cellValue(first + field.lower.cell), field.lower.range);
    return chromaText(ChromaBitsToFraction(block.workbench, block.cellValue(first + field.upper.cell), low));
}

void showWhite(const DescriptorBlock& block, int option, std::string_view words, const std::string& number) {
    block.showAndReport(block.screen.DtaOptWhite(option), {words, number}, 20);
}

/// `first` is the index cell of the point, `option` its first one.
void showUsedPoint(const DescriptorBlock& block, int first, int option) {
    showWhite(block, option, "White X - ", coordinateText(block, first, whiteX));
    showWhite(block, option + 1, "White Y - ", coordinateText(block, first, whiteY));
    showWhite(block, option + gammaOption, "Gamma  - ", gammaText(block.cellValue(first + whiteGammaCell)));
}

void blankUnusedPoint(const DescriptorBlock& block, int first, int option) {
    for (int i = 1; i < whitePointSize; ++i) {
        block.cell(first + i).setText("00");
    }
    for (int i = 0; i < optionsOfPoint; ++i) {
        block.screen.DtaOptWhite(option + i).setEnabled(false);
    }
}

void convertWhitePoint(const DescriptorBlock& block, int point) {
    const int first = whitePointCell(point);
    const int option = optionsOfPoint * point;
    block.report({"White Point #", std::to_string(point + 1)}, 15);
    if (block.cellValue(first) > 0) {
        showUsedPoint(block, first, option);
        return;
    }
    blankUnusedPoint(block, first, option);
    block.screen.NotUsed(point).setEnabled(true);
    block.report({"Not Used"}, 20);
}

/// DTaInput gets the value of the selected option, which is what follows the dash of its caption.
void showSelectedValue(FrmEdid& screen) {
    for (int i = 0; i < whiteOptionCount; ++i) {
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
    for (int i = 0; i < whiteOptionCount; ++i) {
        screen.DtaOptWhite(i).setEnabled(true);
        block.workbench.focus.moveTo(screen.DTaInput);
    }
    screen.NotUsed(0).setEnabled(false);
    screen.NotUsed(1).setEnabled(false);
    convertWhitePoint(block, 0);
    convertWhitePoint(block, 1);
    if (block.cellValue(whitePointCell(0)) != 0 && block.cellValue(whitePointCell(1)) != 0) {
        block.cell(colorPointPadding.first).setText(lineFeedText);
        for (int i = colorPointPadding.first + 1; i <= colorPointPadding.last; ++i) {
            block.cell(i).setText(blankText);
        }
    }
    showSelectedValue(screen);
}

} // namespace wb::report
