#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QStatusBar>

#include "desktop/desktop_test.h"
#include "desktop/views/menu_view.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

/// What the view shows of the program's state beyond the properties of its controls.
class States : public DesktopTest {
protected:
    QMainWindow& window() { return program.frame().window(); }
    bool isGrey(const Control& entry) {
        return !dynamic_cast<desktop::MenuView&>(*program.view.viewOf(entry)).action().isEnabled();
    }
    /// The entries and tool bar buttons of the frame that are grey though the model has them enabled.
    std::vector<Control*> greyEntries() {
        std::vector<Control*> found;
        for (Control* control : frame().controls()) {
            if (control->kind() == ControlKind::Menu && control->enabled() && isGrey(*control)) {
                found.push_back(control);
            }
        }
        return found;
    }
    std::vector<std::string> greyNames() {
        std::vector<std::string> names;
        for (const Control* entry : greyEntries()) {
            names.push_back(entry->array() != nullptr ? entry->caption() : std::string(entry->name()));
        }
        return names;
    }
    std::string notice() {
        for (const QLabel* label : window().statusBar()->findChildren<QLabel*>()) {
            if (label->text().contains(" bytes) at ")) {
                return label->text().section(" at ", 0, 0).toStdString();
            }
        }
        return "";
    }
    void choose(Control& entry) {
        program.act([&] { input::choose(entry); });
    }
    /// What a command could have changed.
    std::string trace() {
        std::string state = focused() + ' ' + program.workbench.CurrentFileName + ' ' +
                            std::to_string(program.workbench.EDIDModified) + ' ' + frame().dialogFileName;
        for (const Screen* screen : program.workbench.loadedInOrder()) {
            state += ' ' + std::string(screen->name()) + (screen->shown() ? "+" : "-");
        }
        for (const Screen* child : program.workbench.windows.children()) {
            state += ' ' + std::to_string(program.window(*child).geometry().x());
        }
        return state;
    }
    void expectGreyEntriesToDoNothing(const char* state) {
        std::vector<std::string> lines;
        program.platform.onLine = [&](const std::string& line) { lines.push_back(line); };
        for (Control* entry : greyEntries()) {
            const std::string before = trace();
            choose(*entry);
            EXPECT_EQ(trace(), before) << state << ": " << entry->fullName();
        }
        program.platform.onLine = nullptr;
        EXPECT_EQ(lines, std::vector<std::string>()) << state << ": a box or dialog";
    }
};

TEST_F(States, GreyWhatWouldDoNothing) {
    const std::vector<std::string> withoutImage = {"mnuFileClose",
                                                   "mnuFileSave",
                                                   "mnuFileSaveAs",
                                                   "mnuFilePrintPreview",
                                                   "mnuFilePrint",
                                                   "ExportHex",
                                                   "mnuWindowCascade",
                                                   "mnuWindowTileHorizontal",
                                                   "mnuWindowTileVertical",
                                                   "mnuWindowArrangeIcons",
                                                   "Save",
                                                   "Print Preview",
                                                   "Print"};
    EXPECT_EQ(greyNames(), withoutImage);
    program.newImage();
    EXPECT_EQ(greyNames(), std::vector<std::string>{"mnuWindowArrangeIcons"});
    choose(frame().HexCalculator);
    EXPECT_EQ(greyNames(), (std::vector<std::string>{"HexCalculator", "mnuWindowArrangeIcons", "Calculator"}));
    program.act([&] { input::close(edid()); });
    EXPECT_TRUE(isGrey(frame().mnuFileSave));
    EXPECT_FALSE(isGrey(frame().mnuFileClose)) << "the calculator is there";
    EXPECT_TRUE(frame().mnuFileSave.enabled()) << "the model's own property stays";
}

TEST_F(States, GreyNothingThatDoesSomething) {
    expectGreyEntriesToDoNothing("at the start");
    choose(frame().HexCalculator);
    expectGreyEntriesToDoNothing("with the calculator alone");
    program.newImage(true);
    expectGreyEntriesToDoNothing("with an image and the calculator");
    click(frame().Command4);
    program.act([&] { input::close(edid()); });
    takeBoxes(); // whether to save the changes
    expectGreyEntriesToDoNothing("with the extension alone");
}

TEST_F(States, GreyArrangeIconsUnlessThereAreSome) {
    program.newImage();
    dynamic_cast<QMdiSubWindow&>(program.window(edid())).showMinimized();
    program.sync();
    EXPECT_FALSE(isGrey(frame().mnuWindowArrangeIcons));
}

TEST_F(States, MarkATitleWhileThereAreChangesToSave) {
    program.newImage();
    const QWidget& child = program.window(edid());
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_FALSE(child.isWindowModified());
    modify();
    focus(edid().txtEdit(23));
    type("78");
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_TRUE(child.isWindowModified());
    EXPECT_TRUE(window().windowTitle().endsWith("[*]")) << "where the platform puts its mark";
    EXPECT_TRUE(child.windowTitle().endsWith("[*]"));
    choose(frame().HexCalculator);
    EXPECT_FALSE(program.window(program.workbench.frmHexCalculator()).isWindowModified());
    const TemporaryFolder folder;
    program.platform.queueFileName(folder.file("a.DAT"));
    choose(frame().mnuFileSave);
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_FALSE(child.isWindowModified());
}

