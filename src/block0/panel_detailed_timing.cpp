#include "block0/panel_detailed_timing.h"

#include <array>

#include "block0/cell_writing.h"
#include "block0/grid.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "core/keys.h"
#include "report/detailed_timing_layout.h"

namespace wb::block0 {

namespace {

constexpr double largestEntry = 65534;

/// How the upper digits of an entry reach their cell. A decimal reading is that of the hexadecimal digits as they
/// stand: "0A" gives 0 and "10" gives 10, so that entries of 2560 and more lose or spill their high digits.
enum class Upper { None, WholeCell, LastDigit, DecimalReading, Bits };

constexpr std::array<Upper, report::timingFieldCount> uppers = {
    Upper::WholeCell,      // pixel clock
    Upper::LastDigit,      // horizontal active
    Upper::DecimalReading, // horizontal blanking
    Upper::LastDigit,      // vertical active
    Upper::DecimalReading, // vertical blanking
    Upper::DecimalReading, // horizontal sync offset
    Upper::DecimalReading, // horizontal pulse width
    Upper::Bits,           // vertical sync offset
    Upper::Bits,           // vertical pulse width
    Upper::None,           // horizontal border
    Upper::None,           // vertical border
    Upper::DecimalReading, // horizontal image size
    Upper::DecimalReading, // vertical image size
};

/// What stays of the upper cell where that is not all but the bits of the field: these two keep their own old bits and
/// wipe the others.
struct OddMask {
    report::TimingField field;
    int kept;
};
constexpr auto oddMasks = std::to_array<OddMask>({{report::HSyncOffset, 0xC0}, {report::HSyncWidth, 0x30}});

const SplitField& layoutOf(int field) {
    return report::timingFields[static_cast<std::size_t>(field)];
}

/// The field of a cell, or timingFieldCount.
int fieldOfCell(int cell) {
    int field = 0;
    while (field < report::timingFieldCount && cellOfTimingField(field) != cell) {
        ++field;
    }
    return field;
}

int keptOf(int field) {
    for (const OddMask& odd : oddMasks) {
        if (odd.field == field) {
            return odd.kept;
        }
    }
    return ~maskOf(layoutOf(field).upper.range);
}

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

/// All bits of the last two digits go where they belong.
void writeSplit(BlockScreen& screen, const SplitField& layout, const std::string& low) {
    const int base = screen.CurrentBlockBase;
    const int entry = byteOf(screen.workbench(), low);
    writeBits(screen, base + layout.lower.cell, layout.lower.range, entry);
    writeBits(screen, base + layout.upper.cell, layout.upper.range, entry >> layout.lower.range.width());
}

void writeField(BlockScreen& screen, int field, const std::string& digits) {
    const SplitField& layout = layoutOf(field);
    const Upper upper = uppers[static_cast<std::size_t>(field)];
    const std::string low = rightPart(digits, 2);
    const std::string high = leftPart(digits, 2);
    if (upper == Upper::Bits) {
        writeSplit(screen, layout, low);
        return;
    }
    screen.txtEdit(screen.CurrentBlockBase + layout.lower.cell).setText(low);
    const int upperCell = screen.CurrentBlockBase + layout.upper.cell;
    if (upper == Upper::WholeCell) {
        screen.txtEdit(upperCell).setText(high);
    } else if (upper == Upper::LastDigit) {
        writeBits(screen, upperCell, layout.upper.range, HexDigitValue(rightPart(high, 1)));
    } else if (upper == Upper::DecimalReading) {
        const int reading = roundToInt16(Value(screen.workbench(), high));
        mixBits(screen, upperCell, keptOf(field), reading << layout.upper.range.low);
    }
}

/// A handler of the flag byte: changes its bits and decodes the block.
template <class Change>
void changeFlags(const BlockScreenRules& rules, Workbench& workbench, Change&& changed) {
    procedure(rules, workbench, [&](BlockScreen& screen, const Statements& run) {
        const int cell = screen.CurrentBlockBase + report::timingFlagCell;
        run([&] { writeByte(screen, cell, changed(screen, byteAt(screen, cell))); });
        run([&] { rules.convertDetailedTiming(workbench); });
    });
}

} // namespace

int cellOfTimingField(int field) {
    return field == report::VSyncWidth ? layoutOf(field).upper.cell : layoutOf(field).lower.cell;
}

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
    screen.Hints(offset == report::timingFlagCell ? BlockScreen::timingFlagPanel : BlockScreen::timingValuePanel)
        .setVisible(true);
    screen.DTInput.setVisible(true);
    if (offset <= 1) {
        colourCells(run, screen, {screen.CurrentBlockBase, screen.CurrentBlockBase + 1}, CellColour::Field);
        offset = 0;
    } else {
        colourCells(run, screen, {cell, cell}, CellColour::Field);
    }
    const int field = fieldOfCell(offset);
    if (field < report::timingFieldCount) {
        screen.DT(field).setValue(-1);
    } else if (offset != report::timingFlagCell) {
        screen.DTInput.setVisible(false);
    }
}

void DT_Click(const BlockScreenRules& rules, Workbench& workbench, int index) {
    procedure(rules, workbench, [&](BlockScreen& screen, const Statements& run) {
        if (screen.InFocusDispatch == flagFalse) {
            const int cell = screen.CurrentBlockBase + cellOfTimingField(index);
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
            if (field == report::PixelClock) { // reads the box again, so that what cannot be read is told twice
                const double clock = Value(workbench, screen.DTInput.text()) * 100;
                if (!isEntry(workbench, clock)) {
                    return;
                }
                digits = run.read([&] { return hexDigits(clock); });
            }
            run([&] { writeField(screen, field, digits); });
        }
        run([&] { rules.convertDetailedTiming(workbench); });
    });
}

void DT1_Click(const BlockScreenRules& rules, Workbench& workbench) {
    procedure(rules, workbench, [](BlockScreen& screen, const Statements& run) {
        if (screen.InFocusDispatch == flagFalse) {
            run([&] {
                const int cell = screen.CurrentBlockBase + report::timingFlagCell;
                writeByte(screen, cell, withBit(byteAt(screen, cell), report::interlacedBit, screen.DT1.value() == 1));
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
            const int cell = screen.CurrentBlockBase + report::timingFlagCell;
            const int code = report::stereoCodes[static_cast<std::size_t>(choice)];
            writeByte(screen, cell, report::withStereoCode(byteAt(screen, cell), code));
            if (choice == report::noStereoOption) {
                screen.frmStereo.setCaption("Normal Display - No Stereo");
            }
        });
    });
}

void DTSync_Click(const BlockScreenRules& rules, Workbench& workbench) {
    if (rules.screen(workbench).InFocusDispatch == flagFalse) {
        changeFlags(rules, workbench, [](BlockScreen& screen, int old) {
            return withBits(old, report::syncKindBits, screen.DTSync.firstSelected(0));
        });
    }
}

void SyncLine_Click(const BlockScreenRules& rules, Workbench& workbench) {
    changeFlags(rules, workbench, [](BlockScreen&, int old) { return old ^ (1 << report::polarityBit); });
}

void VSyncLine_Click(const BlockScreenRules& rules, Workbench& workbench) {
    changeFlags(rules, workbench, [](BlockScreen&, int old) { return old ^ (1 << report::serrateBit); });
}

void SyncSerrate_Click(const BlockScreenRules& rules, Workbench& workbench) {
    changeFlags(rules, workbench, [](BlockScreen& screen, int old) {
        return withBit(old, report::serrateBit, screen.SyncSerrate.value() == 1);
    });
}

} // namespace wb::block0
