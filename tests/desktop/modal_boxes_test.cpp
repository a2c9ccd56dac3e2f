#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/desktop_test.h"
#include "desktop/services/dialogs.h"
#include "desktop/services/message_boxes.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

/// Does something as soon as a modal window of that kind is up.
template <class Window>
void whenUp(std::function<void(Window&)> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
        auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget());
        if (window == nullptr) {
            whenUp<Window>(action);
        } else {
            action(*window);
        }
    });
}

void pressButton(QMessageBox& box, QMessageBox::StandardButton button) {
    QTest::mouseClick(box.button(button), Qt::LeftButton);
}

class MessageBoxes : public testing::Test {
protected:
    platform::Answer ask(platform::Buttons buttons) {
        return boxes.show({.text = "Save <b>Changes</b>?", .title = "Title", .buttons = buttons});
    }

    desktop::ModelGate gate;
    desktop::QtMessageBoxes boxes{gate};
};

TEST_F(MessageBoxes, ShowPlainText) {
    whenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), "Save <b>Changes</b>?");
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        pressButton(box, QMessageBox::Ok);
    });
    EXPECT_EQ(ask(platform::Buttons::Ok), platform::Answer::Ok);
}

TEST_F(MessageBoxes, TakeEscapeForOk) {
    whenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(ask(platform::Buttons::Ok), platform::Answer::Ok);
}

TEST_F(MessageBoxes, GiveTheAnswerOfTheButton) {
    whenUp<QMessageBox>([](QMessageBox& box) { pressButton(box, QMessageBox::Yes); });
    EXPECT_EQ(ask(platform::Buttons::YesNo), platform::Answer::Yes);
    whenUp<QMessageBox>([](QMessageBox& box) { pressButton(box, QMessageBox::No); });
    EXPECT_EQ(ask(platform::Buttons::YesNo), platform::Answer::No);
}

TEST_F(MessageBoxes, LeaveNoWayAroundAQuestion) {
    whenUp<QMessageBox>([](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        box.close();
        EXPECT_TRUE(box.isVisible());
        QTest::keyClick(&box, Qt::Key_N);
    });
    EXPECT_EQ(ask(platform::Buttons::YesNo), platform::Answer::No);
}

TEST_F(MessageBoxes, ShowTheIconAskedFor) {
    whenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        pressButton(box, QMessageBox::Yes);
    });
    boxes.show({.text = "?", .buttons = platform::Buttons::YesNo, .icon = platform::Icon::Question});
    whenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        pressButton(box, QMessageBox::Ok);
    });
    boxes.show({.text = "!", .icon = platform::Icon::Information});
}

/// The whole program with boxes that are really modal.
class ModalProgram : public testing::Test {
protected:
    ModalProgram() {
        whenUp<QMessageBox>([](QMessageBox& box) { pressButton(box, QMessageBox::No); });
        program.newImage();
        program.act([&] { input::click(program.workbench.frmMain().Command2); });
    }
    FrmEdid& edid() { return program.workbench.frmEDID(); }
    std::string qtFocused() {
        const QWidget* widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName().toStdString() : "none";
    }

    DesktopProgram program{true, DesktopProgram::Boxes::Real};
};

TEST_F(ModalProgram, PutsTheFocusBackAfterABoxFromLostFocus) {
    program.act([&] { input::moveFocus(edid().txtEdit(3)); });
    QTest::keyClicks(QApplication::focusWidget(), "123");
    DesktopProgram::settle();
    whenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Please Make Your Values In Hex");
        pressButton(box, QMessageBox::Ok);
    });
    QTest::keyClick(QApplication::focusWindow(), Qt::Key_Tab);
    DesktopProgram::settle();
    EXPECT_EQ(program.workbench.focus.current(), &edid().txtEdit(3));
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
}

