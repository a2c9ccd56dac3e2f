#include <QLineEdit>

#include "desktop/desktop_test.h"
#include "desktop/views/cell_steps.h"

namespace wb::test {
namespace {

struct Step {
    Qt::Key key;
    Qt::KeyboardModifier modifier;
    int from;
    int to; ///< -1: nowhere
};

TEST(CellSteps, LeadOverTheGrid) {
    constexpr auto none = Qt::NoModifier;
    constexpr auto ctrl = Qt::ControlModifier;
    // Rows of ten; the last row has the cells 120 to 127.
    const Step steps[] = {
        {Qt::Key_Left, none, 10, 9},      {Qt::Key_Left, none, 0, -1},
        {Qt::Key_Right, none, 9, 10},     {Qt::Key_Right, none, 127, -1},
        {Qt::Key_Up, none, 17, 7},        {Qt::Key_Up, none, 7, -1},
        {Qt::Key_Down, none, 117, 127},   {Qt::Key_Down, none, 118, -1},
        {Qt::Key_Home, none, 17, 10},     {Qt::Key_Home, none, 10, -1},
        {Qt::Key_End, none, 10, 19},      {Qt::Key_End, none, 121, 127},
        {Qt::Key_PageUp, none, 57, 7},    {Qt::Key_PageDown, none, 7, 127},
        {Qt::Key_PageDown, none, 8, 118}, {Qt::Key_PageDown, none, 118, -1},
        {Qt::Key_Home, ctrl, 57, 0},      {Qt::Key_End, ctrl, 57, 127},
        {Qt::Key_Left, ctrl, 57, -1},     {Qt::Key_PageUp, ctrl, 57, -1},
        {Qt::Key_Tab, none, 57, -1},      {Qt::Key_Left, Qt::ShiftModifier, 57, -1},
    };
    for (const Step& step : steps) {
        const QKeyEvent event(QEvent::KeyPress, step.key, step.modifier);
        const auto found = desktop::cellStep(event, step.from);
        EXPECT_EQ(found ? found->cell : -1, step.to) << step.key << " from " << step.from;
    }
}

class CellKeys : public DesktopTest {
protected:
    CellKeys() { program.newImage(); }
    void expectAt(int cell) {
        const std::string name = "frmEDID.txtEdit(" + std::to_string(cell) + ')';
        EXPECT_EQ(focused(), name);
        EXPECT_EQ(qtFocused(), name);
    }
    QLineEdit& box(int cell) { return program.widgetAs<QLineEdit>(edid().txtEdit(cell)); }
};

TEST_F(CellKeys, MoveFromALockedCellAtOnce) {
    focus(edid().txtEdit(57));
    ASSERT_TRUE(edid().txtEdit(57).locked());
    box(57).setCursorPosition(1); // in the middle
    press(Qt::Key_Left);
    expectAt(56);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    expectAt(58);
    press(Qt::Key_Home);
    expectAt(50);
    press(Qt::Key_End);
    expectAt(59);
    press(Qt::Key_PageUp);
    expectAt(9);
    press(Qt::Key_PageDown);
    expectAt(119);
    press(Qt::Key_Home, Qt::ControlModifier);
    expectAt(0);
    press(Qt::Key_End, Qt::ControlModifier);
    expectAt(127);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "frmEDID.txtBrand");
}

TEST_F(CellKeys, MoveFromACellThatMayBeEditedAtTheEdgesOfItsText) {
    modify();
    focus(edid().txtEdit(22));
    type("7");
    press(Qt::Key_Left);
    expectAt(22); // the cursor now stands before the digit
    EXPECT_EQ(box(22).cursorPosition(), 0);
    EXPECT_FALSE(box(22).hasSelectedText());
    press(Qt::Key_Right);
    expectAt(22);
    press(Qt::Key_Right);
    expectAt(23);
    press(Qt::Key_Left); // the cell is selected as a whole, which touches both edges
    expectAt(22);
    press(Qt::Key_End, Qt::ShiftModifier);
    type("12");
    press(Qt::Key_Home);
    expectAt(22);
    press(Qt::Key_Home);
    expectAt(20);
    EXPECT_EQ(edid().txtEdit(22).text(), "12");
}

TEST_F(CellKeys, StayInTheCellAtTheEndsOfTheGrid) {
    focus(edid().txtEdit(0));
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    press(Qt::Key_Home);
    expectAt(0);
    focus(edid().txtEdit(127));
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    press(Qt::Key_End);
    expectAt(127);
}

TEST_F(CellKeys, AreTheFocusMovesOfTheUser) {
    modify();
    focus(edid().txtEdit(3));
    type("123");
    press(Qt::Key_Right);
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Please Make Your Values In Hex"});
    expectAt(3);
}

TEST_F(CellKeys, LeadBackFromThePanelsBox) {
    modify();
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F6}) {
        focus(edid().txtEdit(21));
        focus(edid().BasicInput);
        press(key);
        expectAt(21);
    }
    focus(edid().txtEdit(35));
    focus(edid().ET1(3));
    press(Qt::Key_Escape);
    expectAt(35);
    press(Qt::Key_Escape); // leads nowhere from a cell
    expectAt(35);
}

TEST_F(CellKeys, LeadBackFromTheCommandButtons) {
    focus(edid().txtEdit(57));
    press(Qt::Key_2, Qt::AltModifier); // switches editing on, and goes to the first cell
    expectAt(0);
    press(Qt::Key_0, Qt::AltModifier);
    expectAt(57);
    press(Qt::Key_2, Qt::AltModifier); // off
    EXPECT_EQ(focused(), "frmMain.Command2");
    press(Qt::Key_0, Qt::AltModifier);
    expectAt(57);
    press(Qt::Key_1, Qt::AltModifier);
    press(Qt::Key_0, Qt::AltModifier);
    EXPECT_EQ(focused(), "frmDocument.rtftext") << "a stale report is built anew and shown";
    press(Qt::Key_0, Qt::AltModifier);
    expectAt(57);
}

TEST_F(CellKeys, LeadBackNowhereWhereTheCellHasGone) {
    focus(edid().txtEdit(57));
    focus(frame().Command1);
    program.act([&] { input::close(edid()); });
    focus(frame().Command1);
    press(Qt::Key_0, Qt::AltModifier);
    EXPECT_EQ(focused(), "frmMain.Command1");
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
}

TEST(CellKeysOfTheExtension, LeadBackToTheOtherBlock) {
    DesktopProgram program;
    program.newImage(true);
    FrmEdid& edid = program.workbench.frmEDID();
    program.act([&] { input::moveFocus(edid.txtEdit(57)); });
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWindow(), Qt::Key_4, QString(), Qt::AltModifier);
    DesktopProgram::settle();
    ASSERT_EQ(program.workbench.focus.current(), &program.workbench.frmCEA_EXT().txtEdit(1));
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWindow(), Qt::Key_0, QString(), Qt::AltModifier);
    DesktopProgram::settle();
    EXPECT_EQ(program.workbench.focus.current(), &edid.txtEdit(57));
}

} // namespace
} // namespace wb::test
