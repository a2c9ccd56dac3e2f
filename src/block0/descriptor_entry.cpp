#include "block0/descriptor_entry.h"

#include <array>
#include <string>

#include "block0/cell_writing.h"
#include "block0/panel_basic.h"
#include "block0/panel_chromaticity.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/chromaticity.h"
#include "report/color_point_layout.h"
#include "report/descriptor_layout.h"
#include "report/range_limits_layout.h"

namespace wb::block0 {

namespace {

/// Writes a text: its end is a line feed, and blanks fill up; a text of 13 characters has neither.
void writeText(FrmEdid& screen) {
    const CellRange range = report::descriptorTextCells;
    const std::string& text = screen.DTaInput.text();
    for (int offset = range.first; offset <= range.last; ++offset) {
        Control& cell = screen.txtEdit(screen.CurrentBlockBase + offset);
        const auto i = static_cast<std::size_t>(offset - range.first);
        if (i < text.size()) {
            cell.setText(ByteToHex2(static_cast<unsigned char>(text[i])));
        } else {
            cell.setText(std::string(i == text.size() ? report::lineFeedText : report::blankText));
        }
    }
}

double enteredNumber(FrmEdid& screen) {
    return Value(screen.workbench(), screen.DTaInput.text());
}

/// A limit that cannot be 0: such an entry stores 255. The pixel clock comes in MHz and has no upper limit.
bool writeRangeLimit(FrmEdid& screen) {
    constexpr double highest = report::unspecifiedLimit;
    const int limit = screen.DtaOpt.firstSelected();
    if (limit < 0) {
        return true;
    }
    double entry = enteredNumber(screen);
    if (entry > highest && limit != report::clockLimit) {
        screen.workbench().showMessage("Value entered must be between 0 - 255");
        return false;
    }
    if (entry <= 0) {
        entry = highest;
    } else if (limit == report::clockLimit) {
        entry /= report::clockUnit;
    }
    writeByte(screen, screen.CurrentBlockBase + report::limitCells.first + limit, patternInt16(entry));
    return true;
}

/// A field of the secondary GTF curve of a range limits descriptor (VESA E-EDID Standard, Release A, section 3.10.3).
struct CurveField {
    int cell;       ///< of the block
    double factor;  ///< of the entry
    double highest; ///< 0: not tested
    const char* message;
};

constexpr int curveM = 2;
constexpr auto curveFields = std::to_array<CurveField>({
    {report::curveStartCell, 0.5, 0, "Value entered must be integer"}, // tests the sign alone
    {report::curveCCell, 2, 127, "Value entered must be from 0 - 127"},
    {report::curveMLowCell, 1, 65535, "Value entered must be from 0 - 65535"},
    {report::curveKCell, 1, 255, "Value entered must be from 0 - 255"},
    {report::curveJCell, 2, 127, "Value entered must be from 0 - 127"},
});

/// The cell of the lower index gets the higher digits, though the decoder reads them the other way round.
void writeCurveM(FrmEdid& screen, int cell, double entry) {
    const std::string digits = hexadecimal32(roundToInt32(entry));
    screen.txtEdit(cell + 1).setText(rightPart(digits, 2));
    screen.txtEdit(cell).setText(leftPart(zeroFilled(digits, 4), 2));
}

bool writeCurveField(FrmEdid& screen) {
    const int index = screen.S_GTF.firstSelected();
    if (index < 0) {
        return true;
    }
    const double entry = enteredNumber(screen);
    const CurveField& field = curveFields[static_cast<std::size_t>(index)];
    if (entry < 0 || (field.highest > 0 && entry > field.highest)) {
        screen.workbench().showMessage(field.message);
        return false;
    }
    const int cell = screen.CurrentBlockBase + field.cell;
    if (index == curveM) {
        writeCurveM(screen, cell, entry);
    } else {
        writeByte(screen, cell, patternInt16(entry * field.factor));
    }
    return true;
}

/// Gamma or a coordinate of one of the two white points.
bool writeWhitePoint(FrmEdid& screen) {
    Workbench& workbench = screen.workbench();
    const int option = screen.DtaOptWhite.firstSelected();
    if (option < 0) {
        return true;
    }
    const double entry = enteredNumber(screen);
    const int field = option % report::optionsOfPoint;
    const bool isGamma = field == report::gammaOption;
    if (isGamma ? !isGammaEntry(workbench, entry) : !isCoordinate(workbench, entry)) {
        return false;
    }
    const std::string digits = isGamma ? std::string() : report::FractionToChromaBits(workbench, entry);
    const int indexCell = screen.CurrentBlockBase + report::whitePointCell(option / report::optionsOfPoint);
    if (byteAt(screen, indexCell) == 0) {
        return false; // a white point that is switched off takes no values
    }
    if (isGamma) {
        writeByte(screen, indexCell + report::whiteGammaCell, gammaByte(entry));
    } else {
        writeCoordinate(screen, digits, field == 0 ? report::whiteX : report::whiteY, indexCell);
    }
    return true;
}

} // namespace

bool writeDescriptorEntry(FrmEdid& screen) {
    switch (screen.DTa.firstSelected()) {
        case report::SerialNumber:
        case report::AsciiData:
        case report::MonitorName:
            writeText(screen);
            return true;
        case report::RangeLimits:
            return screen.DTAGTF.value() != 0 ? writeCurveField(screen) : writeRangeLimit(screen);
        case report::ColorPoint:
            return writeWhitePoint(screen);
        default:
            return true;
    }
}

} // namespace wb::block0
