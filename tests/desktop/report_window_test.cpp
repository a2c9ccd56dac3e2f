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
    int told = 0;
    int insertions = 0;
    QObject::connect(&report, &QPlainTextEdit::textChanged, &report, [&] { ++told; });
    QObject::connect(report.document(), &QTextDocument::contentsChange, &report,
                     [&](int, int, int added) { insertions += added > 0 ? 1 : 0; });
    program.act([&] {
        Control& model = program.workbench.frmDocument().rtftext;
        model.setText("a");
        model.setText("a\r\nb");
    });
    EXPECT_EQ(insertions, 1) << "not entry by entry";
    program.act(
        [&] { program.workbench.frmDocument().rtftext.setBounds({.left = 1, .top = 1, .width = 999, .height = 999}); });
    EXPECT_EQ(insertions, 1) << "a change of its place leaves the text alone";
    EXPECT_EQ(told, 0) << "signals are off while the report is set";
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
