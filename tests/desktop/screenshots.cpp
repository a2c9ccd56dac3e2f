#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <array>
#include <cstdio>
#include <string_view>

#include "adapters/cvt.h"
#include "core/input.h"
#include "desktop/desktop_program.h"
#include "desktop/drawing/palettes.h"

/// Makes a picture of each screen, of the docks and tools in a folder, and of each panel if asked for.
namespace {

using namespace wb;

class Album {
public:
    explicit Album(const QString& folder) : folder_(folder) { QDir().mkpath(folder); }

    void take(QWidget& widget, const QString& name) const {
        test::DesktopProgram::settle();
        widget.grab().save(folder_.filePath(name + ".png"));
    }

private:
    QDir folder_;
};

QString nameOf(const Screen& screen) {
    return QString::fromStdString(std::string(screen.name()));
}

void focusCell(test::DesktopProgram& program, BlockScreen& screen, int cell) {
    program.act([&] { input::moveFocus(screen.txtEdit(cell)); });
}

void takeScreen(test::DesktopProgram& program, const Album& album, Screen& screen) {
    album.take(program.window(screen), nameOf(screen));
}

void takePanels(test::DesktopProgram& program, const Album& album, BlockScreen& screen) {
    for (int cell = 0; cell < BlockScreen::cellCount; ++cell) {
        focusCell(program, screen, cell);
        album.take(program.window(screen), nameOf(screen) + QString("-%1").arg(cell, 3, 10, QChar('0')));
    }
}

/// Each modal screen is up while its picture is taken.
void takeModal(test::DesktopProgram& program, const Album& album, Control& entry, ScreenId id) {
    program.act([&] { input::choose(entry); });
    Screen& screen = *program.workbench.loaded(id);
    takeScreen(program, album, screen);
    program.act([&] { input::close(screen); });
}

void takeSplash(const Album& album) {
    test::DesktopProgram program(false);
    program.act([&] { program.workbench.windows.reveal(program.workbench.frmSplash()); });
    takeScreen(program, album, program.workbench.frmSplash());
}

/// A window of the Tools menu.
void takeTool(const test::DesktopProgram& program, const Album& album, const char* entry, const QString& name) {
    const QMainWindow& frame = program.frame().window();
    frame.findChild<QAction*>(entry)->trigger();
    test::DesktopProgram::settle();
    for (QDialog* dialog : frame.findChildren<QDialog*>()) {
        if (dialog->isVisible()) {
            album.take(*dialog, name);
            dialog->close();
        }
    }
}

/// The frame with the docks of fields and findings.
void takeDocks(test::DesktopProgram& program, const Album& album) {
    focusCell(program, program.workbench.frmEDID(), 55);
    const QList<QDockWidget*> docks = program.frame().window().findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks) {
        dock->show();
    }
    album.take(program.frame().window(), "docks");
    for (QDockWidget* dock : docks) {
        dock->hide();
    }
}

void takeTools(test::DesktopProgram& program, const Album& album) {
    program.platform.queueFileName(WORKBENCH_SOURCE_DIR "/samples/brindleco-b24w.bin");
    takeTool(program, album, "toolsCompare", "compare");
    if (adapters::missingCvtLibrary().empty()) {
        takeTool(program, album, "toolsTiming", "timingCalculator");
    }
}

void takeInDark(test::DesktopProgram& program, const Album& album, int cell, const QString& name) {
    QApplication::setPalette(desktop::darkPalette());
    test::DesktopProgram::settle();
    focusCell(program, program.workbench.frmEDID(), cell);
    album.take(program.window(program.workbench.frmEDID()), name);
    QApplication::setPalette(QPalette());
    test::DesktopProgram::settle();
}

/// Panels that have pictures, in dark colours too.
void takePictures(test::DesktopProgram& program, const Album& album) {
    constexpr std::array<int, 9> cells = {21, 23, 25, 35, 36, 37, 38, 54, 108};
    for (const int cell : cells) {
        takeInDark(program, album, cell, QString("frmEDID-%1-dark").arg(cell, 3, 10, QChar('0')));
    }
}

/// The frame at work: an image open, and its report beside it.
void takeFrame(test::DesktopProgram& program, const Album& album) {
    Workbench& workbench = program.workbench;
    focusCell(program, workbench.frmEDID(), 54);
    program.act([&] { input::click(workbench.frmMain().Command1); });
    focusCell(program, workbench.frmEDID(), 54); // which brings the report up to date, and gives it the focus
    focusCell(program, workbench.frmEDID(), 54);
    takeScreen(program, album, workbench.frmMain());
    program.act([&] { input::close(workbench.frmDocument()); });
}

void takeScreens(test::DesktopProgram& program, const Album& album) {
    Workbench& workbench = program.workbench;
    FrmMain& frame = workbench.frmMain();
    focusCell(program, workbench.frmEDID(), 54);
    takeScreen(program, album, workbench.frmEDID());
    program.act([&] { input::click(frame.Command4); });
    focusCell(program, workbench.frmCEA_EXT(), 5);
    takeScreen(program, album, workbench.frmCEA_EXT());
    program.act([&] { input::choose(frame.HexCalculator); });
    takeScreen(program, album, workbench.frmHexCalculator());
    program.act([&] { input::close(workbench.frmHexCalculator()); });
    program.act([&] { input::click(frame.Command1); });
    takeScreen(program, album, workbench.frmDocument());
    takeModal(program, album, frame.Info, ScreenId::Help);
    takeModal(program, album, frame.Windows2000, ScreenId::EdidReg);
    takeModal(program, album, frame.mnuHelpAbout, ScreenId::About);
}

} // namespace

int main(int argc, char** argv) {
    const bool panels = argc == 3 && std::string_view(argv[2]) == "--panels";
    if (argc != 2 && !panels) {
        std::fprintf(stderr, "usage: desktop_screenshots FOLDER [--panels]\n");
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const Album album(QString::fromLocal8Bit(argv[1]));
    takeSplash(album);
    test::DesktopProgram program;
    program.frame().window().resize(1440, 740);
    program.openSample("zarqo-z40.bin");
    takeFrame(program, album);
    takeDocks(program, album);
    takeTools(program, album);
    takeInDark(program, album, 27, "chromaticity-dark");
    takeScreens(program, album);
    if (panels) {
        takePictures(program, album);
        takePanels(program, album, program.workbench.frmEDID());
        takePanels(program, album, program.workbench.frmCEA_EXT());
    }
    return 0;
}
