#include <QPlainTextEdit>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

class ReportWindow : public DesktopTest {
protected:
    ReportWindow() {
        program.openSample("brindleco-b24w.bin");
        click(frame().Command1);
    }
};

TEST_F(ReportWindow, SetsTheReportOnce) {
    auto& report = program.widgetAs<QPlainTextEdit>(program.workbench.frmDocument().rtftext);
    int changes = 0;
    QObject::connect(&report, &QPlainTextEdit::textChanged, &report, [&] { ++changes; });
    program.act([&] { program.workbench.frmDocument().rtftext.setText("a\r\nb"); });
    program.act([&] { edid().txtBrand.setText("x"); });
    EXPECT_EQ(changes, 0) << "signals are off while the report is set";
    EXPECT_EQ(report.toPlainText(), "a\nb");
    EXPECT_TRUE(report.isReadOnly());
}

TEST_F(ReportWindow, PlacesTheReportWhereTheModelSays) {
    const FrmDocument& document = program.workbench.frmDocument();
    EXPECT_GT(document.innerWidth, 200);
    EXPECT_EQ(document.rtftext.bounds().left, 100);
    EXPECT_EQ(document.rtftext.bounds().width, document.innerWidth - 200);
    const QWidget& report = *program.widget(document.rtftext);
    EXPECT_EQ(report.x(), 7); // 100 twips at 96 dots an inch are 6.67 pixels
    EXPECT_NEAR(report.width(), report.parentWidget()->width() - 13, 1);
}

TEST_F(ReportWindow, TellsTheModelTheSelection) {
    program.act([&] { program.workbench.frmDocument().rtftext.setText("ab\r\ncd"); });
    auto& report = program.widgetAs<QPlainTextEdit>(program.workbench.frmDocument().rtftext);
    QTextCursor cursor = report.textCursor();
    cursor.setPosition(1);
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    report.setTextCursor(cursor);
    EXPECT_EQ(program.workbench.frmDocument().rtftext.selStart(), 1);
    EXPECT_EQ(program.workbench.frmDocument().rtftext.selLength(), 4); // b, the line end, c
}

} // namespace
} // namespace wb::test