TEST_F(ModalProgram, FinishesAClickThatABoxHasInterrupted) {
    program.act([&] { input::moveFocus(edid().txtEdit(35)); });
    QTest::keyClicks(QApplication::focusWidget(), "123");
    DesktopProgram::settle();
    whenUp<QMessageBox>([](QMessageBox& box) { pressButton(box, QMessageBox::Ok); });
    QTest::mouseClick(program.widget(edid().ET1(0)), Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
    DesktopProgram::settle();
    EXPECT_EQ(edid().ET1(0).value(), 1);
}

TEST_F(ModalProgram, LetsCallsWaitWhileABoxIsUp) {
    std::string order;
    whenUp<QMessageBox>([&](QMessageBox& box) {
        program.gate.run([&] { order += "later"; });
        order += "box ";
        pressButton(box, QMessageBox::Ok);
    });
    program.act([&] {
        program.workbench.showMessage("wait");
        order += "after-box ";
    });
    EXPECT_EQ(order, "box after-box later");
}

TEST_F(ModalProgram, ShowsWhatTheModelSaysWhileABoxIsUp) {
    whenUp<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(program.widgetAs<QLineEdit>(edid().txtModel).text(), "before the box");
        pressButton(box, QMessageBox::Ok);
    });
    program.act([&] {
        edid().txtModel.setText("before the box");
        program.workbench.showMessage("look");
    });
}

TEST_F(ModalProgram, ShowsABoxOverAModalScreen) {
    program.act([&] { input::choose(program.workbench.frmMain().Windows2000); });
    FrmEdidReg& screen = program.workbench.frmEDIDREG();
    whenUp<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &program.window(screen));
        pressButton(box, QMessageBox::Ok);
    });
    QTest::mouseClick(program.widget(screen.Command1(2)), Qt::LeftButton);
    DesktopProgram::settle();
    EXPECT_EQ(qtFocused(), "frmEDIDREG.Command1(2)");
    program.act([&] { input::close(screen); });
}

class FileDialogs : public testing::Test {
protected:
    TemporaryFolder folder;
    desktop::ModelGate gate;
    desktop::QtPrinter printer;
    desktop::QtDialogs dialogs{gate, printer};
};

TEST_F(FileDialogs, OpenAFile) {
    const std::string file = folder.write("caf\xC3\xA9.DAT", "x");
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Open");
        EXPECT_EQ(dialog.nameFilters(), QStringList("EDID/DDC Data Files (*.DAT)"));
        EXPECT_EQ(dialog.directory().path().toStdString() + '/', folder.file(""));
        dialog.selectFile(QString::fromUtf8("caf\xC3\xA9.DAT"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(
        dialogs.openFile(
            {.title = "Open", .folder = folder.file(""), .filter = "EDID/DDC Data Files (*.DAT)|*.DAT", .name = {}}),
        file);
}

TEST_F(FileDialogs, GiveAnEmptyNameAfterACancel) {
    whenUp<QFileDialog>([&](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.openFile({.title = "Open", .folder = folder.file(""), .filter = "All|*", .name = {}}), "");
}

TEST_F(FileDialogs, TakeTheNameToSaveAsExactlyAsTyped) {
    const std::string file = folder.write("image", "x"); // exists: the program itself asks what then
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.selectedFiles(), QStringList(QString::fromStdString(folder.file("offered.hex"))));
        dialog.selectFile("image");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.saveFile({.title = "Save As",
                                .folder = folder.file(""),
                                .filter = "Hexadecimal Files (*.hex)|*.hex",
                                .name = "offered.hex"}),
              file);
}

TEST(DialogFilter, IsWrittenAsQtDoes) {
    EXPECT_EQ(desktop::dialogFilter("EDID/DDC Data Files (*.DAT)|*.DAT"), "EDID/DDC Data Files (*.DAT)");
    EXPECT_EQ(desktop::dialogFilter("Pictures|*.png;*.jpg"), "Pictures (*.png *.jpg)");
    EXPECT_EQ(desktop::dialogFilter("All"), "All");
    EXPECT_EQ(desktop::dialogFilter("Any form (*.*)|*.*"), "Any form (*)") << "files without an ending too";
}

} // namespace
} // namespace wb::test
