#include <QAbstractItemView>
#include <QComboBox>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

/// A combo of the extension screen within reach.
class Combo : public DesktopTest {
protected:
    Combo() {
        program.newImage(true);
        program.act([&] { input::click(frame().Command4); });
        focus(cea().txtEdit(3));
        box = &program.widgetAs<QComboBox>(cea().NativeCBox);
    }
    void open() {
        QTest::mousePress(box, Qt::LeftButton);
        DesktopProgram::settle();
        ASSERT_TRUE(box->view()->isVisible());
    }

    QComboBox* box = nullptr;
};

TEST_F(Combo, MovesTheFocusAndTellsTheRowThatIsPicked) {
    open();
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(3)");
    box->view()->setCurrentIndex(box->model()->index(5, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    DesktopProgram::settle();
    EXPECT_EQ(cea().txtEdit(3).text(), "05");
    EXPECT_EQ(focused(), "frmCEA_EXT.NativeCBox");
    EXPECT_EQ(qtFocused(), "frmCEA_EXT.NativeCBox");
}

TEST_F(Combo, TakesADismissedListForAClick) {
    open();
    QTest::keyClick(box->view(), Qt::Key_Escape);
    DesktopProgram::settle();
    EXPECT_EQ(cea().txtEdit(3).text(), "00");
    EXPECT_EQ(focused(), "frmCEA_EXT.NativeCBox");
}

TEST_F(Combo, ShowsOneBoxWhereTheFocusIsCalledBack) {
    type("123");
    open();
    EXPECT_EQ(takeBoxes().size(), 0U) << "nothing comes between the list and the pick";
    box->view()->setCurrentIndex(box->model()->index(2, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    DesktopProgram::settle();
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Please Enter Your Values In Hex"});
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(3)");
    EXPECT_EQ(cea().txtEdit(3).text(), "12")
        << "the pick goes on: the first digit stays, the second is that of the row";
}

TEST_F(Combo, IsServedByTheKeyboard) {
    focus(cea().NativeCBox);
    press(Qt::Key_Down);
    EXPECT_EQ(cea().txtEdit(3).text(), "01");
    press(Qt::Key_End);
    EXPECT_EQ(cea().txtEdit(3).text(), "0F");
}

TEST_F(Combo, IgnoresTheWheelWhileItIsClosed) {
    const int before = box->currentIndex();
    QWheelEvent wheel(QPointF(3, 3), box->mapToGlobal(QPointF(3, 3)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    EXPECT_EQ(box->currentIndex(), before);
    EXPECT_EQ(cea().NativeCBox.value(), before);
}

TEST_F(Combo, ShowsATextThatIsNoRow) {
    program.act([&] { cea().NativeCBox.setText("40"); });
    EXPECT_EQ(program.widgetAs<QComboBox>(cea().NativeCBox).currentIndex(), -1);
    EXPECT_EQ(program.widgetAs<QComboBox>(cea().NativeCBox).placeholderText(), "40");
}

} // namespace
} // namespace wb::test
