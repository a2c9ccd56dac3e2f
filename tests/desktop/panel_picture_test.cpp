#include <QAccessible>
#include <QLayout>

#include "desktop/desktop_test.h"
#include "desktop/pictures/picture_widget.h"

namespace wb::test {
namespace {

/// The pictures in the panels of the screens.
class PanelPictures : public DesktopTest {
protected:
    PanelPictures() {
        program.frame().window().resize(1500, 900);
        program.openSample("zarqo-z40.bin"); // which leaves Modify EDID on
    }
    /// The picture that is to be seen, or null.
    desktop::PictureWidget* shown() { return shownIn(edid()); }
    desktop::PictureWidget* shownIn(Screen& screen) {
        for (QWidget* widget : program.window(screen).findChildren<QWidget*>("picture")) {
            if (widget->isVisible()) {
                return dynamic_cast<desktop::PictureWidget*>(widget);
            }
        }
        return nullptr;
    }
    std::string description() { return shown() != nullptr ? shown()->accessibleDescription().toStdString() : "none"; }
    QPoint middleOf(const std::string& name) {
        for (const desktop::Shape& shape : shown()->picture().shapes) {
            if (shape.name == name) {
                return shape.points.boundingRect().center().toPoint();
            }
        }
        ADD_FAILURE() << "there is no " << name;
        return {};
    }
    void clickAt(const std::string& name) {
        QTest::mouseClick(shown(), Qt::LeftButton, Qt::NoModifier, middleOf(name));
        DesktopProgram::settle();
    }
};

TEST_F(PanelPictures, StandBesideTheControlsOfTheirPanel) {
    focus(edid().txtEdit(27));
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->parentWidget(), program.widget(edid().Hints(4)));
    for (const QWidget* other : shown()->parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (other != shown() && other->isVisible()) {
            EXPECT_FALSE(other->geometry().intersects(shown()->geometry())) << other->objectName().toStdString();
        }
    }
    focus(edid().txtEdit(8));
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(PanelPictures, MoveNothingThatIsGiven) {
    focus(edid().txtEdit(8)); // which has none
    const QSize page = program.widget(edid().Hints(1))->parentWidget()->sizeHint();
    focus(edid().txtEdit(27));
    EXPECT_EQ(program.widget(edid().Hints(4))->parentWidget()->sizeHint(), page);
}

TEST_F(PanelPictures, FollowTheCells) {
    focus(edid().txtEdit(27));
    type("80"); // 200h, with the low bits 11 of byte 25: 515 of 1024
    EXPECT_EQ(description().substr(0, 17), "Red: 0.503, 0.330");
}

TEST_F(PanelPictures, SayWhichCellHoldsNoByte) {
    focus(edid().txtEdit(27));
    program.act([&] { edid().txtEdit(60).setText("G0"); });
    EXPECT_EQ(description(), "Cell 60 of block 0 holds \"G0\", which is not a byte of two hexadecimal digits.");
    program.act([&] { edid().txtEdit(60).setText("2D"); });
    EXPECT_EQ(description().substr(0, 4), "Red:");
}

TEST_F(PanelPictures, PickOptions) {
    focus(edid().txtEdit(27));
    clickAt("white");
    EXPECT_TRUE(edid().chkChroma(6).selected()); // White X
    EXPECT_EQ(focused(), "frmEDID.txtEdit(33)") << "where a click on the option leads";
    clickAt("green words");
    EXPECT_TRUE(edid().chkChroma(2).selected()); // Green X
}

TEST_F(PanelPictures, PickChecksAsAClickDoes) {
    focus(edid().txtEdit(35)); // 21h: 640 x 480 and 800 x 600 at 60 Hz
    clickAt("720x400 words");
    EXPECT_TRUE(edid().ET1(0).selected());
    EXPECT_EQ(edid().txtEdit(35).text(), "A1");
    clickAt("720x400 words");
    EXPECT_EQ(edid().txtEdit(35).text(), "21");
}

TEST_F(PanelPictures, HaveRoomOnTheScreenOfTheExtensionToo) {
    program.platform.queueFileName(WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT");
    program.act([&] { input::choose(frame().mnuFileOpen); });
    program.act([&] { input::click(frame().Command4); });
    focus(cea().txtEdit(29)); // its first timing
    ASSERT_NE(shownIn(cea()), nullptr);
    EXPECT_EQ(shownIn(cea())->accessibleName().toStdString(), "Detailed timing");
    program.act([&] { input::click(frame().Command1); }); // which finds the places of the data blocks
    focus(cea().txtEdit(19));                             // speakers
    ASSERT_NE(shownIn(cea()), nullptr);
    EXPECT_EQ(shownIn(cea())->accessibleDescription().toStdString(), "Front left/right.");
}

TEST_F(PanelPictures, PickNothingWhileEditingIsOff) {
    modify(); // off
    focus(edid().txtEdit(27));
    const bool before = edid().chkChroma(6).selected();
    clickAt("white");
    EXPECT_EQ(edid().chkChroma(6).selected(), before);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(27)");
}

TEST_F(PanelPictures, HideWhereThereIsTooLittleRoom) {
    focus(edid().txtEdit(27));
    QWidget& panel = *program.widget(edid().Hints(4));
    ASSERT_NE(shown(), nullptr);
    const int before = panel.maximumHeight();
    panel.setMaximumHeight(panel.layout()->minimumSize().height() + 20);
    DesktopProgram::settle();
    EXPECT_EQ(shown(), nullptr);
    panel.setMaximumHeight(before);
    DesktopProgram::settle();
    EXPECT_NE(shown(), nullptr);
}

TEST_F(PanelPictures, AreSpokenAsPictures) {
    focus(edid().txtEdit(27));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(shown());
    EXPECT_EQ(spoken->role(), QAccessible::Graphic);
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), "Chromaticity diagram");
    EXPECT_EQ(spoken->text(QAccessible::Description).toStdString(), description());
}

TEST_F(PanelPictures, LeaveTheDoubleClickToThePanel) {
    focus(edid().txtEdit(54));
    focus(edid().txtEdit(27));
    const QPoint corner(1, shown()->height() - 2);
    QTest::mouseDClick(shown(), Qt::LeftButton, Qt::NoModifier, corner);
    DesktopProgram::settle();
    EXPECT_EQ(edid().txtEdit(56).text(), "00") << "blanks the block that was last in focus";
}

} // namespace
} // namespace wb::test
