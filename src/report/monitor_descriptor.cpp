#include "report/monitor_descriptor.h"

#include <array>

#include "core/edid_image.h"
#include "report/descriptor_block.h"
#include "report/standard_timings.h"

namespace wb::report {

namespace {

constexpr int lineFeed = 10;

struct Family {
    std::string_view tag;
    std::string_view heading;
};

enum FamilyNumber { SerialNumber, AsciiData, RangeLimits, MonitorName, ColorPoint, StandardTimings };

/// By number of the family, which is that of its option.
constexpr std::array<Family, 6> families = {{
    {"FF", "Monitor Serial Number:"},
    {"FE", "ASCII Data:"},
    {"FD", "Monitor Range Limits:"},
    {"FC", "Monitor Name:"},
    {"FB", "Color Point:"},
    {"FA", "Standard Timing Identifiers:"},
}};

constexpr int inputHeight = 1200;          ///< twips
constexpr int inputHeightAtColours = 1095; ///< twips, beside the colour point panel
constexpr int timingCount = 6;

/// The family of a tag of the table, whose heading it puts into the report, or else the value of the tag.
int readTag(const DescriptorBlock& block) {
    const int value = block.cellValue(3);
    const std::string tag = upperCase(block.cell(3).text());
    for (std::size_t family = 0; family < families.size(); ++family) {
        if (families[family].tag == tag) {
            block.text() = line();
            block.report(families[family].heading);
            block.screen.DTAGTF.setVisible(family == RangeLimits);
            return static_cast<int>(family);
        }
    }
    return value;
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
    for (int i = 5; i <= 17; ++i) {
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
    for (int tag = 57; tag <= 111; tag += 18) {
        if (screen.txtEdit(tag).text() != "FC") {
            continue;
        }
        for (int i = 2; i <= 14; ++i) {
            const int code = byteAt(screen, tag + i);
            if (code == lineFeed) {
                break;
            }
            name += static_cast<char>(code);
        }
    }
    screen.txtModel.setText(name);
}

void convertStandardTimings(const DescriptorBlock& block) {
    FrmEdid& screen = block.screen;
    screen.Hints(11).setVisible(false);
    screen.Hints(12).setVisible(true);
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
