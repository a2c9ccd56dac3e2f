#include "desktop/tools/findings_dock.h"

#include <stdexcept>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

fields::Finding finding(fields::Severity severity, std::size_t byte) {
    return {.severity = severity, .code = "code", .block = 0, .byte = byte, .clause = "clause"};
}

TEST(FindingsText, CountsErrorsAndWarnings) {
    using enum fields::Severity;
    EXPECT_EQ(desktop::countText({}), "no findings");
    EXPECT_EQ(desktop::countText({finding(Error, 1), finding(Note, 2), finding(Error, 3), finding(Warning, 4)}),
              "2 errors, 1 warning");
    EXPECT_EQ(desktop::countText({finding(Error, 1)}), "1 error");
    EXPECT_EQ(desktop::countText({finding(Warning, 1), finding(Warning, 1)}), "2 warnings");
    EXPECT_EQ(desktop::countText({finding(Note, 1), finding(Note, 2)}), "2 notes");
}

TEST(FindingsText, PutsTheGravestFirst) {
    using enum fields::Severity;
    const auto sorted =
        desktop::gravestFirst({finding(Note, 1), finding(Error, 9), finding(Warning, 3), finding(Error, 12)});
    std::vector<std::size_t> bytes;
    for (const fields::Finding& found : sorted) {
        bytes.push_back(found.byte);
    }
    EXPECT_EQ(bytes, std::vector<std::size_t>({9, 12, 3, 1}));
}

class Findings : public DesktopTest {
protected:
    QMainWindow& window() { return program.frame().window(); }
    QDockWidget& dock() { return *window().findChild<QDockWidget*>("dockFindings"); }
    QListWidget& list() { return *dock().findChild<QListWidget*>(); }
    QToolButton& count() {
        for (auto* button : window().findChildren<QToolButton*>()) {
            if (button->accessibleName().startsWith("Findings: ")) {
                return *button;
            }
        }
        throw std::logic_error("the status bar counts no findings");
    }
    std::string line(int row) { return list().item(row)->text().toStdString(); }
    void clickLine(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier,
                          list().visualItemRect(list().item(row)).center());
        DesktopProgram::settle();
    }
};

TEST_F(Findings, AreCountedInTheStatusBar) {
    program.openSample("halvorine-hv19.bin"); // whose bit for the preferred timing is not set
    EXPECT_TRUE(count().isVisible());
    EXPECT_EQ(count().text(), "1 warning");
    program.act([&] { edid().txtEdit(127).setText("00"); }); // and whose sum is wrong now
    EXPECT_EQ(count().text(), "1 error, 1 warning");
    program.act([&] { edid().txtEdit(127).setText("0"); });
    EXPECT_EQ(count().text(), "a cell holds no byte");
    program.workbench.EDIDModified = flagFalse;
    program.act([&] { input::close(edid()); });
    EXPECT_FALSE(count().isVisible());
}

TEST_F(Findings, OpenAtAClickOnTheirCount) {
    program.openSample("halvorine-hv19.bin");
    focus(edid().txtEdit(3));
    EXPECT_TRUE(dock().isHidden());
    QTest::mouseClick(&count(), Qt::LeftButton);
    DesktopProgram::settle();
    EXPECT_TRUE(dock().isVisible());
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(3)");
    ASSERT_EQ(list().count(), 1);
    EXPECT_EQ(line(0).substr(0, 60), "Warning: Byte 24 (18h). The bit that declares the first deta");
}

TEST_F(Findings, LeadToTheirPlaces) {
    program.openSample("norvixan-nx3d.bin");
    press(Qt::Key_F8);
    ASSERT_EQ(list().count(), 4); // three warnings, and a note about byte 25
    EXPECT_EQ(line(3).substr(0, 19), "Note: Byte 25 (19h)") << "behind what is graver";
    clickLine(1);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(66)");
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(66)");
}

TEST_F(Findings, LeadIntoTheExtension) {
    program.openSample("zarqo-z40.bin");
    press(Qt::Key_F8);
    ASSERT_EQ(list().count(), 1);
    EXPECT_EQ(line(0).substr(0, 34), "Warning: Byte 28 (1Ch) of block 1.");
    clickLine(0);
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(28)");
}

TEST_F(Findings, AreStoppedAtByKeys) {
    program.openSample("norvixan-nx3d.bin");
    focus(edid().txtEdit(60));
    press(Qt::Key_F9);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(66)");
    press(Qt::Key_F9);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(84)");
    press(Qt::Key_F9);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(25)") << "from the last one on to the first";
    press(Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(84)");
    press(Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(66)");
}

TEST_F(Findings, FollowWhatTheCellsHold) {
    program.openSample("norvixan-nx3d.bin");
    press(Qt::Key_F8);
    program.act([&] { edid().txtEdit(127).setText("00"); });
    ASSERT_EQ(list().count(), 5);
    EXPECT_EQ(line(0).substr(0, 5), "Error");
    EXPECT_EQ(line(1).substr(0, 22), "Warning: Byte 54 (36h)");
    clickLine(0);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(127)");
}

} // namespace
} // namespace wb::test
