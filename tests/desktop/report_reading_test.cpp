#include <QClipboard>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>

#include "desktop/desktop_test.h"
#include "desktop/windows/report_places.h"

namespace wb::test {
namespace {

/// What helps to read a report.
class ReportReading : public DesktopTest {
protected:
    ReportReading() {
        program.openSample("zarqo-z40.bin");
        click(frame().Command1);
    }
    Control& document() { return program.workbench.frmDocument().rtftext; }
    QPlainTextEdit& report() { return program.widgetAs<QPlainTextEdit>(document()); }

    /// The first line from `from` on that begins so.
    QTextBlock line(const QString& start, const QString& from = {}) {
        QTextBlock block = report().document()->begin();
        while (block.isValid() && !block.text().startsWith(from)) {
            block = block.next();
        }
        while (block.isValid() && !block.text().startsWith(start)) {
            block = block.next();
        }
        return block;
    }
    /// Scrolls to the character and clicks on its middle.
    void clickOn(const QTextBlock& block, int column) {
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + column);
        report().setTextCursor(cursor);
        report().centerCursor();
        const QRect left = report().cursorRect(cursor);
        cursor.movePosition(QTextCursor::NextCharacter);
        const QRect right = report().cursorRect(cursor);
        QTest::mouseClick(report().viewport(), Qt::LeftButton, Qt::NoModifier,
                          {(left.left() + right.left()) / 2, left.center().y()});
        DesktopProgram::settle();
    }
    void turnWheel(int delta, Qt::KeyboardModifiers modifiers) {
        const QPointF place = report().viewport()->rect().center();
        QWheelEvent event(place, report().viewport()->mapToGlobal(place), {}, {0, delta}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(report().viewport(), &event);
        DesktopProgram::settle();
    }
    static bool isBold(const QTextBlock& block) {
        const auto formats = block.layout()->formats();
        return !formats.isEmpty() && formats.front().format.fontWeight() == QFont::Bold;
    }
    static QColor colourOf(const QTextBlock& block) {
        const auto formats = block.layout()->formats();
        return formats.isEmpty() ? QColor() : formats.front().format.foreground().color();
    }
};

TEST_F(ReportReading, AClickOnAByteOfADumpGoesToItsCell) {
    clickOn(line("20   |"), 6 + 4 * 3); // "80  59  32  78": the fourth of its row
    EXPECT_EQ(focused(), "frmEDID.txtEdit(23)");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(23)");
    clickOn(line("120  |"), 6 + 4 * 7 + 1);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(127)");
    clickOn(line("0    |"), 6);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(ReportReading, ThatOfTheExtensionOpensItsScreen) {
    ASSERT_EQ(program.workbench.CEAScreenOpen, flagFalse);
    clickOn(line("10   |", "EDID Block 1"), 6 + 4 * 2);
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(12)");
    EXPECT_EQ(program.workbench.windows.activeChild()->name(), "frmCEA_EXT");
}

TEST_F(ReportReading, AClickBesideTheBytesOnlyPlacesTheCursor) {
    clickOn(line("20   |"), 6 + 2); // between two of them
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    clickOn(line("20   |"), 0);
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    clickOn(line("(08-09)"), 6);
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(report().textCursor().block().text().left(7), "(08-09)");
}

TEST_F(ReportReading, DraggingOverBytesSelectsThem) {
    const QTextBlock row = line("20   |");
    QTextCursor cursor(row);
    cursor.setPosition(row.position() + 6);
    report().setTextCursor(cursor);
    report().centerCursor();
    const QPoint from = report().cursorRect(cursor).center();
    cursor.setPosition(row.position() + 16);
    const QPoint to = report().cursorRect(cursor).center();
    QTest::mousePress(report().viewport(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(report().viewport(), to);
    QMouseEvent move(QEvent::MouseMove, to, report().viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(report().viewport(), &move);
    QTest::mouseRelease(report().viewport(), Qt::LeftButton, Qt::NoModifier, to);
    DesktopProgram::settle();
    EXPECT_EQ(report().textCursor().selectedText(), "80  59  32");
    EXPECT_EQ(focused(), "frmDocument.rtftext");
}

TEST_F(ReportReading, TheKeyGoesFromTheByteAtTheCursor) {
    focus(document());
    QTextCursor cursor(line("30   |"));
    cursor.setPosition(cursor.position() + 6 + 4);
    report().setTextCursor(cursor);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(31)");
}

TEST_F(ReportReading, LongTextsOfCellsPushTheirRowAndKeepTheirPlaces) {
    QTextDocument text;
    text.setPlainText(
        "20   |80  59  LONGER78  0A  EE  91  A3  54  4C  \n"
        "30   |80  59  LONGER  78  0A  EE  91  A3  54  4C  \n"
        "120  |00  01  02  03  04  05  06  07  \n"
        "130  |00  ");
    const QTextBlock run = text.findBlockByNumber(0); // two cells that stand together cannot be told apart
    EXPECT_EQ(desktop::byteInReport(run, 6), std::nullopt);
    const QTextBlock apart = text.findBlockByNumber(1);
    EXPECT_EQ(desktop::byteInReport(apart, 6), 30);
    EXPECT_EQ(desktop::byteInReport(apart, 14), 32);
    EXPECT_EQ(desktop::byteInReport(apart, 19), 32);
    EXPECT_EQ(desktop::byteInReport(apart, 20), std::nullopt);
    EXPECT_EQ(desktop::byteInReport(apart, 22), 33);
    EXPECT_EQ(desktop::byteInReport(text.findBlockByNumber(2), 6 + 4 * 7), 127);
    EXPECT_EQ(desktop::byteInReport(text.findBlockByNumber(3), 6), std::nullopt) << "no row of a dump";
}

TEST_F(ReportReading, ZoomsByKeysAndWheelAndLeavesTheTextAlone) {
    focus(document());
    const qreal usual = report().font().pointSizeF();
    const QString text = report().toPlainText();
    const QSize window = program.window(program.workbench.frmDocument()).size();
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(report().font().pointSizeF(), usual * 1.1, 0.01);
    press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_NEAR(report().font().pointSizeF(), usual * 1.21, 0.01);
    press(Qt::Key_Minus, Qt::ControlModifier);
    press(Qt::Key_Minus, Qt::ControlModifier);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(report().font().pointSizeF(), usual / 1.1, 0.01);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(report().font().pointSizeF(), usual);
    turnWheel(120, Qt::ControlModifier);
    EXPECT_NEAR(report().font().pointSizeF(), usual * 1.1, 0.01);
    turnWheel(-60, Qt::ControlModifier);
    EXPECT_NEAR(report().font().pointSizeF(), usual * 1.1, 0.01) << "half a notch";
    turnWheel(-60, Qt::ControlModifier);
    EXPECT_EQ(report().font().pointSizeF(), usual);
    turnWheel(-120, Qt::NoModifier);
    EXPECT_EQ(report().font().pointSizeF(), usual) << "which scrolls";
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(report().toPlainText(), text);
    EXPECT_EQ(program.window(program.workbench.frmDocument()).size(), window);
}

TEST_F(ReportReading, ZoomsWhileTheSearchHasTheFocus) {
    const qreal usual = report().font().pointSizeF();
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(report().font().pointSizeF(), usual);
}

TEST_F(ReportReading, HeadsStandOutAndTheTextIsTheSame) {
    for (const char* head : {"                        HALVORINE", "                     Vantrel For", "EDID Block 0",
                             "128 BYTES", "(25-34)  CHROMA INFO:", "(54-71)", "                  1920x1080  Pixel",
                             "Horizontal:", "EDID Block 1", "Block Type: CEA", "(4)Video Data Block"}) {
        ASSERT_TRUE(line(head).isValid()) << head;
        EXPECT_TRUE(isBold(line(head))) << head;
    }
    for (const char* other :
         {"0    |", "(08-09)", "         Preferred Timing Mode", "(5) ", "                        Date"}) {
        ASSERT_TRUE(line(other).isValid()) << other;
        EXPECT_FALSE(isBold(line(other))) << other;
    }
    report().selectAll();
    report().copy();
    QString shown = QApplication::clipboard()->text();
    QString expected = QString::fromLatin1(document().text().data(), static_cast<qsizetype>(document().text().size()));
    EXPECT_EQ(shown.remove('\r'), expected.remove('\r'));
    const QString html = QApplication::clipboard()->mimeData()->html();
    EXPECT_TRUE(html.contains("CHROMA INFO:"));
    EXPECT_FALSE(html.contains("color:") || html.contains("font-weight:7") || html.contains("font-weight:6"));
}

TEST_F(ReportReading, HeadsAreReadableOnBothPalettes) {
    const auto contrast = [&](const QColor& ground) {
        return std::abs(colourOf(line("Horizontal:")).lightnessF() - ground.lightnessF());
    };
    EXPECT_GT(contrast(Qt::white), 0.5);
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(0x1B, 0x1B, 0x1B));
    dark.setColor(QPalette::Window, QColor(0x2B, 0x2B, 0x2B));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    DesktopProgram::settle();
    EXPECT_GT(contrast(dark.color(QPalette::Base)), 0.5);
    QApplication::setPalette(before);
    DesktopProgram::settle();
}

} // namespace
} // namespace wb::test
