#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionTitleBar>

#include "desktop/desktop_test.h"
#include "desktop/windows/child_view.h"

namespace wb::test {
namespace {

class WindowStates : public DesktopTest {
protected:
    WindowStates() {
        program.newImage(true); // which switches Modify EDID on
        program.frame().window().resize(900, 700);
        focus(edid().txtEdit(17));
    }

    QMdiSubWindow& child(const Screen& screen) {
        return dynamic_cast<desktop::ChildView*>(program.view.viewOf(screen))->subWindow();
    }
    void showAs(const Screen& screen, void (QMdiSubWindow::*state)()) {
        (child(screen).*state)();
        DesktopProgram::settle();
    }
    static QPoint minimiseButton(QMdiSubWindow& window) {
        QStyleOptionTitleBar bar;
        bar.initFrom(&window);
        bar.subControls = QStyle::SC_All;
        bar.titleBarFlags = window.windowFlags();
        bar.rect.setHeight(window.style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, &window));
        return window.style()
            ->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarMinButton, &window)
            .center();
    }
    void expectFocusAtCell17(const char* when) {
        EXPECT_EQ(focused(), "frmEDID.txtEdit(17)") << when;
        EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(17)") << when;
        EXPECT_TRUE(edid().Hints(1).visible()) << when << ": the panel of the manufacturer stays";
    }
};

constexpr auto normal = &QMdiSubWindow::showNormal;
constexpr auto maximised = &QMdiSubWindow::showMaximized;
constexpr auto minimised = &QMdiSubWindow::showMinimized;

TEST_F(WindowStates, LeaveTheFocusWhereItIs) {
    showAs(edid(), maximised);
    expectFocusAtCell17("maximised");
    showAs(edid(), normal);
    expectFocusAtCell17("restored");
    showAs(edid(), minimised);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(17)");
    showAs(edid(), normal);
    expectFocusAtCell17("restored from an icon");
    showAs(edid(), minimised);
    showAs(edid(), maximised);
    expectFocusAtCell17("maximised from an icon");
}

TEST_F(WindowStates, LeaveAHalfTypedValueAlone) {
    focus(edid().txtEdit(8));
    focus(edid().VendorInfo);
    type("AB");
    for (const auto state : {maximised, normal, minimised, normal}) {
        showAs(edid(), state);
        EXPECT_EQ(edid().VendorInfo.text(), "AB");
        EXPECT_EQ(focused(), "frmEDID.VendorInfo");
    }
    type("C"); // the cursor is where it was
    EXPECT_EQ(edid().VendorInfo.text(), "ABC");
    EXPECT_EQ(program.widgetAs<QLineEdit>(edid().VendorInfo).text(), "ABC");
}

TEST_F(WindowStates, LetTheActiveChildBeMinimised) {
    showAs(edid(), minimised);
    EXPECT_TRUE(child(edid()).isMinimized());
    EXPECT_LT(child(edid()).height(), program.widget(edid().Hints(1))->height());
    program.sync();
    EXPECT_TRUE(child(edid()).isMinimized()) << "the focus did not move, and so restores nothing";
}

TEST_F(WindowStates, TakeNoKeysIntoAMinimisedChild) {
    const std::string before = edid().txtEdit(17).text();
    showAs(edid(), minimised);
    program.sync();
    type("5");
    press(Qt::Key_Delete);
    EXPECT_EQ(edid().txtEdit(17).text(), before);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(17)");
    EXPECT_TRUE(child(edid()).isMinimized());
}

TEST_F(WindowStates, OfOneChildLeaveTheFocusInTheOther) {
    program.act([&] { input::click(frame().Command4); });
    focus(cea().txtEdit(20));
    focus(edid().txtEdit(17));
    for (const auto state : {minimised, normal, maximised, normal}) {
        showAs(edid(), state);
        EXPECT_EQ(focused(), "frmEDID.txtEdit(17)");
    }
    EXPECT_EQ(program.workbench.windows.activeChild(), &edid());
}

TEST_F(WindowStates, AreNotUndoneByThePressThatAsksForThem) {
    program.act([&] { input::click(frame().Command4); });
    child(edid()).move(0, 0);
    child(cea()).move(0, 150);
    const QPoint button = minimiseButton(child(edid()));
    QMouseEvent hover(QEvent::MouseMove, button, child(edid()).mapToGlobal(button), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&child(edid()), &hover);
    // The release comes before the activation is carried out.
    QTest::mouseClick(&child(edid()), Qt::LeftButton, Qt::NoModifier, button);
    ASSERT_TRUE(child(edid()).isMinimized());
    DesktopProgram::settle();
    EXPECT_TRUE(child(edid()).isMinimized());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(17)");
    EXPECT_EQ(program.workbench.windows.activeChild(), &edid());
}

