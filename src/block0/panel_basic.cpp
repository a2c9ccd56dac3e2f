#include "block0/panel_basic.h"

#include <array>

#include "block0/cell_writing.h"
#include "block0/field_decoders.h"
#include "block0/grid.h"
#include "block0/panel.h"
#include "core/cells.h"
#include "core/edid_image.h"
#include "report/basic_display.h"
#include "report/basic_display_layout.h"

namespace wb::block0 {

namespace {

/// Both sizes and gamma are entered as numbers.
constexpr CellRange valueCells{cells::maxHorizontalSize, cells::gamma};

void openValue(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    screen.Basic(index - valueCells.first).setValue(-1);
    for (int i = 0; i <= 2; ++i) {
        screen.Basic(i).setVisible(true);
    }
    decodeFieldOf(workbench, index);
    const std::array<const std::string*, 3> decoded = {&workbench.MaxHImageSizeText, &workbench.MaxVImageSizeText,
                                                       &workbench.DisplayGammaText};
    const std::string& text = *decoded[static_cast<std::size_t>(index - valueCells.first)];
    const std::size_t blank = text.find(' ');
    if (index == cells::gamma) {
        screen.BasicInput.setText(text);
    } else if (blank != std::string::npos) {
        screen.BasicInput.setText(text.substr(0, blank));
    }
    if (seeks(workbench)) {
        workbench.focus.moveTo(screen.BasicInput);
    }
}

void writeImageSize(Workbench& workbench, int cell, double entry) {
    const double size = entry > 0 ? entry / 10 : entry; // negative entries are taken as they are
    if (size > 255) {
        workbench.showMessage("This value must value between 0 and 2550");
        return;
    }
    writeByte(workbench.frmEDID(), cell, patternInt16(size));
    decodeFieldOf(workbench, cell);
}

void writeGamma(Workbench& workbench, double entry) {
    if (isGammaEntry(workbench, entry)) {
        writeByte(workbench.frmEDID(), cells::gamma, gammaByte(entry));
        report::ConvertGamma(workbench);
    }
}

} // namespace

void openBasicPanel(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    screen.VideoInput.setVisible(false);
    screen.DPMS.setVisible(false);
    screen.BasicInput.setText("");
    screen.BasicInput.setVisible(valueCells.contains(index));
    report::ConvertMaxHorizontalSize(workbench);
    report::ConvertMaxVerticalSize(workbench);
    report::ConvertGamma(workbench);
    screen.lbBasic(0).setFontBold(false);
    screen.lbBasic(1).setFontBold(false);
    colourField(screen, {cells::videoInput, cells::features}, {index, index});
    for (int i = 0; i <= 2; ++i) {
        screen.Basic(i).setVisible(false);
    }
    if (index == cells::videoInput) {
        screen.lbBasic(0).setFontBold(true);
        report::ConvertVideoInput(workbench);
        screen.VideoInput.setVisible(true);
    } else if (index == cells::features) {
        report::ConvertFeatureSupport(workbench);
        screen.DPMS.setVisible(true);
    } else {
        openValue(workbench, index);
    }
}

void Basic_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        if (screen.Basic.firstSelected() >= 0) {
            workbench.focus.moveTo(screen.txtEdit(index + valueCells.first));
        }
    });
}

void BasicInput_GotFocus(Workbench& workbench, int) {
    whenUserActs(workbench, [](FrmEdid& screen) { SelectAllInControl(screen.BasicInput); });
}

void BasicInput_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        const int field = screen.Basic.firstSelected();
        if (screen.InFocusDispatch != flagFalse || field < 0) {
            return;
        }
        const double entry = Value(workbench, screen.BasicInput.text());
        const int cell = valueCells.first + field;
        if (cell == cells::gamma) {
            writeGamma(workbench, entry);
        } else {
            writeImageSize(workbench, cell, entry);
        }
    });
}

void VideoMode_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        writeByte(screen, cells::videoInput, withBit(0, report::digitalBit, index == 1)); // whatever the cell held
        decodeFieldOf(workbench, cells::videoInput);
        RecalcBlock0Checksum(workbench);
    });
}

void Signal_Click(Workbench& workbench, int index) {
    whenUserActs(workbench,
                 [&](FrmEdid&) { changeBits(workbench, cells::videoInput, report::signalLevelBits, index); });
}

void Sync_Click(Workbench& workbench, int index) {
    changeBit(workbench, cells::videoInput, report::syncBits[static_cast<std::size_t>(index)],
              workbench.frmEDID().Sync(index));
}

void DFP_1_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid& screen) {
        if (screen.DFP_1(index).value() == 1) {
            changeBits(workbench, cells::videoInput, {report::dfpBit, report::dfpBit}, 1);
        } else {
            changeBits(workbench, cells::videoInput, {report::digitalBit - 1, 0}, 0); // all below it
        }
    });
}

void DisplayType_Click(Workbench& workbench, int index) {
    whenUserActs(workbench, [&](FrmEdid&) { changeBits(workbench, cells::features, report::displayTypeBits, index); });
}

void FSupport_Click(Workbench& workbench, int index) {
    changeBit(workbench, cells::features, report::featureBits[static_cast<std::size_t>(index)],
              workbench.frmEDID().FSupport(index));
}

bool isGammaEntry(Workbench& workbench, double entry) {
    if (entry < 1.0 || entry > 3.55) {
        workbench.showMessage("This value must value between 1.00-3.55");
        return false;
    }
    return true;
}

int gammaByte(double entry) {
    return patternInt16(entry * 100 - 100);
}

} // namespace wb::block0
