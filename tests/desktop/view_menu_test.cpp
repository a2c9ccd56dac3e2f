#include <QDockWidget>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>
#include <cmath>
#include <stdexcept>

#include "desktop/desktop_test.h"
#include "desktop/drawing/palettes.h"

namespace wb::test {
namespace {

class ViewMenuTest : public DesktopTest {
protected:
    QMainWindow& window() { return program.frame().window(); }
    static QMenu& menuOf(const DesktopProgram& shown) {
        for (QAction* entry : shown.frame().window().menuBar()->actions()) {
            if (entry->text() == "V&iew") {
                return *entry->menu();
            }
        }
        throw std::logic_error("there is no View menu");
    }
    static QAction& entry(const DesktopProgram& shown, const QString& text) {
        for (QAction* action : menuOf(shown).actions()) {
            if (action->text() == text) {
                return *action;
            }
        }
        throw std::logic_error("there is no entry " + text.toStdString());
    }
    void choose(const QString& text) {
        entry(program, text).trigger();
        DesktopProgram::settle();
    }
    std::string panel() { return window().findChild<QLabel*>("bytePanel")->accessibleName().toStdString(); }
    void reset() {
        choose("Zoom to &100 %");
        choose("Colours of the &System");
    }
};

TEST_F(ViewMenuTest, HasDocksZoomAndColours) {
    QStringList texts;
    for (const QAction* action : menuOf(program).actions()) {
        texts += action->isSeparator() ? "-" : action->text();
    }
    EXPECT_EQ(texts, QStringList({"&Fields", "Fi&ndings", "-", "Find Fiel&d", "N&ext Finding", "&Previous Finding", "-",
                                  "Zoom &In", "Zoom &Out", "Zoom to &100 %", "-", "Colours of the &System", "&Light",
                                  "Dar&k"}));
    EXPECT_TRUE(entry(program, "&Fields").isCheckable());
    EXPECT_FALSE(entry(program, "&Fields").isChecked());
    choose("&Fields");
    EXPECT_TRUE(entry(program, "&Fields").isChecked());
}

TEST_F(ViewMenuTest, ZoomsAllOfTheFrame) {
    program.openSample("zarqo-z40.bin");
    choose("&Fields");
    const QFont normal = QApplication::font();
    const QWidget& cell = *program.widget(edid().txtEdit(0));
    const int cellWidth = cell.width();
    const int icon = window().iconSize().width();
    for (int i = 0; i < 4; ++i) { // 110, 125, 150, 175
        press(Qt::Key_Plus, Qt::ControlModifier, "+");
    }
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), normal.pointSizeF() * 1.75);
    EXPECT_DOUBLE_EQ(window().findChild<QDockWidget*>("dockFields")->font().pointSizeF(), normal.pointSizeF() * 1.75);
    EXPECT_GT(cell.width(), cellWidth * 3 / 2);
    EXPECT_EQ(window().iconSize().width(), std::lround(icon * 1.75));
    EXPECT_EQ(program.platform.settings["MainZoom"], "175");
    press(Qt::Key_Minus, Qt::ControlModifier, "-");
    EXPECT_EQ(program.platform.settings["MainZoom"], "150");
    press(Qt::Key_0, Qt::ControlModifier, "0");
    EXPECT_EQ(QApplication::font(), normal);
    EXPECT_EQ(cell.width(), cellWidth);
    EXPECT_EQ(edid().txtEdit(0).text(), "00");
}

TEST_F(ViewMenuTest, EndsTheZoomAtItsLimits) {
    choose("Zoom to &100 %");
    EXPECT_EQ(program.platform.settings.count("MainZoom"), 0U) << "which it has already";
    for (int i = 0; i < 20; ++i) {
        choose("Zoom &In");
    }
    EXPECT_EQ(program.platform.settings["MainZoom"], "250");
    EXPECT_FALSE(entry(program, "Zoom &In").isEnabled());
    for (int i = 0; i < 20; ++i) {
        choose("Zoom &Out");
    }
    EXPECT_EQ(program.platform.settings["MainZoom"], "50");
    EXPECT_FALSE(entry(program, "Zoom &Out").isEnabled());
    reset();
    EXPECT_FALSE(entry(program, "Zoom to &100 %").isEnabled());
}

