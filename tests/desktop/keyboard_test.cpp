#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QStyleOption>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

/// Keys are sent to the window, not to a widget.
class Keyboard : public DesktopTest {
protected:
    Keyboard() {
        program.newImage();
        modify();
    }
    QLineEdit& box(const Control& control) { return program.widgetAs<QLineEdit>(control); }
    bool showsFocus(const Control& control) {
        QStyleOption option;
        option.initFrom(program.widget(control));
        return option.state.testFlag(QStyle::State_HasFocus) &&
               option.state.testFlag(QStyle::State_KeyboardFocusChange);
    }
    void pressCopyKey(Qt::Key key) { press(key, Qt::ControlModifier); }
};

TEST_F(Keyboard, TypesOverTheSelectedCellAndDecodesAtTheSecondCharacter) {
    focus(edid().txtEdit(23));
    type("7");
    EXPECT_EQ(edid().txtEdit(23).text(), "7");
    EXPECT_EQ(edid().Basic(2).caption(), "Gamma  1.00");
    type("8");
    EXPECT_EQ(edid().txtEdit(23).text(), "78");
    EXPECT_EQ(box(edid().txtEdit(23)).text(), "78");
    EXPECT_EQ(edid().Basic(2).caption(), "Gamma  2.20");
}

TEST_F(Keyboard, LeavesTheTextToTheModel) {
    focus(edid().txtEdit(9));
    type("ab");
    EXPECT_EQ(box(edid().txtEdit(9)).text(), "AB") << "KeyPress makes capitals";
}

TEST_F(Keyboard, DropsCharactersThatTheProgramDoesNotHave) {
    focus(edid().txtBrand);
    type(QString::fromUtf8("a\xC5\x82\xE2\x82\xAC")); // a, a barred l, a euro sign
    EXPECT_EQ(edid().txtBrand.text(), "a\x80");
    EXPECT_EQ(box(edid().txtBrand).text(), QString::fromUtf8("a\xE2\x82\xAC"));
}

TEST_F(Keyboard, TypesNothingForALetterWithAlt) {
    focus(edid().txtEdit(54));
    const std::string before = edid().txtEdit(54).text();
    press(Qt::Key_X, Qt::AltModifier, "x"); // in no menu
    EXPECT_EQ(edid().txtEdit(54).text(), before);
    EXPECT_EQ(box(edid().txtEdit(54)).text().toStdString(), before);
    press(Qt::Key_7, Qt::ControlModifier | Qt::AltModifier, "7"); // the AltGr key of some systems
    EXPECT_EQ(edid().txtEdit(54).text(), "7");
}

TEST_F(Keyboard, KeepsALockedTextAsItIs) {
    modify(); // off again
    focus(edid().txtEdit(9));
    type("1");
    press(Qt::Key_Backspace);
    EXPECT_EQ(edid().txtEdit(9).text(), "00");
    EXPECT_EQ(box(edid().txtEdit(9)).text(), "00");
}

TEST_F(Keyboard, LimitsTypingOnlyByMaxLength) {
    focus(edid().txtEdit(8)); // VendorInfo takes three letters
    focus(edid().VendorInfo);
    ASSERT_EQ(edid().VendorInfo.maxLength(), 3);
    type("ABCD");
    EXPECT_EQ(edid().VendorInfo.text(), "ABC");
    program.act([&] { edid().VendorInfo.setText("assigned text"); });
    EXPECT_EQ(box(edid().VendorInfo).text(), "assigned text");
}

TEST_F(Keyboard, ShowsALongAssignedTextWhole) {
    const std::string text(40000, 'x');
    program.act([&] { edid().txtModel.setText(text); });
    EXPECT_EQ(box(edid().txtModel).text().size(), 40000);
}

TEST_F(Keyboard, TellsBackspaceAndDeleteAsOneEdit) {
    focus(edid().txtModel);
    program.act([&] { edid().txtModel.setText("abc"); });
    press(Qt::Key_End);
    EXPECT_EQ(edid().txtModel.selStart(), 3);
    press(Qt::Key_Backspace);
    EXPECT_EQ(edid().txtModel.text(), "ab");
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(edid().txtModel.text(), "b");
    EXPECT_EQ(edid().txtModel.selStart(), 0);
}

TEST_F(Keyboard, RunsKeyUpAfterAnEditOfTheWidget) {
    focus(edid().txtEdit(23));
    type("780"); // a third character decodes nothing
    program.act([&] { edid().Basic(2).setCaption("stale"); });
    press(Qt::Key_Backspace);
    EXPECT_EQ(edid().txtEdit(23).text(), "78");
    EXPECT_EQ(edid().Basic(2).caption(), "Gamma  2.20");
}

TEST_F(Keyboard, PastesAtTheSelection) {
    QGuiApplication::clipboard()->setText("1.5");
    focus(edid().txtEdit(21));
    focus(edid().BasicInput);
    pressCopyKey(Qt::Key_V);
    EXPECT_EQ(edid().BasicInput.text(), "1.5");
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(edid().BasicInput.selLength(), 3);
    pressCopyKey(Qt::Key_X);
    EXPECT_EQ(edid().BasicInput.text(), "");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1.5");
}

