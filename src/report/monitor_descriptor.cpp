#include "report/monitor_descriptor.h"

#include <algorithm>
#include <array>

#include "core/edid_image.h"
#include "report/color_point.h"
#include "report/descriptor_block.h"
#include "report/range_limits.h"
#include "report/standard_timings.h"

namespace wb::report {

namespace {

constexpr int lineFeed = 10;
constexpr int firstTextCell = 5; ///< of the block

struct Family {
    std::string_view tag;
    std::string_view heading;
};

enum FamilyNumber { SerialNumber, AsciiData, RangeLimits, MonitorName, ColorPoint, StandardTimings };

/// By number of the family, which is that of its option (VESA E-EDID Standard, Release A, section 3.10.3).
constexpr std::array<Family, 6> families = {{
    {"FF", "Monitor Serial Number:"},
    {"FE", "ASCII Data:"},
    {"FD", "Monitor Range Limits:"},
    {"FC", "Monitor Name:"},
    {"FB", "Color Point:"},
    {"FA", "Standard Timing Identifiers:"},
}};

constexpr int noFamily = static_cast<int>(families.size());

constexpr int inputHeight = 1200;          ///< twips
constexpr int inputHeightAtColours = 1095; ///< twips, beside the colour point panel
constexpr int timingCount = 6;

/// The number of the family of a tag, or that of none.
int familyOf(std::string_view tag) {
    const auto family =
        std::find_if(families.begin(), families.end(), [&](const Family& row) { return row.tag == tag; });
    return static_cast<int>(family - families.begin());
}

/// The family of a tag of the table, whose heading it puts into the report, or else the value of the tag.
int readTag(const DescriptorBlock& block) {
    const int value = block.cellValue(3);
    const int family = familyOf(upperCase(block.cell(3).text()));
    if (family == noFamily) {
        return value;
    }
    block.text() = line();
    block.report(families[static_cast<std::size_t>(family)].heading);
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
    for (int i = firstTextCell; i < detailedBlockSize; ++i) {
        const int code = block.cellValue(i);
        if (code == lineFeed) {
            break;
        }
        input.setText(input.text() + static_cast<char>(code));
    }
    block.report(input.text());
    block.text() += line();
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
    for (int i = 0; i < timingCount; ++i) {
        screen.ExtSTOpt(i).setCaption({});
    }
    for (int i = 0; i < timingCount; ++i) {
        const int sizeByte = block.cellValue(5 + 2 * i);
        const int rateByte = block.cellValue(6 + 2 * i);
        block.showAndReport(screen.ExtSTOpt(i), standardTimingText(sizeByte, rateByte));
    }
    const int shown = screen.ExtSTOpt.firstSelected(0, timingCount - 1, 0);
    screen.ExtSTAOptb(aspectCode(block.cellValue(6 + 2 * shown))).setValue(1);
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
    screen.InFocusDispatch = flagFalse;
    RecalcBlock0Checksum(block.workbench);
    screen.DTaInput.setHeight(screen.DTAFrame(1).enabled() ? inputHeightAtColours : inputHeight);
    if (screen.ExtStaInput.visible() && seeks(block.workbench)) {
        block.workbench.focus.moveTo(screen.ExtStaInput);
    }
}

} // namespace

std::string_view descriptorHeading(std::string_view tag) {
    const int family = familyOf(tag);
    return family == noFamily ? std::string_view() : families[static_cast<std::size_t>(family)].heading;
}

bool appendMonitorName(FrmEdid& screen, int block, std::string& name) {
    const int base = detailedBlockBase(block);
    if (screen.txtEdit(base + 3).text() != families[MonitorName].tag) {
        return false;
    }
    for (int i = firstTextCell; i < detailedBlockSize; ++i) {
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
        block.text() = line();
        block.screen.InFocusDispatch = flagTrue;
        block.screen.DTAGTF.setVisible(false);
        const int family = readTag(block);
        block.screen.DTa(family).setValue(1);
        clearPanel(block.screen);
        convertFamily(block, family);
        finish(block);
    });
}

} // namespace wb::report