TEST_F(States, KeepTheMarkOfChangesThatCouldNotBeSaved) {
    program.newImage();
    modify();
    focus(edid().txtEdit(23));
    type("78");
    const TemporaryFolder folder;
    program.platform.queueFileName(folder.file("missing/a.DAT"));
    choose(frame().mnuFileSaveAs);
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Path/File access error"});
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_EQ(edid().txtEdit(23).text(), "78");
    program.platform.queueFileName(folder.file("a.DAT"));
    choose(frame().mnuFileSaveAs);
    EXPECT_FALSE(window().isWindowModified()) << "elsewhere there is room";
    EXPECT_FALSE(TemporaryFolder::read(folder.file("a.DAT")).empty());
}

TEST_F(States, ShowButtonsPressedWhileTheyAreOn) {
    program.newImage();
    const auto& modifies = program.widgetAs<QPushButton>(frame().Command2);
    const auto& seeks = program.widgetAs<QPushButton>(frame().Command3);
    EXPECT_FALSE(modifies.isChecked());
    click(frame().Command2);
    EXPECT_TRUE(modifies.isChecked());
    EXPECT_FALSE(seeks.isChecked());
    click(frame().Command3);
    EXPECT_TRUE(seeks.isChecked());
    click(frame().Command2);
    EXPECT_FALSE(modifies.isChecked());
    EXPECT_TRUE(seeks.isChecked()) << "it stays on, though out of reach";
    program.gate.run([&] {
        frame().Command3.setCaption("other");
        program.gate.announceEventLoop(); // a box is up
        EXPECT_TRUE(seeks.isChecked());
    });
}

TEST_F(States, TellWhatWasWritten) {
    const TemporaryFolder folder;
    program.newImage();
    EXPECT_EQ(notice(), "");
    program.platform.queueFileName(folder.file("[a] & b.DAT"));
    choose(frame().mnuFileSave);
    EXPECT_EQ(notice(), "Saved [a] & b.DAT (128 bytes)");
    program.platform.queueFileName(folder.file("c.hex"));
    choose(frame().ExportHex);
    EXPECT_EQ(notice(), "Exported c.hex (128 bytes)");
    program.act([&] { edid().txtEdit(126).setText("01"); });
    choose(frame().mnuFileSave);
    EXPECT_EQ(notice(), "Saved c.hex (256 bytes)");
    program.platform.queueFileName(folder.file("missing/d.hex"));
    choose(frame().ExportHex);
    EXPECT_FALSE(takeBoxes().empty());
    EXPECT_EQ(notice(), "Saved c.hex (256 bytes)") << "nothing was written";
    program.platform.queueFileName(folder.file("%1%2%3.hex"));
    choose(frame().ExportHex);
    EXPECT_EQ(notice(), "Exported %1%2%3.hex (256 bytes)");
    program.platform.queueFileName(folder.file("missing/d.hex"));
    choose(frame().ExportHex);
    EXPECT_FALSE(takeBoxes().empty());
    choose(frame().mnuFileSave); // the name of the failed export
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Path/File access error"});
    EXPECT_EQ(notice(), "Exported %1%2%3.hex (256 bytes)");
}

TEST_F(States, KeepTheWidthOfTheFrameWhateverWasWritten) {
    const TemporaryFolder folder;
    program.newImage();
    const int before = window().minimumSizeHint().width();
    program.platform.queueFileName(folder.file(std::string(200, 'n') + ".DAT"));
    choose(frame().mnuFileSave);
    ASSERT_NE(notice(), "");
    EXPECT_EQ(window().minimumSizeHint().width(), before);
}

class PanelColours : public States {
protected:
    /// The colour that the text of the control has now.
    QColor textOf(const Control& control) {
        const QWidget& widget = *program.widget(control);
        return widget.palette().color(widget.isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    }
    static QColor normal() { return QApplication::palette().color(QPalette::Active, QPalette::WindowText); }
};

TEST_F(PanelColours, AreNormalInReadingModeWhereTheLogicHasDisabledNothing) {
    program.openSample("zarqo-z40.bin"); // a digital input
    modify();                            // off: a new image with an extension switched it on
    focus(edid().txtEdit(20));
    ASSERT_FALSE(program.widget(edid().VideoMode(0))->isEnabled());
    ASSERT_FALSE(edid().Analog.enabled());
    for (const Control* live : {&edid().VideoMode(0), &edid().VideoMode(1), &edid().Basic(1)}) {
        EXPECT_EQ(textOf(*live), normal()) << live->fullName();
    }
    EXPECT_EQ(textOf(edid().DFP_1(1)), normal());
    EXPECT_NE(textOf(edid().Signal(0)), normal()) << "an analog input is what this is not";
    modify();
    focus(edid().txtEdit(20));
    EXPECT_EQ(textOf(edid().VideoMode(0)), normal());
    EXPECT_NE(textOf(edid().Signal(0)), normal());
}

TEST_F(PanelColours, FollowThePalette) {
    program.openSample("zarqo-z40.bin");
    focus(edid().txtEdit(20));
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x30, 0x30, 0x30));
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    DesktopProgram::settle();
    EXPECT_EQ(textOf(edid().VideoMode(0)), QColor(Qt::white));
    EXPECT_NE(textOf(edid().Signal(0)), QColor(Qt::white));
    EXPECT_GT(textOf(edid().Signal(0)).lightness(), 0x80);
    QApplication::setPalette(before);
}

} // namespace
} // namespace wb::test