TEST_F(Keyboard, KeepsWhatTheContextMenuSelects) {
    focus(edid().txtModel);
    program.act([&] { edid().txtModel.setText("abc"); });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), box(edid().txtModel).mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&box(edid().txtModel), &event);
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
        if (action->text().startsWith("Select All")) {
            menu->setActiveAction(action);
        }
    }
    QTest::keyClick(menu, Qt::Key_Return);
    DesktopProgram::settle();
    EXPECT_EQ(edid().txtModel.selLength(), 3);
    type("x");
    EXPECT_EQ(edid().txtModel.text(), "x");
}

TEST_F(Keyboard, UndoesTyping) {
    focus(edid().txtModel);
    type("ab");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtModel.text(), "a");
    EXPECT_EQ(box(edid().txtModel).text(), "a");
}

TEST_F(Keyboard, UndoesWhatEnterHasCommittedInCellsAndBoxAlike) {
    focus(edid().txtEdit(8));
    focus(edid().VendorInfo);
    type("AB");
    type("C");
    press(Qt::Key_Return);
    ASSERT_EQ(edid().txtEdit(8).text() + edid().txtEdit(9).text(), "0443") << "A, B and C in five bits each";
    EXPECT_FALSE(box(edid().VendorInfo).isUndoAvailable()) << "the box alone takes nothing back";
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(8).text() + edid().txtEdit(9).text(), "0000");
    EXPECT_EQ(box(edid().VendorInfo).text().toStdString(), edid().VendorInfo.text());
    EXPECT_NE(edid().VendorInfo.text(), "ABC");
}

TEST_F(Keyboard, UndoesUpToTheLastEnter) {
    focus(edid().txtEdit(21));
    focus(edid().BasicInput);
    type("50");
    press(Qt::Key_Return);
    const std::string committed = edid().BasicInput.text();
    press(Qt::Key_End);
    type("7");
    ASSERT_EQ(edid().BasicInput.text(), committed + "7");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().BasicInput.text(), committed);
    EXPECT_EQ(edid().txtEdit(21).text(), "05") << "the entry stays until the next one";
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(21).text(), "00");
}

TEST_F(Keyboard, LeavesTheCursorWhereItIsOnEnter) {
    focus(edid().txtModel);
    type("abc");
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_EQ(box(edid().txtModel).cursorPosition(), 2);
    type("x");
    EXPECT_EQ(edid().txtModel.text(), "abxc");
}

TEST_F(Keyboard, UndoesTypingThatHadToWait) {
    focus(edid().txtModel);
    program.act([&] {
        type("ab");
        EXPECT_EQ(edid().txtModel.text(), "") << "the keys wait for the call that runs";
    });
    EXPECT_EQ(edid().txtModel.text(), "ab");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtModel.text(), "a");
    EXPECT_EQ(box(edid().txtModel).text(), "a");
}

TEST_F(Keyboard, TakesWhatAnInputMethodCommits) {
    focus(edid().txtEdit(23));
    QInputMethodEvent event;
    event.setCommitString("64");
    QApplication::sendEvent(program.widget(edid().txtEdit(23)), &event);
    DesktopProgram::settle();
    EXPECT_EQ(edid().txtEdit(23).text(), "64");
    EXPECT_EQ(edid().Basic(2).caption(), "Gamma  2.00") << "KeyUp follows, and decodes";
}

TEST_F(Keyboard, EncodesOnEnterAndIgnoresItsRepetition) {
    focus(edid().txtEdit(21));
    focus(edid().BasicInput);
    type("9999");
    press(Qt::Key_Return);
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"This value must value between 0 and 2550"});
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(program.widget(edid().BasicInput), &repeated);
    DesktopProgram::settle();
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(takeBoxes().size(), 1U) << "the one of the number pad";
}

TEST_F(Keyboard, WalksOverTheGridByRows) {
    focus(edid().txtEdit(17));
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(27)");
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Up); // there is no row above
    EXPECT_EQ(focused(), "frmEDID.txtEdit(7)");
    focus(edid().txtEdit(118));
    press(Qt::Key_Down); // a black filler
    EXPECT_EQ(focused(), "frmEDID.txtEdit(118)");
}

TEST_F(Keyboard, ChangesBetweenTheGridAndThePanel) {
    focus(edid().txtEdit(22));
    press(Qt::Key_F6);
    EXPECT_EQ(focused(), "frmEDID.Basic(1)") << "the selected one: the cell is that of the vertical size";
    press(Qt::Key_F6);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(22)");
    modify(); // off: nothing in the panel can take the focus
    focus(edid().txtEdit(22));
    press(Qt::Key_F6);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(22)");
}

TEST_F(Keyboard, ShowsTheFocusThatAKeyHasMoved) {
    QWidget& window = program.frame().window();
    focus(edid().txtEdit(35));                              // whose panel has checks
    window.setAttribute(Qt::WA_KeyboardFocusChange, false); // as after a click
    press(Qt::Key_F6);
    ASSERT_EQ(focused(), "frmEDID.ET1(0)");
    EXPECT_TRUE(showsFocus(edid().ET1(0)));
    window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    press(Qt::Key_2, Qt::AltModifier);
    ASSERT_EQ(focused(), "frmMain.Command2");
    EXPECT_TRUE(showsFocus(frame().Command2));
}

