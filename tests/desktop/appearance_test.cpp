#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QStyle>
#include <QStyleOptionFrame>
#include <cmath>

#include "desktop/desktop_test.h"
#include "desktop/drawing/colours.h"
#include "desktop/drawing/fonts.h"

namespace wb::test {
namespace {

/// Font sizes as a share of the normal one: what users with other eyes or screens set.
class Appearance : public DesktopTest, public testing::WithParamInterface<double> {
protected:
    Appearance() : normal_(QApplication::font()) {
        QFont font = normal_;
        font.setPointSizeF(font.pointSizeF() * GetParam());
        QApplication::setFont(font);
        DesktopProgram::settle();
        program.frame().window().resize(1200, 900);
    }
    ~Appearance() override { QApplication::setFont(normal_); }

    /// Whether the widget has the room that it asks for, and all of it inside its parent.
    static bool isWhole(const QWidget& widget) {
        const QSize needed = widget.minimumSizeHint();
        const bool fits = widget.width() >= needed.width() && widget.height() >= needed.height();
        return fits && widget.parentWidget()->rect().contains(widget.geometry());
    }
    static bool showsItsText(const QLabel& label) {
        const QRect inside = label.contentsRect();
        const int flags = Qt::TextExpandTabs | (label.wordWrap() ? Qt::TextWordWrap : 0);
        const QRect text = label.fontMetrics().boundingRect(QRect(0, 0, inside.width(), 100000), flags, label.text());
        return text.width() <= inside.width() && text.height() <= inside.height();
    }
    static bool showsItsText(const QLineEdit& box, int characters) {
        QStyleOptionFrame option;
        option.initFrom(&box);
        option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
        const QRect inside = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box);
        const QFontMetrics metrics(box.font());
        return metrics.horizontalAdvance(QString(characters, '0')) <= inside.width() &&
               metrics.height() <= inside.height();
    }
    void expectNothingCut(const Screen& screen) {
        for (const Control* control : screen.controls()) {
            QWidget* widget = program.widget(*control);
            if (widget == nullptr || !widget->isVisible()) {
                continue;
            }
            EXPECT_TRUE(isWhole(*widget)) << control->fullName();
            if (const auto* label = qobject_cast<QLabel*>(widget); label != nullptr && !label->text().isEmpty()) {
                EXPECT_TRUE(showsItsText(*label)) << control->fullName() << ": " << label->text().toStdString();
            }
            if (const auto* box = qobject_cast<QLineEdit*>(widget); box != nullptr && control->name() == "txtEdit") {
                EXPECT_TRUE(showsItsText(*box, 2)) << control->fullName();
            }
        }
    }
    void walk(BlockScreen& screen) {
        for (int cell = 0; cell < BlockScreen::cellCount; ++cell) {
            focus(screen.txtEdit(cell));
            expectNothingCut(screen);
            if (HasFailure()) {
                FAIL() << "at cell " << cell;
            }
        }
    }

private:
    QFont normal_;
};

TEST_P(Appearance, CutsNothingOfBlock0) {
    program.openSample("tessaramond-tp8.bin");
    program.act([&] { input::click(frame().Command2); });
    walk(edid());
    takeBoxes(); // a colour point whose panel is hidden fails to take the focus
}

TEST_P(Appearance, CutsNothingOfTheExtension) {
    program.openSample("zarqo-z40.bin");
    program.act([&] { input::click(frame().Command4); });
    walk(cea());
    takeBoxes(); // cells 126 and 127 have two each
}

TEST_P(Appearance, CutsNothingOfTheOtherScreens) {
    program.newImage();
    program.act([&] { input::choose(frame().HexCalculator); });
    expectNothingCut(program.workbench.frmHexCalculator());
    expectNothingCut(frame());
    for (Control* entry : {static_cast<Control*>(&frame().Info), static_cast<Control*>(&frame().mnuHelpAbout),
                           static_cast<Control*>(&frame().Windows2000)}) {
        program.act([&] { input::choose(*entry); });
        Screen& screen = *program.workbench.windows.modal();
        expectNothingCut(screen);
        program.act([&] { input::close(screen); });
    }
}

TEST_P(Appearance, GivesThePanelsOneRectangleBesideTheGrid) {
    program.openSample("tessaramond-tp8.bin");
    walk(edid()); // the rectangle grows with what it has to show
    const QRect rectangle = program.widget(edid().Hints(13))->geometry();
    for (const int cell : {0, 8, 18, 20, 25, 35, 36, 37, 38, 54, 71, 72, 90, 126}) {
        focus(edid().txtEdit(cell));
        for (int panel = 0; panel < edid().panelCount(); ++panel) {
            if (edid().Hints(panel).visible()) {
                EXPECT_EQ(program.widget(edid().Hints(panel))->geometry(), rectangle) << panel;
            }
        }
    }
    const QWidget& lastColumn = *program.widget(edid().txtEdit(9));
    EXPECT_LT(lastColumn.mapTo(&program.window(edid()), QPoint(lastColumn.width(), 0)).x(),
              program.widget(edid().Hints(0))->mapTo(&program.window(edid()), QPoint(0, 0)).x());
    takeBoxes();
}

TEST_P(Appearance, LeavesAChildItsSize) {
    program.openSample("tessaramond-tp8.bin"); // with the widest sync pulses of the samples
    const QSize size = program.window(edid()).size();
    for (const int cell : {0, 8, 20, 24, 25, 35, 38, 54, 62, 66, 71, 72, 90, 126}) {
        focus(edid().txtEdit(cell));
        EXPECT_EQ(program.window(edid()).size(), size) << "at cell " << cell;
    }
    takeBoxes();
}

TEST_P(Appearance, PutsTheHeadingsOfTheBasicPanelOverWhatTheyName) {
    program.openSample("tessaramond-tp8.bin");
    const auto top = [&](const Control& control) { return program.widget(control)->y(); };
    focus(edid().txtEdit(20));
    EXPECT_LT(top(edid().lbBasic(0)), top(edid().VideoInput));
    EXPECT_GT(top(edid().lbBasic(1)), top(edid().VideoInput));
    focus(edid().txtEdit(21));
    EXPECT_GT(top(edid().lbBasic(1)), top(edid().BasicInput));
    focus(edid().txtEdit(24));
    EXPECT_GT(top(edid().lbBasic(1)), top(edid().lbBasic(0)));
    EXPECT_GT(top(edid().DPMS), top(edid().lbBasic(1)));
    expectNothingCut(edid());
    takeBoxes();
}

INSTANTIATE_TEST_SUITE_P(Fonts, Appearance, testing::Values(1.0, 1.5, 2.0));

TEST(Faces, OfReportAndCellsHaveAFixedPitch) {
    // By the widths themselves: a face may be none by the mark in its file, because of signs of no width that it has
    // besides.
    const QFontMetricsF metrics(desktop::fixedPitchFont());
    constexpr int firstPrinting = 0x20;
    constexpr int lastPrinting = 0x7E;
    for (char c = firstPrinting; c <= lastPrinting; ++c) {
        EXPECT_EQ(metrics.horizontalAdvance(QChar(c)), metrics.horizontalAdvance(QChar('0'))) << c;
    }
    constexpr int firstOfLatin1 = 0xA1;
    constexpr int softHyphen = 0xAD; // shows at the end of a line only
    constexpr int lastOfLatin1 = 0xFF;
    for (int c = firstOfLatin1; c <= lastOfLatin1; ++c) {
        if (c != softHyphen) {
            EXPECT_EQ(metrics.horizontalAdvance(QChar(c)), metrics.horizontalAdvance(QChar('0'))) << c;
        }
    }
}

double luminance(const QColor& colour) {
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// Contrast as the Web Content Accessibility Guidelines 2.1 count it, 1 to 21.
double contrast(const QColor& first, const QColor& second) {
    const double a = luminance(first) + 0.05;
    const double b = luminance(second) + 0.05;
    return a > b ? a / b : b / a;
}

QPalette darkPalette() {
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x19, 0x19, 0x19));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    return palette;
}

