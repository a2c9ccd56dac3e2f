#include "desktop/tools/fields_dock.h"

#include <QMdiArea>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

using desktop::FieldModel;

class Fields : public DesktopTest {
protected:
    Fields() { program.openSample("zarqo-z40.bin"); } // which leaves Modify EDID on

    QMainWindow& window() { return program.frame().window(); }
    QDockWidget& dock() { return *window().findChild<QDockWidget*>("dockFields"); }
    QLineEdit& words() { return *dock().findChild<QLineEdit*>(); }
    QTreeView& tree() { return *dock().findChild<QTreeView*>(); }
    void open() { press(Qt::Key_F7); }
    /// The first line with that label and value.
    QModelIndex line(const QString& label, const QString& value) {
        const QAbstractItemModel& model = *tree().model();
        for (const QModelIndex& found :
             model.match(model.index(0, 0), Qt::DisplayRole, label, -1, Qt::MatchExactly | Qt::MatchRecursive)) {
            if (found.siblingAtColumn(FieldModel::Value).data() == value) {
                return found;
            }
        }
        return {};
    }
    void clickLine(const QModelIndex& index) {
        ASSERT_TRUE(index.isValid());
        tree().scrollTo(index);
        const QPoint place = tree().visualRect(index).center();
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        DesktopProgram::settle();
    }
    std::string current() { return tree().currentIndex().siblingAtColumn(0).data().toString().toStdString(); }
    std::string note() {
        std::string text;
        for (const QLabel* label : dock().findChildren<QLabel*>()) {
            text += label->isVisible() ? label->text().toStdString() : "";
        }
        return text;
    }
};

TEST_F(Fields, AreHiddenUntilAskedFor) {
    EXPECT_TRUE(dock().isHidden());
    focus(edid().txtEdit(54));
    open();
    EXPECT_TRUE(dock().isVisible());
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(54)") << "a dock takes no focus";
    EXPECT_EQ(current(), "Pixel clock");
    open();
    EXPECT_FALSE(dock().isVisible());
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(54)");
}

TEST_F(Fields, FollowTheCellInFocus) {
    open();
    focus(edid().txtEdit(95)); // 5Fh, the first character of the name
    EXPECT_EQ(current(), "Product name");
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(96)");
    EXPECT_EQ(current(), "Product name");
    focus(edid().txtEdit(23));
    EXPECT_EQ(current(), "Gamma");
    EXPECT_TRUE(tree().viewport()->rect().contains(tree().visualRect(tree().currentIndex()).center()));
}

TEST_F(Fields, LeadToTheirCells) {
    open();
    clickLine(line("Gamma", "2.20"));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(23)");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
    EXPECT_TRUE(edid().Hints(3).visible()) << "the cell has been entered as by a click on it";
    clickLine(line("Horizontal blanking", "280 px")); // 3A[3:0]+39
    EXPECT_EQ(focused(), "frmEDID.txtEdit(57)") << "its first byte, 39h";
    EXPECT_EQ(current(), "Horizontal blanking");
    focus(edid().txtEdit(58));
    EXPECT_EQ(current(), "Horizontal blanking") << "which has bits there too";
    focus(edid().txtEdit(56));
    EXPECT_EQ(current(), "Horizontal active");
}

TEST_F(Fields, LeadToACellThatHasTheFocusAlready) {
    open();
    focus(edid().txtEdit(23));
    QTest::mouseClick(&words(), Qt::LeftButton);
    DesktopProgram::settle();
    ASSERT_TRUE(words().hasFocus());
    clickLine(line("Gamma", "2.20"));
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
}

TEST_F(Fields, OpenTheExtensionByItsButton) {
    open();
    ASSERT_FALSE(cea().shown());
    clickLine(line("Offset of the first detailed timing", "29"));
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(2)");
    EXPECT_EQ(qtFocused(), "frmCEA_EXT.txtEdit(2)");
    EXPECT_NE(program.workbench.CEAScreenOpen, flagFalse);
}

TEST_F(Fields, SayWhereACellIsOutOfReach) {
    open();
    focus(edid().txtEdit(23));
    program.act([&] { frame().Command4.setEnabled(false); });
    clickLine(line("Offset of the first detailed timing", "29"));
    EXPECT_EQ(note(), "Byte 2 (02h) of block 1 is out of reach now.");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
    focus(edid().txtEdit(24));
    EXPECT_EQ(note(), "") << "it tells of a click that is over";
    clickLine(line("Offset of the first detailed timing", "29"));
    ASSERT_NE(note(), "");
    clickLine(line("Gamma", "2.20"));
    EXPECT_EQ(note(), "");
}