TEST_F(ViewMenuTest, RemembersTheZoom) {
    const double normal = QApplication::font().pointSizeF();
    const QSize size = window().size();
    {
        DesktopProgram next(false);
        next.platform.settings["MainZoom"] = "125";
        next.start();
        EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), normal * 1.25);
        EXPECT_EQ(next.frame().window().size(), size) << "the window is as large as the user has left it";
    }
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), normal);
    DesktopProgram odd(false);
    odd.platform.settings["MainZoom"] = "1000";
    odd.start();
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), normal) << "no step of the zoom";
}

TEST_F(ViewMenuTest, IsLightOrDarkOrAsTheSystemSays) {
    const QPalette system = QApplication::palette();
    choose("Dar&k");
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), desktop::darkPalette().color(QPalette::Base));
    EXPECT_EQ(window().palette().color(QPalette::Window), desktop::darkPalette().color(QPalette::Window));
    EXPECT_LT(program.frame().area().background().color().lightness(), 64) << "behind the child windows too";
    EXPECT_EQ(program.platform.settings["MainColours"], "dark");
    choose("&Light");
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(program.platform.settings["MainColours"], "light");
    choose("Colours of the &System");
    EXPECT_EQ(QApplication::palette(), system);
    EXPECT_EQ(program.platform.settings["MainColours"], "system");
}

TEST_F(ViewMenuTest, RemembersTheColours) {
    const QPalette system = QApplication::palette();
    {
        DesktopProgram next(false);
        next.platform.settings["MainColours"] = "dark";
        next.start();
        EXPECT_EQ(QApplication::palette().color(QPalette::Base), desktop::darkPalette().color(QPalette::Base));
        EXPECT_TRUE(entry(next, "Dar&k").isChecked());
    }
    EXPECT_EQ(QApplication::palette(), system);
    EXPECT_EQ(program.platform.settings.count("MainColours"), 0U);
}

TEST_F(ViewMenuTest, TellsOfTheByteInFocus) {
    EXPECT_EQ(panel(), "");
    program.openSample("zarqo-z40.bin");
    focus(edid().txtEdit(54));
    EXPECT_EQ(panel(), "Byte 54 (36h): 02h, 2, 0000 0010 \u2014 Pixel clock: 148.50 MHz");
    type("00");
    EXPECT_EQ(panel(), "Byte 54 (36h): 00h, 0, 0000 0000 \u2014 Pixel clock: 148.48 MHz");
    focus(edid().txtEdit(71)); // 1Eh: bit 7, 6:5 with 0, 4:3, 2, 1
    EXPECT_EQ(panel(), "Byte 71 (47h): 1Eh, 30, 0001 1110 \u2014 Interlaced: no; Stereo viewing: none and 3 more");
    focus(frame().Command1);
    EXPECT_EQ(panel().substr(0, 13), "Byte 71 (47h)") << "the cell that had the focus last";
    program.act([&] { input::click(frame().Command4); });
    EXPECT_EQ(panel(), "Byte 1 (01h) of block 1: 03h, 3, 0000 0011 \u2014 Revision: 3 (CEA-861-B on)");
    program.workbench.EDIDModified = flagFalse;
    program.act([&] { input::close(edid()); });
    EXPECT_EQ(panel(), "");
}

TEST_F(ViewMenuTest, CutsWhatHasNoRoomInTheStatusBar) {
    program.openSample("zarqo-z40.bin");
    focus(edid().txtEdit(71));
    auto* label = window().findChild<QLabel*>("bytePanel");
    window().resize(500, 433);
    DesktopProgram::settle();
    EXPECT_TRUE(label->text().endsWith(QChar(0x2026))) << label->text().toStdString();
    EXPECT_TRUE(label->toolTip().contains("Stereo viewing"));
    EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width());
    EXPECT_EQ(window().width(), 500);
}

} // namespace
} // namespace wb::test
