#include "block0/descriptor_entry.h"

#include <array>

#include "block0/cell_writing.h"
#include "block0/panel_basic.h"
#include "block0/panel_chromaticity.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/chromaticity.h"

namespace wb::block0 {

namespace {

/// Writes a text: its end is a line feed, and blanks fill up; a text of 13 characters has neither.
void writeText(FrmEdid& screen) {
    constexpr std::size_t longest = 13;
    const std::string& text = screen.DTaInput.text();
    for (std::size_t i = 0; i < longest; ++i) {
        Control& cell = screen.txtEdit(screen.CurrentBlockBase + 5 + static_cast<int>(i));
        if (i < text.size()) {
            cell.setText(ByteToHex2(static_cast<unsigned char>(text[i])));
        } else {
            cell.setText(i == text.size() ? "0A" : "20");
        }
    }
}

double enteredNumber(FrmEdid& screen) {
    return Value(screen.workbench(), screen.DTaInput.text());
}

/// A limit that cannot be 0: such an entry stores 255. The pixel clock comes in MHz and has no upper limit.
bool writeRangeLimit(FrmEdid& screen) {
    constexpr int pixelClock = 4;
    constexpr double highest = 255;
    const int limit = screen.DtaOpt.firstSelected();
    if (limit < 0) {
        return true;
    }
    double entry = enteredNumber(screen);
    if (entry > highest && limit != pixelClock) {
        screen.workbench().showMessage("Value entered must be between 0 - 255");
        return false;
    }
    if (entry <= 0) {
        entry = highest;
    } else if (limit == pixelClock) {
        entry /= 10;
    }
    writeByte(screen, screen.CurrentBlockBase + 5 + limit, patternInt16(entry));
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
constexpr std::array<CurveField, 5> curveFields = {{
    {12, 0.5, 0, "Value entered must be integer"}, // tests the sign alone
    {13, 2, 127, "Value entered must be from 0 - 127"},
    {14, 1, 65535, "Value entered must be from 0 - 65535"},
    {16, 1, 255, "Value entered must be from 0 - 255"},
    {17, 2, 127, "Value entered must be from 0 - 127"},
}};

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
    const int field = option % 3;
    const bool isGamma = field == 2;
    if (isGamma ? !isGammaEntry(workbench, entry) : !isCoordinate(workbench, entry)) {
        return false;
    }
    const std::string bits = isGamma ? std::string() : report::FractionToChromaBits(workbench, entry);
    const int indexCell = screen.CurrentBlockBase + (option < 3 ? 5 : 10);
    if (byteAt(screen, indexCell) == 0) {
        return false; // a white point that is switched off takes no values
    }
    if (isGamma) {
        writeByte(screen, indexCell + 4, gammaByte(entry));
    } else {
        writeCoordinate(screen, bits, indexCell + 1, field == 0 ? 2 : 0, indexCell + 2 + field);
    }
    return true;
}

} // namespace

bool writeDescriptorEntry(FrmEdid& screen) {
    constexpr int rangeLimits = 2;
    constexpr int colourPoint = 4;
    switch (screen.DTa.firstSelected()) {
        case 0: // serial number
        case 1: // ASCII string
        case 3: // monitor name
            writeText(screen);
            return true;
        case rangeLimits:
            return screen.DTAGTF.value() != 0 ? writeCurveField(screen) : writeRangeLimit(screen);
        case colourPoint:
            return writeWhitePoint(screen);
        default:
            return true;
    }
}

} // namespace wb::block0