TEST_F(Keyboard, WorksTheButtonsOfTheModalScreens) {
    for (Control* entry : {&frame().Info, &frame().mnuHelpAbout}) {
        program.act([&] { input::choose(*entry); });
        const Screen& screen = *program.workbench.windows.modal();
        ASSERT_EQ(program.workbench.focus.current()->caption(), "OK");
        EXPECT_TRUE(showsFocus(*program.workbench.focus.current()));
        const ScreenId id = screen.id();
        press(Qt::Key_Return);
        EXPECT_EQ(program.workbench.loaded(id), nullptr) << screenName(id);
    }
    program.act([&] { input::choose(frame().Windows2000); });
    FrmEdidReg& screen = program.workbench.frmEDIDREG();
    focus(screen.Command1(1)); // Cancel
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(program.workbench.loaded(ScreenId::EdidReg), nullptr);
}

TEST_F(Keyboard, FollowsTheTabOrder) {
    focus(edid().txtEdit(126));
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(127)");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "frmEDID.txtBrand");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "frmEDID.txtVersion");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "frmEDID.txtBrand");
}

TEST_F(Keyboard, MakesOneTabStopOfAnArrayAndMovesInItByArrows) {
    program.act([&] { edid().txtEdit(54).setText("01"); });
    focus(edid().txtEdit(56)); // selects DT(1)
    const auto policy = [&](int option) { return program.widget(edid().DT(option))->focusPolicy(); };
    EXPECT_EQ(policy(1), Qt::TabFocus);
    EXPECT_EQ(policy(0), Qt::NoFocus);
    EXPECT_EQ(policy(12), Qt::NoFocus);
    press(Qt::Key_F6);
    press(Qt::Key_Down);
    // A click of DT(2) takes the focus to its cell.
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DT(2)).isChecked());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(57)");
}

TEST_F(Keyboard, PressesButtonsAndChecksByTheBlank) {
    focus(edid().txtEdit(35));
    focus(edid().ET1(7));
    press(Qt::Key_Space, Qt::NoModifier, " ");
    EXPECT_EQ(edid().txtEdit(35).text(), "01");
    focus(frame().Command2);
    press(Qt::Key_Space, Qt::NoModifier, " ");
    EXPECT_EQ(frame().Command2.caption(), "Modify EDID (OFF)");
}

TEST_F(Keyboard, ReachesTheCommandButtonsFromAnywhere) {
    focus(edid().txtEdit(35));
    press(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(frame().Command2.caption(), "Modify EDID (OFF)");
    press(Qt::Key_3, Qt::AltModifier); // disabled now
    EXPECT_EQ(program.workbench.AutoCellSeekOn, flagFalse);
    press(Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(focused(), "frmDocument.rtftext");
}

TEST_F(Keyboard, ResetsABlockAsTheDoubleClickDoes) {
    focus(edid().txtEdit(90));
    type("12");
    press(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(edid().txtEdit(90).text(), "00");
    EXPECT_EQ(edid().txtEdit(93).text(), "FF");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(93)");
}

TEST_F(Keyboard, ChangesTheSyncLabels) {
    program.act([&] { edid().txtEdit(54).setText("01"); });
    focus(edid().txtEdit(71));
    press(Qt::Key_Y, Qt::AltModifier);
    EXPECT_EQ(edid().txtEdit(71).text(), "02");
}

TEST_F(Keyboard, ServesTheCalculatorOnce) {
    program.act([&] { input::choose(frame().HexCalculator); });
    FrmHexCalculator& calculator = program.workbench.frmHexCalculator();
    focus(calculator.Command1(5));
    press(Qt::Key_1, Qt::NoModifier, "1");
    EXPECT_EQ(calculator.CurrentCell.text(), "1");
    press(Qt::Key_2, Qt::KeypadModifier, "2");
    EXPECT_EQ(calculator.CurrentCell.text(), "12");
    press(Qt::Key_Plus, Qt::KeypadModifier, "+");
    EXPECT_EQ(calculator.PendingOperator, "+");
    focus(calculator.Display); // a locked text
    press(Qt::Key_3, Qt::NoModifier, "3");
    EXPECT_EQ(calculator.CurrentCell.text(), "3");
    EXPECT_EQ(calculator.ResultsCell.text(), "12");
    press(Qt::Key_Plus, Qt::NoModifier, "+"); // beside the digits: the calculator does not know that key
    EXPECT_FALSE(calculator.OperatorPressed);
    press(Qt::Key_H, Qt::AltModifier);
    press(Qt::Key_Escape);
}

TEST_F(Keyboard, DropsKeysWhileNothingHasTheFocus) {
    program.act([&] { program.workbench.windows.hide(edid()); });
    ASSERT_EQ(focused(), "none");
    press(Qt::Key_1, Qt::NoModifier, "1");
    EXPECT_EQ(edid().txtEdit(0).text(), "00");
}

} // namespace
} // namespace wb::test
