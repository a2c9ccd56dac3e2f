#pragma once

#include <gtest/gtest.h>

#include "cea/definitions.h"
#include "files/image_loading.h"
#include "support/program.h"

namespace wb::test {

/// A started program with the extension screen in hand.
class ExtensionTest : public testing::Test {
protected:
    ExtensionTest() { screen(); }

    /// Loads an extension block as opening a file does; the cells behind the given ones are "00".
    void load(const std::vector<std::string>& bytes) {
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            const auto place = static_cast<std::size_t>(i);
            wb.EDIDCells(BlockScreen::cellCount + i) = place < bytes.size() ? bytes[place] : "00";
        }
        files::LoadExtensionCells(wb);
    }
    /// The same with a data block collection between a version 3 header and the timings at `offset`.
    void loadCollection(const std::vector<std::string>& collection, const std::string& offset = "20") {
        std::vector<std::string> bytes = {"02", "03", offset, "00"};
        bytes.insert(bytes.end(), collection.begin(), collection.end());
        load(bytes);
    }
    FrmCeaExt& screen() { return wb.frmCEA_EXT(); }
    std::string cell(int index) { return screen().txtEdit(index).text(); }
    void setCell(int index, const std::string& text) { screen().txtEdit(index).setText(text); }
    void modify(bool seek = false) {
        wb.ModifyEDIDOn = flagTrue;
        wb.AutoCellSeekOn = flag(seek);
    }
    void focusOn(int index) {
        wb.runAction([&] { wb.focus.moveTo(screen().txtEdit(index)); });
    }
    /// The user sees the screen with Modify EDID on, and goes to a cell, which shows its panel.
    void visit(int index) {
        modify();
        wb.windows.show(screen());
        ASSERT_TRUE(input::moveFocus(screen().txtEdit(index)));
    }
    /// Types a text into a box that the user has emptied, and Enter.
    void enter(Control& box, const std::string& text) {
        ASSERT_TRUE(input::moveFocus(box)) << box.fullName();
        ASSERT_TRUE(input::edit(box, "", 0, 0, 0));
        program.type(text);
        ASSERT_TRUE(input::enter(wb));
    }
    /// The user picks a row of a list, sets an option or changes a check.
    static void choose(Control& control, int value) {
        if (control.kind() == ControlKind::Combo) {
            ASSERT_TRUE(input::pick(control, value)) << control.fullName();
        } else {
            ASSERT_TRUE(control.kind() == ControlKind::Option || control.value() != value) << control.fullName();
            ASSERT_TRUE(input::click(control)) << control.fullName();
        }
    }
    void clearColours() {
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            screen().txtEdit(i).setBackColor(CellColour::Window);
        }
    }
    std::vector<int> cellsOfColour(CellColour colour) {
        std::vector<int> cells;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            if (screen().txtEdit(i).backColor() == colour) {
                cells.push_back(i);
            }
        }
        return cells;
    }
    std::vector<int> panels() {
        std::vector<int> shown;
        for (int i = 0; i < screen().panelCount(); ++i) {
            if (screen().Hints(i).ownVisible()) {
                shown.push_back(i);
            }
        }
        return shown;
    }
    std::vector<std::string> boxes() { return program.takeBoxes(); }

    Program program;
    Workbench& wb = program.workbench;
};

/// The same with an image that has a block of every kind: video at 4, audio with two descriptors at 7, speakers at 14,
/// a long vendor block at 18, timings from 26 on.
class EveryBlockTest : public ExtensionTest {
protected:
    void SetUp() override {
        loadCollection({"42", "90", "04", "26", "15", "07", "50", "0D", "01", "02", "83",
                        "4F", "00", "00", "67", "03", "0C", "00", "10", "00", "80", "2D"},
                       "1A");
        cea::BuildCEA_EXT_Definations(wb); // finds the speakers
        ASSERT_EQ((std::vector<int>{wb.VideoBlockStart, wb.AudioBlockStart, wb.SpeakerBlockStart, wb.VendorBlockStart,
                                    wb.ExtDtdStart}),
                  (std::vector<int>{4, 7, 14, 18, 26}));
        boxes();
    }
};

/// A byte of flags: the checks that it sets, and its list in the report.
struct FlagsCase {
    std::string cell;
    std::vector<int> checks;
    std::string text;
};

inline const std::string invalidCall = "Invalid procedure call or argument";
inline const std::string noElement = "Control array element does not exist";

/// The selected members of an array of options or checks.
inline std::vector<int> selectedOf(ControlArray& controls) {
    std::vector<int> selected;
    for (int i = controls.first(); i <= controls.last(); ++i) {
        if (controls(i).selected()) {
            selected.push_back(i);
        }
    }
    return selected;
}

/// A test name for a cell's text.
inline std::string cellName(const std::string& text) {
    return "Cell" + (text.empty() ? "Empty" : text);
}

inline std::vector<int> cellRange(int first, int last) {
    std::vector<int> cells;
    for (int i = first; i <= last; ++i) {
        cells.push_back(i);
    }
    return cells;
}

} // namespace wb::test
