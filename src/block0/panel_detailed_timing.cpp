#include "block0/panel_detailed_timing.h"

#include <algorithm>
#include <array>

#include "block0/cell_writing.h"
#include "block0/grid.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "core/keys.h"

namespace wb::block0 {

namespace {

constexpr int flagOffset = 17;
constexpr double largestEntry = 65534;

/// How the upper digits of an entry reach their cell. A decimal reading is that of the hexadecimal digits as they
/// stand: "0A" gives 0 and "10" gives 10, so that entries of 2560 and more lose or spill their high digits.
enum class Upper { None, WholeCell, LastDigit, DecimalReading, VerticalOffset, VerticalWidth };

/// One field of a detailed timing, in the order of the options DT. Offsets are from the first cell of the block (VESA
/// E-EDID Standard, Release A, section 3.10.2).
struct TimingField {
    int cell;
    Upper upper;
    int upperCell;
    int factor; ///< of the upper digits
    int keep;   ///< what stays of the upper cell; not always the complement of the field
};

constexpr std::array<TimingField, 13> fields = {{
    {0, Upper::WholeCell, 1, 0, 0},          // pixel clock
    {2, Upper::LastDigit, 4, 16, 15},        // horizontal active
    {3, Upper::DecimalReading, 4, 1, 240},   // horizontal blanking
    {5, Upper::LastDigit, 7, 16, 15},        // vertical active
    {6, Upper::DecimalReading, 7, 1, 240},   // vertical blanking
    {8, Upper::DecimalReading, 11, 64, 192}, // horizontal sync offset: keeps its own old bits, wipes the others
    {9, Upper::DecimalReading, 11, 16, 48},  // horizontal pulse width: likewise
    {10, Upper::VerticalOffset, 11, 0, 0},   // vertical sync offset
    {11, Upper::VerticalWidth, 11, 0, 0},    // vertical pulse width; cell 10 takes its low bits
    {15, Upper::None, 0, 0, 0},              // horizontal border
    {16, Upper::None, 0, 0, 0},              // vertical border
    {12, Upper::DecimalReading, 14, 16, 15}, // horizontal image size
    {13, Upper::DecimalReading, 14, 1, 240}, // vertical image size
}};
constexpr int pixelClock = 0;

/// Bits 6, 5 and 0 of the flag byte, by the options DTStereo.
constexpr std::array<int, 7> stereoBits = {0x20, 0x40, 0x21, 0x41, 0x60, 0x61, 0};
constexpr int noStereo = 6;

/// The entry in hexadecimal, at least four digits; eight for a negative one.
std::string hexDigits(double entry) {
    return zeroFilled(hexadecimal32(roundToInt32(entry)), 4);
}

/// Whether an entry fits; otherwise tells the user.
bool isEntry(Workbench& workbench, double entry) {
    if (entry > largestEntry) {
        workbench.showMessage("Invalid Value");
        return false;
    }
    return true;
}

/// The vertical sync fields have four low bits in one cell and two upper ones in the next.
void writeVerticalSync(BlockScreen& screen, bool isOffset, const std::string& low) {
    const int base = screen.CurrentBlockBase;
    const int entry = byteOf(screen.workbench(), low);
    replaceBits(screen, base + 10, isOffset ? 15 : 240, isOffset ? (entry & 15) * 16 : entry & 15);
    replaceBits(screen, base + 11, isOffset ? 243 : 252, (entry & 48) / (isOffset ? 4 : 16));
}

void writeField(BlockScreen& screen, const TimingField& field, const std::string& digits) {
    const std::string low = rightPart(digits, 2);
    const std::string high = leftPart(digits, 2);
    if (field.upper == Upper::VerticalOffset || field.upper == Upper::VerticalWidth) {
        writeVerticalSync(screen, field.upper == Upper::VerticalOffset, low);
        return;
    }
    screen.txtEdit(screen.CurrentBlockBase + field.cell).setText(low);
    const int upperCell = screen.CurrentBlockBase + field.upperCell;
    if (field.upper == Upper::WholeCell) {
        screen.txtEdit(upperCell).setText(high);
    } else if (field.upper == Upper::LastDigit) {
        replaceBits(screen, upperCell, field.keep, HexDigitValue(rightPart(high, 1)) * field.factor);
    } else if (field.upper == Upper::DecimalReading) {
        const int reading = roundToInt16(Value(screen.workbench(), high));
        replaceBits(screen, upperCell, field.keep, reading * field.factor);
    }
}

/// A handler of the flag byte: changes its bits and decodes the block.
template <class Bits>
void changeFlags(const BlockScreenRules& rules, Workbench& workbench, Bits&& bits) {
    procedure(rules, workbench, [&](BlockScreen& screen, const Statements& run) {
        const int cell = screen.CurrentBlockBase + flagOffset;
        run([&] { writeByte(screen, cell, bits(screen, byteAt(screen, cell))); });
        run([&] { rules.convertDetailedTiming(workbench); });
    });
}

} // namespace

std::string detailedTimingCaption(int base) {
    return "Detailed Timing (" + std::to_string(base) + '-' + std::to_string(base + detailedBlockSize - 1) + ')';
}

void resetDetailedTiming(BlockScreen& screen, int lastStereo) {
    screen.DT.deselect();
    screen.DTStereo.deselect(lastStereo);
    screen.DTSync.deselect();
    screen.DT1.setValue(0);
    screen.DTInput.setText("");
}

void showDetailedTimingField(const Statements& run, BlockScreen& screen, int offset) {
    const int cell = screen.CurrentBlockBase + offset;
    screen.Hints(offset == flagOffset ? BlockScreen::timingFlagPanel : BlockScreen::timingValuePanel).setVisible(true);
    screen.DTInput.setVisible(true);
    if (offset <= 1) {
        colourCells(run, screen, {screen.CurrentBlockBase, screen.CurrentBlockBase + 1}, CellColour::Field);
        offset = 0;
    } else {
        colourCells(run, screen, {cell, cell}, CellColour::Field);
    }
    const auto field = std::find_if(fields.begin(), fields.end(), [&](const auto& row) { return row.cell == offset; });
    if (field != fields.end()) {
        screen.DT(static_cast<int>(field - fields.begin())).setValue(-1);
    } else if (offset != flagOffset) {
        screen.DTInput.setVisible(false);
    }
}

void DT_Click(const BlockScreenRules& rules, Workbench& workbench, int index) {
    procedure(rules, workbench, [&](BlockScreen& screen, const Statements& run) {
        if (screen.InFocusDispatch == flagFalse) {
            const int cell = screen.CurrentBlockBase + fields[static_cast<std::size_t>(index)].cell;
            run([&] { workbench.focus.moveTo(screen.txtEdit(cell)); });
        }
    });
}

void DTInput_GotFocus(const BlockScreenRules& rules, Workbench& workbench) {
    SelectAllInControl(rules.screen(workbench).DTInput);
}

void DTInput_KeyUp(const BlockScreenRules& rules, Workbench& workbench, int keyCode) {
    if (keyCode != enterKey) {
        return;
    }
    procedure(rules, workbench, [&](BlockScreen& screen, const Statements& run) {
        const double entry = Value(workbench, screen.DTInput.text());
        if (!isEntry(workbench, entry)) {
            return;
        }
        const int field = screen.DT.firstSelected();
        if (field >= 0) {
            std::string digits = run.read([&] { return hexDigits(entry); });
            if (field == pixelClock) { // reads the box again, so that what cannot be read is told twice
                const double clock = Value(workbench, screen.DTInput.text()) * 100;
                if (!isEntry(workbench, clock)) {
                    return;
                }
                digits = run.read([&] { return hexDigits(clock); });
            }
            run([&] { writeField(screen, fields[static_cast<std::size_t>(field)], digits); });
        }
        run([&] { rules.convertDetailedTiming(workbench); });
    });
}

void DT1_Click(const BlockScreenRules& rules, Workbench& workbench) {
    procedure(rules, workbench, [](BlockScreen& screen, const Statements& run) {
        if (screen.InFocusDispatch == flagFalse) {
            run([&] {
                replaceBits(screen, screen.CurrentBlockBase + flagOffset, 127, screen.DT1.value() == 1 ? 128 : 0);
            });
        }
    });
}

void DTStereo_Click(const BlockScreenRules& rules, Workbench& workbench) {
    procedure(rules, workbench, [](BlockScreen& screen, const Statements& run) {
        screen.frmStereo.setCaption("Stereo");
        const int choice = screen.DTStereo.firstSelected();
        if (screen.InFocusDispatch != flagFalse || choice < 0) {
            return;
        }
        run([&] {
            replaceBits(screen, screen.CurrentBlockBase + flagOffset, 255 - 0x61,
                        stereoBits[static_cast<std::size_t>(choice)]);
            if (choice == noStereo) {
                screen.frmStereo.setCaption("Normal Display - No Stereo");
            }
        });
    });
}

void DTSync_Click(const BlockScreenRules& rules, Workbench& workbench) {
    if (rules.screen(workbench).InFocusDispatch == flagFalse) {
        changeFlags(rules, workbench,
                    [](BlockScreen& screen, int old) { return (old & 231) | screen.DTSync.firstSelected(0) * 8; });
    }
}

void SyncLine_Click(const BlockScreenRules& rules, Workbench& workbench) {
    changeFlags(rules, workbench, [](BlockScreen&, int old) { return old ^ 2; });
}

void VSyncLine_Click(const BlockScreenRules& rules, Workbench& workbench) {
    changeFlags(rules, workbench, [](BlockScreen&, int old) { return old ^ 4; });
}

void SyncSerrate_Click(const BlockScreenRules& rules, Workbench& workbench) {
    changeFlags(rules, workbench,
                [](BlockScreen& screen, int old) { return screen.SyncSerrate.value() == 1 ? old | 4 : old & 251; });
}

} // namespace wb::block0
