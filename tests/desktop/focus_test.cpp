#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include "desktop/desktop_test.h"
#include "desktop/windows/child_view.h"

namespace wb::test {
namespace {

class FocusOnTheDesktop : public DesktopTest {
protected:
    FocusOnTheDesktop() { program.newImage(true); } // which switches Modify EDID on

    QMdiSubWindow& child(const Screen& screen) {
        return dynamic_cast<desktop::ChildView*>(program.view.viewOf(screen))->subWindow();
    }
    void showExtension() {
        program.act([&] { input::click(frame().Command4); });
    }
};

TEST(FocusAtTheStart, IsNowhere) {
    const DesktopProgram program;
    EXPECT_EQ(program.workbench.focus.current(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(FocusOnTheDesktop, IsWhereTheModelHasIt) {
    focus(edid().txtEdit(17));
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(17)");
}

TEST_F(FocusOnTheDesktop, IsReportedQueued) {
    program.widget(edid().txtEdit(5))->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(5)");
}

TEST_F(FocusOnTheDesktop, TakesTheLatestOfTheMovesThatWait) {
    program.widget(edid().txtEdit(20))->setFocus(Qt::TabFocusReason);
    program.widget(edid().txtEdit(5))->setFocus(Qt::TabFocusReason);
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(5)");
    EXPECT_FALSE(edid().Hints(3).visible()) << "the cell on the way was never entered";
}

TEST_F(FocusOnTheDesktop, IsSettledBeforeAKeyIsTaken) {
    focus(edid().txtEdit(1)); // unlocks the brand
    program.widget(edid().txtBrand)->setFocus(Qt::TabFocusReason);
    QTest::sendKeyEvent(QTest::Press, QApplication::focusWindow(), Qt::Key_X, "x", Qt::NoModifier);
    EXPECT_EQ(edid().txtBrand.text(), "x");
}

TEST_F(FocusOnTheDesktop, IsTakenBackWhereNoUserHasMovedIt) {
    focus(edid().txtEdit(3));
    for (const Qt::FocusReason reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::OtherFocusReason, Qt::MenuBarFocusReason}) {
        program.widget(edid().txtEdit(9))->setFocus(reason);
        DesktopProgram::settle();
        EXPECT_EQ(focused(), "frmEDID.txtEdit(3)") << reason;
        EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)") << reason;
    }
}

TEST_F(FocusOnTheDesktop, StaysWhenItsWidgetIsHidden) {
    focus(edid().txtEdit(21));
    focus(edid().BasicInput);
    program.act([&] { edid().BasicInput.setVisible(false); });
    EXPECT_EQ(focused(), "frmEDID.BasicInput");
    EXPECT_EQ(qtFocused(), "none") << "Qt would have moved it to a neighbour";
    program.act([&] { edid().BasicInput.setVisible(true); });
    EXPECT_EQ(qtFocused(), "frmEDID.BasicInput");
}

TEST_F(FocusOnTheDesktop, StaysWhenItsWidgetIsDisabled) {
    focus(edid().txtEdit(21));
    focus(edid().BasicInput);
    program.act([&] { edid().Hints(3).setEnabled(false); });
    EXPECT_EQ(focused(), "frmEDID.BasicInput");
    EXPECT_EQ(qtFocused(), "none");
}

TEST_F(FocusOnTheDesktop, DoesNotGoToAButtonOnAPress) {
    focus(edid().txtEdit(3));
    QTest::mousePress(program.widget(frame().Command2), Qt::LeftButton);
    DesktopProgram::settle();
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
    QTest::mouseRelease(program.widget(frame().Command2), Qt::LeftButton);
    DesktopProgram::settle();
    EXPECT_EQ(frame().Command2.caption(), "Modify EDID (OFF)") << "a new image with an extension had it on";
    EXPECT_EQ(qtFocused(), "frmMain.Command2");
}

TEST_F(FocusOnTheDesktop, LetsAClickGoOnWhenLostFocusCallsTheFocusBack) {
    focus(edid().txtEdit(3));
    type("123");
    click(frame().Command2);
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Please Make Your Values In Hex"});
    EXPECT_EQ(frame().Command2.caption(), "Modify EDID (OFF)");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
}

TEST_F(FocusOnTheDesktop, GoesBackToACellWithABadText) {
    focus(edid().txtEdit(3));
    type("123");
    press(Qt::Key_Tab);
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Please Make Your Values In Hex"});
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(program.widgetAs<QLineEdit>(edid().txtEdit(3)).selectedText(), "123");
}

TEST_F(FocusOnTheDesktop, GoesToTheReportWhenAStaleOneIsOpen) {
    click(frame().Command1);
    focus(edid().txtEdit(23)); // the report is older than the header of the new image
    EXPECT_EQ(qtFocused(), "frmDocument.rtftext");
    focus(edid().txtEdit(23));
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
    type("78");
    press(Qt::Key_Tab);
    EXPECT_EQ(qtFocused(), "frmDocument.rtftext");
}

TEST_F(FocusOnTheDesktop, SelectsTheWholeCellOnAClick) {
    QLineEdit& box = program.widgetAs<QLineEdit>(edid().txtEdit(3));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, box.rect().center());
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(box.selectedText(), "FF");
}

TEST_F(FocusOnTheDesktop, PutsTheCursorWhereATextIsClicked) {
    program.act([&] { edid().txtModel.setText("iiii"); });
    QLineEdit& box = program.widgetAs<QLineEdit>(edid().txtModel);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(box.width() - 8, box.height() / 2));
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtModel");
    EXPECT_EQ(edid().txtModel.selStart(), 4);
    EXPECT_EQ(box.cursorPosition(), 4);
}

TEST_F(FocusOnTheDesktop, ShowsASelectionOnlyWhereTheFocusIs) {
    focus(edid().txtEdit(3));
    focus(edid().txtEdit(4));
    EXPECT_FALSE(program.widgetAs<QLineEdit>(edid().txtEdit(3)).hasSelectedText());
    EXPECT_TRUE(program.widgetAs<QLineEdit>(edid().txtEdit(4)).hasSelectedText());
}

TEST_F(FocusOnTheDesktop, FollowsTheActivationOfAChild) {
    showExtension();
    ASSERT_EQ(focused(), "frmCEA_EXT.txtEdit(1)");
    program.frame().area().setActiveSubWindow(&child(edid())); // as Ctrl+Tab does
    DesktopProgram::settle();
    EXPECT_EQ(program.workbench.windows.activeChild(), &edid());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(0)");
}

TEST_F(FocusOnTheDesktop, FollowsAPressOnATitleBar) {
    showExtension();
    QTest::mouseClick(&child(edid()), Qt::LeftButton, Qt::NoModifier, QPoint(child(edid()).width() / 2, 8));
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    focus(frame().Command1);
    QTest::mouseClick(&child(edid()), Qt::LeftButton, Qt::NoModifier, QPoint(child(edid()).width() / 2, 8));
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)") << "the child was the active one already";
}

