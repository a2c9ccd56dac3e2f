#include "block0/dispatch.h"

#include "block0/block_dispatch.h"
#include "block0/extension_button.h"
#include "block0/field_decoders.h"
#include "block0/grid.h"
#include "block0/panel_basic.h"
#include "block0/panel_chromaticity.h"
#include "block0/panel_detailed_timing.h"
#include "block0/panel_standard.h"
#include "block0/panel_vendor.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/checksum.h"
#include "report/descriptor_layout.h"
#include "report/detailed_timing.h"

namespace wb::block0 {

namespace {

constexpr int lastBlankingPanel = 12;

BlockScreen& edidScreen(Workbench& workbench) {
    return workbench.frmEDID();
}

CellRange headerCells(int) {
    return cells::header;
}

CellRange theCell(int index) {
    return oneCell(index);
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

/// Where neighbours share a panel.
constexpr CellRange vendorCells{cells::manufacturer.first, cells::year};
constexpr CellRange basicCells{cells::videoInput, cells::features};

constexpr Branch branches[] = {
    {cells::header, 0, noCells, &headerCells, nullptr},
    {vendorCells, 1, vendorCells, &identityField, &openVendorPanel},
    {oneCell(cells::version), 2, oneCell(cells::revision), &theCell, &openVersionPanel},
    {oneCell(cells::revision), 2, oneCell(cells::version), &theCell, &openVersionPanel},
    {basicCells, 3, noCells, nullptr, &openBasicPanel},
    {cells::chromaticity, 4, noCells, nullptr, &openChromaticityPanel},
    {oneCell(cells::establishedTimings1), 5, noCells, &theCell, &decodeFieldOf},
    {oneCell(cells::establishedTimings2), 6, noCells, &theCell, &decodeFieldOf},
    {oneCell(cells::reservedTimings), 7, noCells, &theCell, &decodeFieldOf},
    {cells::standardTimings, 8, cells::standardTimings, &evenPair, &openStandardTimingPanel},
    {cells::detailedBlocks, ownPanel, noCells, nullptr, &openBlock},
    {oneCell(extensionCountCell), 13, oneCell(checksumCell), &theCell, &openExtensionFlag},
    {oneCell(checksumCell), 13, oneCell(extensionCountCell), &theCell, &openChecksum},
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
        Control& tag = screen.txtEdit(base + report::descriptorTagCell);
        tag.setText(ByteToHex2(report::descriptorTag(report::SerialNumber)));
        workbench.focus.moveTo(tag);
    });
}

} // namespace wb::block0
