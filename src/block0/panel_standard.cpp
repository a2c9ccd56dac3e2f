#include "block0/panel_standard.h"

#include "block0/cell_writing.h"
#include "block0/panel.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/descriptor_layout.h"
#include "report/detailed_timing.h"
#include "report/standard_timings.h"
#include "report/standard_timings_layout.h"

namespace wb::block0 {

namespace {

constexpr int disablingOption = report::descriptorTimingCount; ///< of `ExtSTOpt`

/// First cell of a pair of the descriptor in hand.
int descriptorPair(const FrmEdid& screen, int pair) {
    return screen.CurrentBlockBase + report::descriptorTimingCell(pair);
}

/// Writes an entry to the pair that begins at `first`. False when it was refused.
bool writeEntry(FrmEdid& screen, int first, const Control& adjustHorizontal, const std::string& text) {
    constexpr int largest = 255;
    Workbench& workbench = screen.workbench();
    int entry = roundToInt16(Value(workbench, text));
    if (adjustHorizontal.selected()) {
        entry = entry > 0 ? roundToInt16(static_cast<double>(entry) / report::widthUnit - report::widthOffset) : entry;
    } else {
        entry = int16From(entry - report::lowestRate);
    }
    if (entry > largest) {
        workbench.showMessage("Invalid Value");
        return false;
    }
    if (!adjustHorizontal.selected()) {
        // A rate that is too high spills into the aspect.
        mixBits(screen, first + 1, maskOf(report::aspectBits), entry);
    } else if (entry == 0) { // the mark of an unused pair
        screen.txtEdit(first).setText("01");
        screen.txtEdit(first + 1).setText("01");
    } else {
        writeByte(screen, first, entry);
    }
    return true;
}

} // namespace

void openStandardTimingPanel(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    const int pair = (index - report::standardTimingCell(0)) / 2;
    screen.STOpt(pair).setValue(-1);
    screen.CurrentBlockBase = static_cast<std::int16_t>(report::standardTimingCell(pair) + 1);
    report::ConvertStandardTimings(workbench);
}

void STOpt_Click(Workbench& workbench, int index) {
    whenUserActs(workbench,
                 [&](FrmEdid& screen) { workbench.focus.moveTo(screen.txtEdit(report::standardTimingCell(index))); });
}

void ExtSTOpt_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        if (index != disablingOption) {
            workbench.focus.moveTo(screen.txtEdit(descriptorPair(screen, index)));
            return;
        }
        screen.Hints(FrmEdid::descriptorPanel).setVisible(true);
        screen.Hints(FrmEdid::timingDescriptorPanel).setVisible(false);
        Control& tag = screen.txtEdit(screen.CurrentBlockBase + report::descriptorTagCell);
        tag.setText(ByteToHex2(report::descriptorTag(report::SerialNumber)));
        workbench.focus.moveTo(tag);
    });
}

void STAOptb_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        const int pair = screen.STOpt.firstSelected();
        if (pair >= 0) {
            writeBits(screen, report::standardTimingCell(pair) + 1, report::aspectBits, index);
            report::ConvertStandardTimings(workbench);
        }
    });
}

void ExtSTAOptb_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        const int pair = screen.ExtSTOpt.firstSelected(0, disablingOption - 1);
        if (pair >= 0) {
            writeBits(screen, descriptorPair(screen, pair) + 1, report::aspectBits, index);
            report::ConvertDetailedTiming(workbench);
        }
    });
}

void STAOpta_Click(Workbench& workbench, int) {
    whenUserActs(workbench, [&](FrmEdid& screen) { workbench.focus.moveTo(screen.STAInput); });
}

void ExtSTAOpta_Click(Workbench& workbench, int) {
    whenUserActs(workbench, [&](FrmEdid& screen) { workbench.focus.moveTo(screen.ExtStaInput); });
}

void STAInput_GotFocus(Workbench& workbench, int) {
    SelectAllInControl(workbench.frmEDID().STAInput);
}

void ExtStaInput_GotFocus(Workbench& workbench, int) {
    SelectAllInControl(workbench.frmEDID().ExtStaInput);
}

void STAInput_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        if (writeEntry(screen, screen.CurrentBlockBase - 1, screen.STAOpta(0), screen.STAInput.text())) {
            report::ConvertStandardTimings(workbench);
            screen.STAInput.setText("");
        }
    });
}

void ExtStaInput_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        // With no pair selected the entry goes behind the last one.
        const int pair = screen.ExtSTOpt.firstSelected(0, disablingOption - 1, disablingOption);
        if (writeEntry(screen, descriptorPair(screen, pair), screen.ExtSTAOpta(0), screen.ExtStaInput.text())) {
            report::ConvertDetailedTiming(workbench);
            screen.ExtStaInput.setText("");
        }
    });
}

} // namespace wb::block0