TEST_F(FocusOnTheDesktop, EntersOnlyTheClickedTextOfAnotherChild) {
    showExtension();
    focus(edid().txtEdit(3));
    focus(cea().txtEdit(1));
    program.act([&] { edid().Label3.setCaption("untouched"); });
    click(edid().txtEdit(50));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(50)");
    EXPECT_EQ(program.frame().area().activeSubWindow(), &child(edid()));
}

TEST_F(FocusOnTheDesktop, FollowsTheWindowMenu) {
    showExtension();
    QMenu* menu = nullptr;
    for (QAction* action : program.frame().window().menuBar()->actions()) {
        if (action->text() == "&Window") {
            menu = action->menu();
        }
    }
    ASSERT_NE(menu, nullptr);
    QAction* last = menu->actions().last();
    EXPECT_EQ(last->text(), "&2 Edid Decoding Screen");
    EXPECT_FALSE(last->isChecked());
    last->trigger();
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(menu->actions().last()->text(), "&2 CEA-EXT Decoding Screen");
}

TEST_F(FocusOnTheDesktop, LeavesClosingToTheModel) {
    program.workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(platform::Answer::Yes);
    child(edid()).close(); // the save is abandoned, as no file name is given
    DesktopProgram::settle();
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Save Changes?"});
    EXPECT_TRUE(child(edid()).isVisible());
    program.workbench.EDIDModified = flagFalse;
    child(edid()).close();
    DesktopProgram::settle();
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(FocusOnTheDesktop, LosesNoCellsByClosingTheExtension) {
    showExtension();
    program.act([&] { cea().txtEdit(100).setText("AB"); });
    child(cea()).close();
    DesktopProgram::settle();
    EXPECT_TRUE(child(cea()).isHidden());
    EXPECT_EQ(cea().txtEdit(100).text(), "AB");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(FocusOnTheDesktop, ComesBackFromAModalScreen) {
    focus(edid().txtEdit(3));
    program.act([&] { input::choose(frame().mnuHelpAbout); });
    EXPECT_EQ(qtFocused(), "frmAbout.cmdOK");
    EXPECT_EQ(QApplication::activeModalWidget(), &program.window(program.workbench.frmAbout()));
    press(Qt::Key_Escape);
    EXPECT_EQ(program.workbench.loaded(ScreenId::About), nullptr);
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
}

TEST_F(FocusOnTheDesktop, RestoresAMinimisedChild) {
    child(edid()).showMinimized();
    DesktopProgram::settle();
    program.act([&] { input::moveFocus(edid().txtEdit(7)); });
    EXPECT_FALSE(child(edid()).isMinimized());
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(7)");
}

TEST_F(FocusOnTheDesktop, ScrollsWhatHasItIntoSight) {
    program.frame().window().resize(420, 400);
    DesktopProgram::settle();
    focus(edid().txtEdit(0));
    const QWidget& viewport = *program.frame().area().viewport();
    for (const int cell : {127, 9, 120}) {
        focus(edid().txtEdit(cell));
        const QWidget& box = *program.widget(edid().txtEdit(cell));
        const QRect place(box.mapTo(&viewport, QPoint(0, 0)), box.size());
        EXPECT_TRUE(viewport.rect().contains(place)) << cell;
    }
}

} // namespace
} // namespace wb::test
