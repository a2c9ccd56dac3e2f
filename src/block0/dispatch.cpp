#include "block0/dispatch.h"

#include "block0/block_dispatch.h"
#include "block0/field_decoders.h"
#include "block0/panel_basic.h"
#include "block0/panel_chromaticity.h"
#include "block0/panel_detailed_timing.h"
#include "block0/panel_standard.h"
#include "block0/panel_vendor.h"
#include "core/edid_image.h"
#include "report/checksum.h"
#include "report/detailed_timing.h"

namespace wb::block0 {

namespace {

constexpr int lastBlankingPanel = 12;

BlockScreen& edidScreen(Workbench& workbench) {
    return workbench.frmEDID();
}

CellRange headerCells(int) {
    return {0, 7};
}

CellRange theCell(int index) {
    return {index, index};
}

CellRange evenPair(int index) {
    return {index - index % 2, index - index % 2 + 1};
}

void openExtensionFlag(Workbench& workbench, int) {
    FrmEdid& screen = workbench.frmEDID();
    screen.lbEDID(6).setFontBold(true);
    screen.lbEDID(7).setFontBold(false);
    UpdateExtensionButton(workbench);
    report::ConvertExtCheckSum(workbench);
}

void openChecksum(Workbench& workbench, int) {
    FrmEdid& screen = workbench.frmEDID();
    screen.lbEDID(7).setFontBold(true);
    screen.lbEDID(6).setFontBold(false);
    report::ConvertExtCheckSum(workbench);
}

/// A row of the dispatch: which panel is shown for which cells, and what happens then.
struct Branch {
    CellRange cells;
    int panel;
    CellRange group;
    CellRange (*field)(int index); ///< none: the further steps colour the cells in a place of their own
    void (*further)(Workbench&, int index);
};
/// The further steps show the panel too.
constexpr int ownPanel = -1;

constexpr Branch branches[] = {
    {{0, 7}, 0, noCells, &headerCells, nullptr},           {{8, 17}, 1, {8, 17}, &identityField, &openVendorPanel},
    {{18, 18}, 2, {19, 19}, &theCell, &openVersionPanel},  {{19, 19}, 2, {18, 18}, &theCell, &openVersionPanel},
    {{20, 24}, 3, noCells, nullptr, &openBasicPanel},      {{25, 34}, 4, noCells, nullptr, &openChromaticityPanel},
    {{35, 35}, 5, noCells, &theCell, &decodeFieldOf},      {{36, 36}, 6, noCells, &theCell, &decodeFieldOf},
    {{37, 37}, 7, noCells, &theCell, &decodeFieldOf},      {{38, 53}, 8, {38, 53}, &evenPair, &openStandardTimingPanel},
    {{54, 125}, ownPanel, noCells, nullptr, &openBlock},   {{126, 126}, 13, {127, 127}, &theCell, &openExtensionFlag},
    {{127, 127}, 13, {126, 126}, &theCell, &openChecksum},
};

void runBranch(Workbench& workbench, const Branch& branch, int index) {
    FrmEdid& screen = workbench.frmEDID();
    if (branch.panel != ownPanel) {
        screen.Hints(branch.panel).setVisible(true);
    }
    if (branch.field != nullptr) {
        colourField(screen, branch.group, branch.field(index));
    }
    if (branch.further != nullptr) {
        branch.further(workbench, index);
    }
}

} // namespace

const BlockScreenRules edidScreenRules = {
    .screen = &edidScreen,
    .firstUnlockedCell = 0,
    .lengthMessage = "Please Make Your Values In Hex",
    .recalculateChecksum = &RecalcBlock0Checksum,
    .convertDetailedTiming = &report::ConvertDetailedTiming,
    .onFailure = Statements::OnFailure::LeaveProcedure,
};

void txtEdit_GotFocus(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        beginFocusDispatch(edidScreenRules, workbench);
        for (const Branch& branch : branches) {
            if (branch.cells.contains(index)) {
                runBranch(workbench, branch, index);
                break;
            }
        }
        endFocusDispatch(edidScreenRules, workbench, index);
    });
}

void txtEdit_KeyUp(Workbench& workbench, int index, int) {
    trapped(workbench, [&] {
        if (workbench.frmEDID().txtEdit(index).text().size() == 2) {
            decodeFieldOf(workbench, index);
        }
    });
}

void Hints_DblClick(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        if (workbench.ModifyEDIDOn == flagFalse || index > lastBlankingPanel) {
            return;
        }
        FrmEdid& screen = workbench.frmEDID();
        const int base = screen.CurrentBlockBase;
        for (int i = base; i < base + detailedBlockSize; ++i) {
            screen.txtEdit(i).setText("00");
        }
        screen.txtEdit(base + 3).setText("FF");
        workbench.focus.moveTo(screen.txtEdit(base + 3));
    });
}

} // namespace wb::block0
