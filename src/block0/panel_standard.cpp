#include "block0/panel_standard.h"

#include "block0/cell_writing.h"
#include "block0/panel.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/detailed_timing.h"
#include "report/standard_timings.h"

namespace wb::block0 {

namespace {

constexpr int firstCell = 38;
constexpr int disablingOption = 6;

/// First cell of a pair of the descriptor in hand.
int descriptorPair(const FrmEdid& screen, int pair) {
    return screen.CurrentBlockBase + 5 + 2 * pair;
}

void writeAspect(BlockScreen& screen, int cell, int aspect) {
    replaceBits(screen, cell, 63, aspect * 64);
}

/// Writes an entry to the pair that begins at `first`. False when it was refused.
bool writeEntry(FrmEdid& screen, int first, const Control& adjustHorizontal, const std::string& text) {
    constexpr int largest = 255;
    Workbench& workbench = screen.workbench();
    int entry = roundToInt16(Value(workbench, text));
    if (adjustHorizontal.selected()) {
        entry = entry > 0 ? roundToInt16(entry / 8.0 - 31) : entry;
    } else {
        entry = int16From(entry - 60);
    }
    if (entry > largest) {
        workbench.showMessage("Invalid Value");
        return false;
    }
    if (!adjustHorizontal.selected()) {
        replaceBits(screen, first + 1, 192, entry);
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
    const int pair = (index - firstCell) / 2;
    screen.STOpt(pair).setValue(-1);
    screen.CurrentBlockBase = static_cast<std::int16_t>(firstCell + 1 + 2 * pair);
    report::ConvertStandardTimings(workbench);
}

void STOpt_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) { workbench.focus.moveTo(screen.txtEdit(firstCell + 2 * index)); });
}

void ExtSTOpt_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        if (index != disablingOption) {
            workbench.focus.moveTo(screen.txtEdit(descriptorPair(screen, index)));
            return;
        }
        screen.Hints(FrmEdid::descriptorPanel).setVisible(true);
        screen.Hints(FrmEdid::timingDescriptorPanel).setVisible(false);
        Control& tag = screen.txtEdit(screen.CurrentBlockBase + 3);
        tag.setText("FF");
        workbench.focus.moveTo(tag);
    });
}

void STAOptb_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        const int pair = screen.STOpt.firstSelected();
        if (pair >= 0) {
            writeAspect(screen, firstCell + 2 * pair + 1, index);
            report::ConvertStandardTimings(workbench);
        }
    });
}

void ExtSTAOptb_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        const int pair = screen.ExtSTOpt.firstSelected(0, disablingOption - 1);
        if (pair >= 0) {
            writeAspect(screen, descriptorPair(screen, pair) + 1, index);
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
