#include <gmock/gmock.h>

#include <QLineEdit>

#include "desktop/desktop_test.h"
#include "desktop/drag.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

class Drops : public DesktopTest {
protected:
    Drops() {
        program.newImage();
        modify();
        focus(edid().txtEdit(8));
    }

    bool drop(const Control& control) { return dropText(*program.widget(control), "/home/me/a monitor.DAT"); }
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
