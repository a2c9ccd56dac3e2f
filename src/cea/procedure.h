#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "block0/grid.h"
#include "core/cells.h"
#include "core/statements.h"
#include "core/workbench.h"

/// How the procedures of the extension screen run; cea/handlers.h has their kinds.
namespace wb::cea {

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
        screen.Hints(panel).setCaption({words, std::to_string(index), ")"});
    }
    void focusOn(Control& control) const {
        statement([&] { workbench.focus.moveTo(control); });
    }
};

template <class Body>
void procedure(Workbench& workbench, Body&& body) {
    trapped(workbench, [&] {
        std::forward<Body>(body)(
            Procedure{workbench, workbench.frmCEA_EXT(), Statements(workbench, Statements::OnFailure::NextStatement)});
    });
}

} // namespace wb::cea