TEST_F(WindowStates, LeaveAnIconThatIsPressed) {
    showAs(edid(), minimised);
    program.act([&] { input::click(frame().Command4); });
    const QPoint title(40, child(edid()).height() / 2);
    QTest::mousePress(&child(edid()), Qt::LeftButton, Qt::NoModifier, title);
    DesktopProgram::settle();
    EXPECT_TRUE(child(edid()).isMinimized()) << "the press may be the beginning of a move";
    QTest::mouseRelease(&child(edid()), Qt::LeftButton, Qt::NoModifier, title);
    DesktopProgram::settle();
    EXPECT_TRUE(child(edid()).isMinimized());
    EXPECT_EQ(program.workbench.windows.activeChild(), &edid());
    showAs(edid(), normal);
    expectFocusAtCell17("restored");
}

TEST_F(WindowStates, RestoreAnIconThatIsReachedByKeys) {
    showAs(edid(), minimised);
    program.act([&] { input::click(frame().Command4); });
    program.frame().area().setActiveSubWindow(&child(edid())); // as Ctrl+Tab does
    DesktopProgram::settle();
    EXPECT_FALSE(child(edid()).isMinimized());
    expectFocusAtCell17("reached");
}

TEST_F(WindowStates, LetTheKeysChangeFromAnIconToAnotherChild) {
    program.act([&] { input::click(frame().Command4); });
    focus(edid().txtEdit(17));
    showAs(edid(), minimised);
    program.sync();
    press(Qt::Key_Tab, Qt::ControlModifier);
    QTest::sendKeyEvent(QTest::Release, QApplication::focusWindow(), Qt::Key_Control, QString(), Qt::NoModifier);
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(1)");
    EXPECT_TRUE(child(edid()).isMinimized());
}

TEST_F(WindowStates, PassFromAMaximisedChildToTheReport) {
    program.act([&] { input::click(frame().Command1); });
    const FrmDocument& report = program.workbench.frmDocument();
    focus(edid().txtEdit(17)); // which makes the report anew, and that takes the focus
    focus(edid().txtEdit(17));
    showAs(edid(), maximised);
    program.frame().area().setActiveSubWindow(&child(report)); // as Ctrl+Tab does
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(qtFocused(), "frmDocument.rtftext");
    EXPECT_TRUE(child(report).isMaximized());
    EXPECT_FALSE(child(edid()).isMaximized());
}

TEST_F(WindowStates, OfTheFrameLeaveTheFocusWhereItIs) {
    QMainWindow& window = program.frame().window();
    window.showMaximized();
    DesktopProgram::settle();
    expectFocusAtCell17("maximised");
    window.showMinimized();
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(17)");
    window.showNormal();
    DesktopProgram::settle();
    expectFocusAtCell17("restored");
}

TEST_F(WindowStates, RestoreAnIconThatIsChosenInTheWindowMenu) {
    showAs(edid(), minimised);
    QMenu* menu = &program.frame().menu(frame().mnuWindow);
    ASSERT_EQ(menu->actions().last()->text(), "&1 Edid Decoding Screen");
    menu->actions().last()->trigger();
    DesktopProgram::settle();
    EXPECT_FALSE(child(edid()).isMinimized()) << "it was the active child before";
    expectFocusAtCell17("chosen");
}

TEST_F(WindowStates, AreToldFromTheUsersStepsByTheWidgetThatWent) {
    // What else stands in the frame may have Qt's focus when it is hidden or disabled, and Qt then steps on by itself.
    auto* beside = new QLineEdit(program.frame().window().centralWidget());
    for (const auto takeAway : {+[](QWidget& w) { w.hide(); }, +[](QWidget& w) { w.setEnabled(false); }}) {
        beside->show();
        beside->setEnabled(true);
        QWidget::setTabOrder(beside, program.widget(edid().txtEdit(40)));
        beside->setFocus(Qt::OtherFocusReason);
        ASSERT_TRUE(beside->hasFocus());
        takeAway(*beside);
        DesktopProgram::settle();
        expectFocusAtCell17("taken away");
    }
}

} // namespace
} // namespace wb::test
