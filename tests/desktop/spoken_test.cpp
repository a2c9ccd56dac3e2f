#include <QAccessible>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

/// What a screen reader is told.
class Spoken : public DesktopTest {
protected:
    QAccessible::Role role(const Control& control) {
        return QAccessible::queryAccessibleInterface(program.widget(control))->role();
    }
    std::string name(const Control& control) { return said(control, QAccessible::Name); }
    std::string description(const Control& control) { return said(control, QAccessible::Description); }
    std::string said(const Control& control, QAccessible::Text what) {
        return QAccessible::queryAccessibleInterface(program.widget(control))->text(what).toStdString();
    }

    /// No control is told by its own name.
    void expectWords(Screen& screen) {
        for (const Control* control : screen.controls()) {
            const QWidget* widget = program.widget(*control);
            if (widget == nullptr) {
                continue;
            }
            const std::string spoken = widget->accessibleName().toStdString();
            if (control->caption().empty() && control->name() != "Display") { // a word of the user's as well
                EXPECT_NE(spoken, control->name()) << control->fullName();
            }
        }
    }
};

TEST_F(Spoken, OptionsAreRadioButtonsAndChecksAreNot) {
    program.openSample("zarqo-z40.bin");
    program.act([&] { input::choose(frame().HexCalculator); });
    EXPECT_EQ(role(edid().DT(0)), QAccessible::RadioButton);
    EXPECT_EQ(role(edid().STAOptb(3)), QAccessible::RadioButton);
    EXPECT_EQ(role(program.workbench.frmHexCalculator().Option1(0)), QAccessible::RadioButton);
    EXPECT_EQ(role(edid().ET1(0)), QAccessible::CheckBox);
    EXPECT_EQ(role(frame().Command1), QAccessible::Button);
}

TEST_F(Spoken, NamesAreWordsOfTheUser) {
    program.openSample("zarqo-z40.bin");
    program.act([&] { input::click(frame().Command4); });
    program.act([&] { input::choose(frame().HexCalculator); });
    program.act([&] { input::click(frame().Command1); });
    for (Screen* screen : program.workbench.loadedInOrder()) {
        expectWords(*screen);
    }
    for (Control* entry : {&frame().Info, &frame().mnuHelpAbout, &frame().Windows2000}) {
        program.act([&] { input::choose(*entry); });
        Screen& screen = *program.workbench.windows.modal();
        expectWords(screen);
        program.act([&] { input::close(screen); });
    }
    EXPECT_EQ(name(edid().Frame1), "Aspect ratio");
    EXPECT_EQ(name(edid().frmS_GTF(0)), "Secondary GTF");
    EXPECT_EQ(name(edid().Label6), "") << "an empty label has nothing to say";
}

TEST_F(Spoken, ACaptionGoesBeforeThePlacesName) {
    EXPECT_EQ(name(frame().Command1), "Translate EDID");
    EXPECT_EQ(description(frame().Command1), "Shows the report of the open image");
}

TEST_F(Spoken, CellsTellByteFieldAndValue) {
    program.openSample("zarqo-z40.bin");
    program.act([&] { input::click(frame().Command4); });
    // 02 3A 80 18 71: 3A02h are 14850 steps of 10 kHz, 780h pixels and 118h of blanking.
    EXPECT_EQ(name(edid().txtEdit(54)), "Byte 54, Pixel clock");
    EXPECT_EQ(description(edid().txtEdit(54)), "148.50 MHz; 02h, 2, 0000 0010");
    EXPECT_EQ(said(edid().txtEdit(54), QAccessible::Value), "02");
    EXPECT_EQ(name(edid().txtEdit(58)), "Byte 58, Horizontal active, Horizontal blanking");
    EXPECT_EQ(description(edid().txtEdit(58)), "1920 px, 280 px; 71h, 113, 0111 0001");
    EXPECT_EQ(name(edid().txtEdit(127)), "Byte 127, Check sum");
    EXPECT_EQ(name(cea().txtEdit(5)).substr(0, 8), "Byte 5, ");
}

TEST_F(Spoken, ToolTipsOfCellsTellTheSame) {
    program.openSample("zarqo-z40.bin");
    program.act([&] { input::click(frame().Command4); });
    EXPECT_EQ(program.widget(edid().txtEdit(54))->toolTip().toStdString(),
              "Byte 54 (36h): 02h, 2, 0000 0010 \u2014 Pixel clock: 148.50 MHz");
    EXPECT_EQ(program.widget(cea().txtEdit(2))->toolTip().toStdString(),
              "Byte 2 (02h) of block 1: 1Dh, 29, 0001 1101 \u2014 Offset of the first detailed timing: 29");
    focus(edid().txtEdit(55)); // which refreshes the cell that had the focus
    EXPECT_EQ(program.widget(edid().txtEdit(0))->toolTip().toStdString().substr(0, 32),
              "Byte 0 (00h): 00h, 0, 0000 0000 ");
}

TEST_F(Spoken, ACellWithoutAByteSaysSo) {
    program.openSample("zarqo-z40.bin");
    focus(edid().txtEdit(54));
    type("2");
    EXPECT_EQ(program.widget(edid().txtEdit(54))->toolTip().section(" \u2014 ", 0, 0).toStdString(),
              "Byte 54 (36h): \"2\", which is no byte");
    type("G");
    EXPECT_EQ(program.widget(edid().txtEdit(54))->toolTip().section(" \u2014 ", 0, 0).toStdString(),
              "Byte 54 (36h): \"2G\", which is no byte");
    EXPECT_EQ(program.widget(edid().txtEdit(53))->toolTip().section(" \u2014 ", 0, 0).toStdString(),
              "Byte 53 (35h): 01h, 1, 0000 0001");
}

TEST_F(Spoken, CellsTellOfWhatTheyHoldNow) {
    program.openSample("zarqo-z40.bin"); // which leaves Modify EDID on
    focus(edid().txtEdit(54));
    type("00");
    EXPECT_EQ(description(edid().txtEdit(54)), "148.48 MHz; 00h, 0, 0000 0000");
    EXPECT_EQ(description(edid().txtEdit(55)), "148.48 MHz; 3Ah, 58, 0011 1010");
    program.newImage();
    EXPECT_EQ(name(edid().txtEdit(127)), "Byte 127, Check sum");
}

} // namespace
} // namespace wb::test