TEST(Colours, OfCellsAreReadableOnLightAndDark) {
    constexpr double readable = 4.5;
    for (const QPalette& palette : {QPalette(QColor(0xEF, 0xEF, 0xEF)), darkPalette()}) {
        for (const CellColour colour : {CellColour::Window, CellColour::Group, CellColour::Field}) {
            const desktop::CellColours cell = desktop::cellColours(colour, palette);
            EXPECT_GT(contrast(cell.background, cell.text), readable);
        }
        EXPECT_EQ(desktop::cellColours(CellColour::Window, palette).background, palette.color(QPalette::Base));
    }
}

TEST(Colours, OfTheHighlightsAreFixedAndCarryDarkText) {
    EXPECT_EQ(desktop::cellColours(CellColour::Group, darkPalette()).background, QColor(0xFF, 0xC0, 0xC0));
    EXPECT_EQ(desktop::cellColours(CellColour::Field, darkPalette()).background, QColor(0xFF, 0xFF, 0x80));
    EXPECT_LT(luminance(desktop::cellColours(CellColour::Field, darkPalette()).text), 0.1);
    EXPECT_EQ(desktop::cellColours(CellColour::Window, QPalette(Qt::white)).text, QColor(0x00, 0x00, 0xC0));
}

TEST(Colours, OfDisabledTextsAreReadable) {
    for (const QPalette& base : {QPalette(QColor(0xEF, 0xEF, 0xEF)), darkPalette()}) {
        const QPalette palette = desktop::withReadableDisabledText(base);
        EXPECT_GT(contrast(palette.color(QPalette::Disabled, QPalette::WindowText),
                           palette.color(QPalette::Active, QPalette::Window)),
                  4.5);
    }
}

TEST(Colours, OfTheCellsFollowTheModelAndThePalette) {
    DesktopProgram program;
    program.newImage();
    FrmEdid& screen = program.workbench.frmEDID();
    program.act([&] { input::moveFocus(screen.txtEdit(21)); });
    const auto base = [&](int cell) { return program.widget(screen.txtEdit(cell))->palette().color(QPalette::Base); };
    EXPECT_EQ(base(21), QColor(0xFF, 0xFF, 0x80));
    EXPECT_EQ(base(20), QColor(0xFF, 0xC0, 0xC0));
    EXPECT_EQ(base(19), QApplication::palette().color(QPalette::Base));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(darkPalette());
    DesktopProgram::settle();
    EXPECT_EQ(base(19), QColor(0x19, 0x19, 0x19));
    EXPECT_EQ(base(21), QColor(0xFF, 0xFF, 0x80));
    program.act([&] { input::moveFocus(screen.txtEdit(54)); });
    EXPECT_EQ(base(21), QColor(0x19, 0x19, 0x19)) << "a cell that has had another colour";
    QApplication::setPalette(before);
    DesktopProgram::settle();
    EXPECT_EQ(base(19), before.color(QPalette::Base));
    EXPECT_EQ(base(21), before.color(QPalette::Base));
}

} // namespace
} // namespace wb::test
