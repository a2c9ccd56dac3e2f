#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "block0/grid.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "core/keys.h"
#include "core/statements.h"
#include "core/workbench.h"

/// How the procedures of the extension screen run.
namespace wb::cea {

/// Recalculates the check sum cell of the extension block after an edit; does nothing while ModifyEDIDOn is false. A
/// cell that cannot be read counts as nothing. Block 0 and the extension block share one change memory.
void CalcCheckSum(Workbench& workbench);

/// A running procedure: a failure of one of its statements is shown, and the procedure goes on with the next one. A
/// location that leaves the 16-bit range, worked out between statements, stops it.
struct Procedure {
    Workbench& workbench;
    FrmCeaExt& screen;
    Statements statement;

    Control& cell(int index) const { return screen.txtEdit(index); }
    const std::string& text(int index) const { return cell(index).text(); }
    /// The value of a cell; one that cannot be read counts as 0.
    int readByte(int index) const {
        return statement.read([&] { return byteAt(screen, index); });
    }
    /// The text of a cell; one that does not exist counts as empty.
    std::string readText(int index) const {
        return statement.read([&]() -> std::string { return text(index); });
    }
    void write(int index, const std::string& cellText) const {
        statement([&] { cell(index).setText(cellText); });
    }
    /// Each cell is a statement of its own.
    void colour(int from, int to, CellColour colour) const {
        block0::colourCells(statement, screen, {from, to}, colour);
    }
    /// The words, the cell's number and a bracket.
    void captionPanel(int panel, int index, std::string_view words) const {
        screen.Hints(panel).setCaption(std::string(words) + std::to_string(index) + ")");
    }
    void focusOn(Control& control) const {
        statement([&] { workbench.focus.moveTo(control); });
    }
};

/// A cell number counted from the start of a block: 16-bit arithmetic, so that it can be an Overflow.
inline int location(int start, int offset) {
    return int16From(std::int64_t{start} + offset);
}

template <class Body>
void procedure(Workbench& workbench, Body&& body) {
    trapped(workbench, [&] {
        std::forward<Body>(body)(
            Procedure{workbench, workbench.frmCEA_EXT(), Statements(workbench, Statements::OnFailure::NextStatement)});
    });
}

/// A key in an input box: a procedure on Enter; any other key does nothing.
template <class Body>
void onEnter(Workbench& workbench, int keyCode, Body&& body) {
    if (keyCode == enterKey) {
        procedure(workbench, std::forward<Body>(body));
    }
}

/// A decoder: what it sets on the panels changes no cell, and the check sum follows.
template <class Body>
void decoder(Workbench& workbench, Body&& body) {
    procedure(workbench, [&](const Procedure& run) {
        run.screen.InFocusDispatch = flagTrue;
        std::forward<Body>(body)(run);
        CalcCheckSum(workbench);
        run.screen.InFocusDispatch = flagFalse;
    });
}

/// A handler of a panel's control: it does nothing while a decoder sets that control, and ends with the check sum.
template <class Body>
void panelHandler(Workbench& workbench, Body&& body) {
    procedure(workbench, [&](const Procedure& run) {
        if (run.screen.InFocusDispatch == flagFalse) {
            std::forward<Body>(body)(run);
            CalcCheckSum(workbench);
        }
    });
}

} // namespace wb::cea
