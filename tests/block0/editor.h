#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/cells.h"
#include "support/program.h"

namespace wb::test {

using Texts = std::vector<std::string>;

/// A program with a new image on the screen of block 0, and what a user does with it.
class Editor : public testing::Test {
protected:
    Editor() : workbench(program.workbench) {
        input::choose(workbench.frmMain().mnuFileNew);
        program.takeBoxes();
    }

    FrmEdid& screen() { return workbench.frmEDID(); }
    FrmMain& frame() { return workbench.frmMain(); }

    /// Switches Modify EDID; the focus then is in cell 0.
    void switchModify() { click(frame().Command2); }
    void switchSeek() { click(frame().Command3); }

    void click(Control& control) { ASSERT_TRUE(input::click(control)) << control.fullName(); }
    void moveFocus(Control& control) { ASSERT_TRUE(input::moveFocus(control)) << control.fullName(); }
    /// Focus on a cell, coming from another one, so that its dispatch runs in any case.
    void visit(int cell) {
        if (workbench.focus.current() == &screen().txtEdit(cell)) {
            moveFocus(screen().txtEdit(cell == 0 ? 1 : 0));
        }
        moveFocus(screen().txtEdit(cell));
    }
    /// Types a text into a box that the user has emptied, and Enter.
    void enter(Control& box, std::string_view text) {
        moveFocus(box);
        ASSERT_TRUE(input::edit(box, "", 0, 0, 0));
        program.type(text);
        ASSERT_TRUE(input::enter(workbench));
    }

    std::string cell(int index) { return program.cell(index); }
    /// The texts of the cells, separated by blanks.
    std::string cells(int first, int last) {
        std::string result;
        for (int i = first; i <= last; ++i) {
            result += (i == first ? "" : " ") + cell(i);
        }
        return result;
    }
    std::string focused() {
        const Control* control = workbench.focus.current();
        return control == nullptr ? "none" : control->fullName();
    }
    static std::string cellName(int index) { return "frmEDID.txtEdit(" + std::to_string(index) + ')'; }
    /// What a trace calls an entry, which may be empty, into a cell or its panel.
    static std::string entryName(int index, std::string_view typed) {
        return cellName(index) + " typed \"" + std::string(typed) + '"';
    }
    /// The sum of all cells of the block, which its check sum makes 0.
    int blockSum() {
        int sum = 0;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            sum += byteAt(screen(), i);
        }
        return sum % 256;
    }

    Program program;
    Workbench& workbench;
};

} // namespace wb::test