TEST_F(Fields, TellOfACellThatHoldsNoByte) {
    open();
    focus(edid().txtEdit(23));
    type("7");
    EXPECT_EQ(note(), "Cell 23 of block 0 holds \"7\", which is not a byte of two hexadecimal digits.");
    type("8");
    EXPECT_EQ(note(), "");
}

TEST_F(Fields, TellOfWhatTheCellsHoldNow) {
    open();
    focus(edid().txtEdit(23));
    type("96"); // 250 / 100
    EXPECT_TRUE(line("Gamma", "2.50").isValid());
    dock().hide();
    focus(edid().txtEdit(22));
    focus(edid().txtEdit(23)); // which selects the whole cell
    type("A0");
    dock().show();
    DesktopProgram::settle();
    EXPECT_TRUE(line("Gamma", "2.60").isValid()) << "what it has missed while it was hidden";
}

TEST_F(Fields, AreSearchedWithoutAnEventInTheModel) {
    focus(edid().txtEdit(3));
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(dock().isVisible());
    ASSERT_TRUE(words().hasFocus());
    type("gamma");
    EXPECT_EQ(edid().txtEdit(3).text(), "FF");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(words().text(), "gamma");
    EXPECT_EQ(tree().model()->rowCount(), 1);
    press(Qt::Key_Escape);
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(words().text(), "gamma");
}

TEST_F(Fields, AreFoundAndLostAsTheCellsChange) {
    open();
    words().setText("gamma 2.50");
    EXPECT_EQ(tree().model()->rowCount(), 0);
    focus(edid().txtEdit(23));
    type("96"); // 250 / 100
    EXPECT_TRUE(line("Gamma", "2.50").isValid());
    focus(edid().txtEdit(22));
    focus(edid().txtEdit(23));
    type("A0");
    EXPECT_EQ(tree().model()->rowCount(), 0);
}

TEST_F(Fields, AreReachedFromTheSearchByReturn) {
    focus(edid().txtEdit(3));
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)") << "nothing is looked for";
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    type("gamma");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(23)");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
}

TEST_F(Fields, AreWalkedOverByKeys) {
    focus(edid().txtEdit(3));
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    type("gamma");
    press(Qt::Key_Tab);
    ASSERT_TRUE(tree().hasFocus());
    press(Qt::Key_Home);
    for (int i = 0; i < 2; ++i) { // block, group, field
        press(Qt::Key_Down);
    }
    EXPECT_EQ(current(), "Gamma");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(3)");
    press(Qt::Key_Return);
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
}

TEST_F(Fields, TakeNoFocusByAClick) {
    open();
    focus(edid().txtEdit(3));
    clickLine(tree().model()->index(0, 0));
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(3)");
}

TEST_F(Fields, GiveTheFocusBackWhenTheyAreClosed) {
    focus(edid().txtEdit(3));
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_F7);
    EXPECT_FALSE(dock().isVisible());
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(3)");
}

TEST_F(Fields, AreEmptyWithoutAnImage) {
    open();
    program.workbench.EDIDModified = flagFalse;
    program.act([&] { input::close(edid()); });
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
    EXPECT_EQ(tree().model()->rowCount(), 0);
    EXPECT_EQ(note(), "");
}

TEST(DockPlaces, AreRemembered) {
    DesktopProgram first;
    QMainWindow& window = first.frame().window();
    window.resize(1200, 700);
    DesktopProgram::settle();
    auto* dock = window.findChild<QDockWidget*>("dockFields");
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->show();
    window.resizeDocks({dock}, {333}, Qt::Horizontal);
    QTest::qWait(500); // the user comes to a rest
    ASSERT_EQ(dock->width(), 333);
    ASSERT_EQ(first.platform.settings.count("MainDocks"), 1U);

    DesktopProgram next(false);
    next.platform.settings = first.platform.settings;
    next.start();
    QMainWindow& again = next.frame().window();
    auto* same = again.findChild<QDockWidget*>("dockFields");
    EXPECT_TRUE(same->isVisible());
    EXPECT_EQ(again.dockWidgetArea(same), Qt::LeftDockWidgetArea);
}

TEST(DockPlaces, AreNotStoredBeforeADockHasBeenOpen) {
    DesktopProgram program;
    program.openSample("zarqo-z40.bin");
    program.frame().window().resize(900, 500);
    QTest::qWait(500);
    EXPECT_EQ(program.platform.settings.count("MainDocks"), 0U);
}

} // namespace
} // namespace wb::test
