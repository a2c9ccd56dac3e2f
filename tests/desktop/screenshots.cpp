#include <QApplication>
#include <QDir>
#include <cstdio>

#include "core/input.h"
#include "desktop/desktop_program.h"

/// Makes a picture of each screen and panel in the folder given.
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

void focusCell(test::DesktopProgram& program, BlockScreen& screen, int cell) {
    program.act([&] { input::moveFocus(screen.txtEdit(cell)); });
}

void takeBlock0(test::DesktopProgram& program, const Album& album) {
    FrmEdid& screen = program.workbench.frmEDID();
    for (const int cell : {0, 8, 18, 20, 21, 24, 25, 27, 35, 36, 37, 38, 54, 71, 72, 90, 108, 126}) {
        focusCell(program, screen, cell);
        album.take(program.window(screen), QString("frmEDID-%1").arg(cell, 3, 10, QChar('0')));
    }
}

void takeExtension(test::DesktopProgram& program, const Album& album) {
    FrmCeaExt& screen = program.workbench.frmCEA_EXT();
    for (int cell = 0; cell < BlockScreen::cellCount; ++cell) {
        focusCell(program, screen, cell);
        if (cell < 40 || cell > 120) {
            album.take(program.window(screen), QString("frmCEA_EXT-%1").arg(cell, 3, 10, QChar('0')));
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: desktop_screenshots FOLDER\n");
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const Album album(QString::fromLocal8Bit(argv[1]));
    test::DesktopProgram program;
    program.frame().window().resize(1100, 800);
    program.openSample("zarqo-z40.bin");
    takeBlock0(program, album);
    program.act([&] { input::click(program.workbench.frmMain().Command4); });
    takeExtension(program, album);
    album.take(program.frame().window(), "frmMain");
    return 0;
}
