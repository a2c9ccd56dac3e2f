#include "report/monitor_descriptor.h"

#include <array>

#include "core/edid_image.h"
#include "report/color_point.h"
#include "report/decoder.h"
#include "report/descriptor_block.h"
#include "report/descriptor_layout.h"
#include "report/range_limits.h"
#include "report/standard_timings.h"
#include "report/standard_timings_layout.h"

namespace wb::report {

namespace {

/// By family.
constexpr std::array<std::string_view, descriptorFamilyCount> headings = {
    "Monitor Serial Number:", "ASCII Data:",  "Monitor Range Limits:",
    "Monitor Name:",          "Color Point:", "Standard Timing Identifiers:",
};

constexpr int inputHeight = 1200;          ///< twips
constexpr int inputHeightAtColours = 1095; ///< twips, beside the colour point panel

/// The family of a tag of the table, whose heading it puts into the report, or else the value of the tag.
int readTag(const DescriptorBlock& block) {
    const int value = block.cellValue(descriptorTagCell);
    const int family = descriptorFamily(upperCase(block.cell(descriptorTagCell).text()));
    if (family == descriptorFamilyCount) {
        return value;
    }
    block.text() = crLf;
    block.report({headings[static_cast<std::size_t>(family)]});
    block.screen.DTAGTF.setVisible(family == RangeLimits);
    return family;
}

void clearPanel(FrmEdid& screen) {
    screen.DTaInput.setText({});
    screen.DTAGTF.setEnabled(false);
    screen.DTAFrame(0).setEnabled(false);
    screen.DTAFrame(1).setEnabled(false);
    screen.Windex(0).setEnabled(false);
    screen.Windex(1).setEnabled(false);
    screen.frmS_GTF(0).setEnabled(false);
}

/// Only a line feed ends the text; it may fill all 13 cells.
void convertText(const DescriptorBlock& block) {
    Control& input = block.screen.DTaInput;
    std::string text = input.text();
    for (int i = descriptorTextCells.first; i <= descriptorTextCells.last; ++i) {
        const int code = block.cellValue(i);
        if (code == lineFeed) {
            break;
        }
        text += static_cast<char>(code);
        input.setText(text);
    }
    block.report({input.text()});
    block.text() += crLf;
}

/// Joins the names of all name descriptors of the image, whichever block is being decoded.
void showModelName(FrmEdid& screen) {
    std::string name;
    for (int block = 0; block < detailedBlockCount; ++block) {
        appendMonitorName(screen, block, name);
    }
    screen.txtModel.setText(name);
}

void convertStandardTimings(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.Hints(FrmEdid::descriptorPanel).setVisible(false);
    screen.Hints(FrmEdid::timingDescriptorPanel).setVisible(true);
    for (int i = 0; i < descriptorTimingCount; ++i) {
        screen.ExtSTOpt(i).setCaption({});
    }
    for (int i = 0; i < descriptorTimingCount; ++i) {
        const int sizeByte = block.cellValue(descriptorTimingCell(i));
        const int rateByte = block.cellValue(descriptorTimingCell(i) + 1);
        block.showAndReport(screen.ExtSTOpt(i), {standardTimingText(sizeByte, rateByte)});
    }
    const int shown = screen.ExtSTOpt.firstSelected(0, descriptorTimingCount - 1, 0);
    screen.ExtSTAOptb(aspectCode(block.cellValue(descriptorTimingCell(shown) + 1))).setValue(1);
    if (screen.ExtSTOpt(6).selected()) {
        screen.ExtSTOpt(6).setValue(0);
    }
}

/// Tags without a family of their own decode nothing.
void convertFamily(const DescriptorBlock& block, int family) {
    switch (family) {
        case SerialNumber:
        case AsciiData:
            convertText(block);
            break;
        case RangeLimits:
            convertRangeLimits(block);
            break;
        case MonitorName:
            showModelName(block.screen);
            convertText(block);
            break;
        case ColorPoint:
            convertColorPoint(block);
            break;
        case StandardTimings:
            convertStandardTimings(block);
            break;
        default:
            break;
    }
}

void finish(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    RecalcBlock0Checksum(block.workbench);
    screen.DTaInput.setHeight(screen.DTAFrame(1).enabled() ? inputHeightAtColours : inputHeight);
    if (screen.ExtStaInput.visible() && seeks(block.workbench)) {
        block.workbench.focus.moveTo(screen.ExtStaInput);
    }
}

} // namespace

int descriptorFamily(std::string_view tag) {
    int family = 0;
    while (family < descriptorFamilyCount && byteText(descriptorTag(family)) != tag) {
        ++family;
    }
    return family;
}

std::string_view descriptorHeading(std::string_view tag) {
    const int family = descriptorFamily(tag);
    return family == descriptorFamilyCount ? std::string_view() : headings[static_cast<std::size_t>(family)];
}

bool appendMonitorName(FrmEdid& screen, int block, std::string& name) {
    const int base = detailedBlockBase(block);
    if (descriptorFamily(screen.txtEdit(base + descriptorTagCell).text()) != MonitorName) {
        return false;
    }
    for (int i = descriptorTextCells.first; i <= descriptorTextCells.last; ++i) {
        const int code = byteAt(screen, base + i);
        if (code == lineFeed) {
            return true;
        }
        name += static_cast<char>(code);
    }
    return false;
}

void ConvertDetailedTiminga(Workbench& workbench) {
    trapped(workbench, [&] {
        const DescriptorBlock block(workbench);
        block.text() = crLf;
        settingControls(block.screen, [&] {
            block.screen.DTAGTF.setVisible(false);
            const int family = readTag(block);
            block.screen.DTa(family).setValue(1);
            clearPanel(block.screen);
            convertFamily(block, family);
        });
        finish(block);
    });
}

} // namespace wb::report
