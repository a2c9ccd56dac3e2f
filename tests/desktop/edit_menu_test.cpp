#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

class EditMenuTest : public DesktopTest {
protected:
    EditMenuTest() {
        program.openSample("brindleco-b24w.bin");
        modify();
    }

    QAction& entry(const char* name) const { return *program.frame().window().findChild<QAction*>(name); }
    QMenu& menu() { return *static_cast<QMenu*>(entry("editUndo").associatedObjects().front()); }
    void open() {
        menu().popup(QPoint(0, 0));
        DesktopProgram::settle();
    }
    QLineEdit& box(const Control& control) { return program.widgetAs<QLineEdit>(control); }
};

TEST_F(EditMenuTest, StandsBetweenFileAndWindow) {
    QStringList titles;
    for (const QAction* action : program.frame().window().menuBar()->actions()) {
        titles.append(QString(action->text()).remove('&'));
    }
    EXPECT_EQ(titles.indexOf("File"), 0);
    EXPECT_EQ(titles.indexOf("Edit"), 1);
    EXPECT_GT(titles.indexOf("Window"), 1);
}

TEST_F(EditMenuTest, NamesTheChange) {
    EXPECT_FALSE(entry("editUndo").isEnabled());
    EXPECT_FALSE(entry("editRedo").isEnabled());
    focus(edid().txtEdit(21));
    type("35");
    ASSERT_TRUE(entry("editUndo").isEnabled());
    open();
    EXPECT_EQ(entry("editUndo").text(), "&Undo Width of the screen");
    EXPECT_EQ(entry("editRedo").text(), "&Redo");
    menu().setActiveAction(&entry("editUndo"));
    QTest::keyClick(&menu(), Qt::Key_Return);
    DesktopProgram::settle();
    EXPECT_EQ(edid().txtEdit(21).text(), "34");
    EXPECT_EQ(box(edid().txtEdit(21)).text(), "34");
    open();
    EXPECT_EQ(entry("editUndo").text(), "&Undo");
    EXPECT_EQ(entry("editRedo").text(), "&Redo Width of the screen");
    menu().close();
}

TEST_F(EditMenuTest, TakesBackATypedCellByItsKey) {
    focus(edid().txtEdit(21));
    type("35");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(21).text(), "34") << "the whole cell, not its last digit";
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(21)");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(21).text(), "35");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    press(Qt::Key_Y, Qt::ControlModifier, "\x19");
    EXPECT_EQ(edid().txtEdit(21).text(), "35");
    EXPECT_EQ(box(edid().txtEdit(21)).text(), "35");
}

TEST_F(EditMenuTest, ACellHasNoHistoryOfItsOwn) {
    focus(edid().txtEdit(21));
    type("3");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    ASSERT_EQ(edid().txtEdit(21).text(), "34");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(21).text(), "34");
    EXPECT_EQ(box(edid().txtEdit(21)).text(), "34");
}

TEST_F(EditMenuTest, InABoxTypingComesBackFirst) {
    focus(edid().txtEdit(22));
    focus(edid().BasicInput);
    type("340");
    press(Qt::Key_Return);
    ASSERT_EQ(edid().txtEdit(22).text(), "22") << "34 centimetres";
    type("1");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(22).text(), "22");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(22).text(), "21");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(22)");
    EXPECT_EQ(edid().BasicInput.text(), "330") << "millimetres";
}

TEST_F(EditMenuTest, CopiesTheImage) {
    entry("editCopy.hex").trigger();
    const QString text = QApplication::clipboard()->text();
    EXPECT_TRUE(text.startsWith("00 FF FF FF FF FF FF 00 0A 4E")) << text.toStdString();
    EXPECT_EQ(text.size(), 3 * 128 - 1);
    entry("editCopy.c").trigger();
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("static const unsigned char edid[128] = {"));
}

TEST_F(EditMenuTest, CopiesAField) {
    focus(edid().txtEdit(21));
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Width of the screen: 52 cm");
}

TEST_F(EditMenuTest, PastesBytesAndTakesThemBackAtOnce) {
    QApplication::clipboard()->setText("35 22");
    focus(edid().txtEdit(21));
    press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(edid().txtEdit(21).text() + edid().txtEdit(22).text(), "3522");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(22)");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1A");
    EXPECT_EQ(edid().txtEdit(21).text() + edid().txtEdit(22).text(), "3421");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(21)");
}

TEST_F(EditMenuTest, PastesAnImageAsNew) {
    entry("editCopy.base64").trigger();
    focus(edid().txtEdit(21));
    type("35");
    program.platform.queueAnswer(platform::Answer::No);
    entry("editPasteImage").trigger();
    DesktopProgram::settle();
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Save Changes?"});
    EXPECT_EQ(edid().txtEdit(21).text(), "34");
    EXPECT_FALSE(entry("editUndo").isEnabled());
}

TEST_F(EditMenuTest, PastesOnlyIntoACellThatMayBeEdited) {
    focus(edid().txtEdit(21));
    EXPECT_TRUE(entry("editPaste").isEnabled());
    modify(); // off
    EXPECT_FALSE(entry("editPaste").isEnabled());
}

TEST_F(EditMenuTest, FindsBytes) {
    focus(edid().txtEdit(0));
    entry("editFind").trigger();
    DesktopProgram::settle();
    auto* window = program.frame().window().findChild<QDialog*>("findCells");
    ASSERT_NE(window, nullptr);
    window->findChild<QLineEdit*>()->setText("Panel");
    QTest::keyClick(window->findChild<QLineEdit*>(), Qt::Key_Return);
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(113)");
    EXPECT_TRUE(window->isVisible());
}

} // namespace
} // namespace wb::test
