#include <gmock/gmock.h>

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

class Drops : public DesktopTest {
protected:
    Drops() {
        program.newImage();
        modify();
        focus(edid().txtEdit(8));
        text_.setText("/home/me/a monitor.DAT");
    }

    /// Drags the text to the widget and lets go there; whether the widget takes it.
    bool drop(const Control& control) {
        QWidget* target = program.widget(control);
        const QPoint place = target->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &text_, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDragMoveEvent move(place, Qt::CopyAction, &text_, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        QDropEvent event(place, Qt::CopyAction, &text_, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
        DesktopProgram::settle();
        return enter.isAccepted();
    }

private:
    QMimeData text_;
};

TEST_F(Drops, AreNotTakenByACell) {
    for (const int cell : {8, 34}) {
        const std::string before = edid().txtEdit(cell).text();
        ASSERT_FALSE(edid().txtEdit(cell).locked());
        EXPECT_FALSE(drop(edid().txtEdit(cell)));
        EXPECT_EQ(edid().txtEdit(cell).text(), before);
        EXPECT_EQ(program.widgetAs<QLineEdit>(edid().txtEdit(cell)).text().toStdString(), before);
    }
    EXPECT_EQ(focused(), "frmEDID.txtEdit(8)");
}

TEST_F(Drops, AreNotTakenByALockedBox) {
    modify(); // off again
    focus(edid().txtEdit(9));
    for (const Control* control : {&edid().txtEdit(34), static_cast<Control*>(&edid().txtBrand)}) {
        ASSERT_TRUE(control->locked()) << control->fullName();
        const std::string before = control->text();
        EXPECT_FALSE(drop(*control)) << control->fullName();
        EXPECT_EQ(control->text(), before) << control->fullName();
    }
}

TEST_F(Drops, AreTakenByAnInputBoxAsByPasting) {
    EXPECT_TRUE(drop(edid().VendorInfo));
    EXPECT_THAT(edid().VendorInfo.text(), HasSubstr("a monitor.DAT"));
}

} // namespace
} // namespace wb::test
