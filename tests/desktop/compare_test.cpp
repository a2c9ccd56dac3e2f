#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

#include "core/base/text.h"
#include "desktop/desktop_test.h"
#include "desktop/shown_tip.h"
#include "desktop/tools/compare_window.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

/// The open image beside that of a file.
class Compare : public DesktopTest {
protected:
    static std::string sample() { return TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.bin"); }
    static std::string inHex(const std::string& bytes) {
        std::string text;
        for (const char byte : bytes) {
            text += ByteToHex2(static_cast<unsigned char>(byte));
            text += ' ';
        }
        return text;
    }
    QAction& entry() { return *program.frame().window().findChild<QAction*>("toolsCompare"); }
    void compareWith(const std::string& file) {
        program.platform.queueFileName(file);
        entry().trigger();
        DesktopProgram::settle();
    }
    desktop::CompareWindow* window() { return program.frame().window().findChild<desktop::CompareWindow*>(); }
    QTreeView& table() { return *window()->findChild<QTreeView*>(); }
    QPushButton& go() {
        for (QPushButton* button : window()->findChildren<QPushButton*>()) {
            if (button->text().remove('&') == "Go to Cell") {
                return *button;
            }
        }
        throw std::logic_error("no such button");
    }
    std::string text(int row, int column) {
        return table().model()->index(row, column).data().toString().toStdString();
    }
    /// Label, both values and path of each row.
    std::vector<std::string> rows() {
        std::vector<std::string> found;
        for (int row = 0; row < table().model()->rowCount(); ++row) {
            found.push_back(text(row, 3) + ": " + text(row, 1) + " | " + text(row, 2));
        }
        return found;
    }
    bool says(const QString& words) {
        for (const QLabel* label : window()->findChildren<QLabel*>()) {
            if (label->text() == words) {
                return true;
            }
        }
        return false;
    }
    void choose(int row) { table().setCurrentIndex(table().model()->index(row, 0)); }

    TemporaryFolder folder;
};

TEST_F(Compare, StandsInAMenuBeforeHelp) {
    QStringList titles;
    for (const QAction* top : program.frame().window().menuBar()->actions()) {
        titles += top->text();
    }
    EXPECT_EQ(titles.indexOf("&Tools"), titles.indexOf("&Help") - 1);
    EXPECT_FALSE(entry().isEnabled()) << "nothing is open";
    program.openSample("zarqo-z40.bin");
    EXPECT_TRUE(entry().isEnabled());
}

TEST_F(Compare, ListsTheFieldsThatDiffer) {
    program.openSample("zarqo-z40.bin");
    std::string other = sample();
    other[16] = 7; // a week of 1 in the sample
    other[127] = static_cast<char>(other[127] - 6);
    compareWith(folder.write("other.bin", other));
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(text(0, 3), "base.vendor.week");
    EXPECT_EQ(table().model()->rowCount(), 2) << "and the check sum";
    EXPECT_NE(text(0, 1), text(0, 2));
    EXPECT_TRUE(says("2 fields differ."));
    EXPECT_TRUE(says("The open image and other.bin"));
    window()->findChild<QCheckBox*>()->click();
    EXPECT_GT(table().model()->rowCount(), 100);
    EXPECT_TRUE(says("2 fields differ."));
}

TEST_F(Compare, ToolTipsAreTheTextsAsTheyAre) {
    program.openSample("zarqo-z40.bin");
    for (const std::string name : {"R&D \"3\" > 2", "<b>LCD"}) {
        std::string other = sample();
        other.replace(95, 13, (name + '\n' + std::string(12, ' ')).substr(0, 13)); // the name of the monitor
        const std::string file = folder.write(name + ".bin", other);
        compareWith(file);
        const QModelIndex value = table().model()->index(0, desktop::CompareModel::Theirs);
        ASSERT_NE(value.data().toString().toStdString().find(name), std::string::npos) << name;
        EXPECT_EQ(shownTip(value.data(Qt::ToolTipRole).toString()), value.data().toString().toStdString());
        bool found = false;
        for (const QLabel* label : window()->findChildren<QLabel*>()) {
            found = found || shownTip(label->toolTip()) == file;
        }
        EXPECT_TRUE(found) << file;
    }
}

TEST_F(Compare, StandsOnTheScreenAndBesideTheFrameWhereThereIsRoom) {
    program.openSample("zarqo-z40.bin");
    compareWith(folder.write("same.bin", sample()));
    const QRect room = window()->screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window()->geometry()));
    const QRect frameNow = program.frame().window().frameGeometry();
    const int needed = window()->width();
    if (room.right() - frameNow.right() > needed + 100 && room.contains(frameNow)) {
        EXPECT_FALSE(window()->geometry().intersects(frameNow));
    } else {
        EXPECT_GT(window()->x(), room.x());
    }
}

TEST_F(Compare, FollowsTheCells) {
    program.openSample("zarqo-z40.bin");
    compareWith(folder.write("same.bin", sample()));
    EXPECT_TRUE(says("The images are the same."));
    EXPECT_EQ(table().model()->rowCount(), 0);
    program.act([&] { edid().txtEdit(23).setText("64"); }); // 100 in place of 120: gamma 2.00
    EXPECT_TRUE(says("1 field differs."));
    EXPECT_EQ(rows(), std::vector<std::string>{"base.basic.gamma: 2.00 | 2.20"});
    program.act([&] { edid().txtEdit(23).setText("6"); });
    EXPECT_TRUE(says("Cell 23 of block 0 holds \"6\", which is not a byte of two hexadecimal digits."));
    EXPECT_EQ(table().model()->rowCount(), 0);
    program.act([&] { edid().txtEdit(23).setText("78"); });
    EXPECT_TRUE(says("The images are the same."));
    program.act([&] { program.workbench.EDIDModified = flagFalse; });
    program.act([&] { input::close(edid()); });
    EXPECT_TRUE(says("No image is open."));
}

TEST_F(Compare, LeadsToTheCell) {
    program.openSample("zarqo-z40.bin");
    std::string other = sample();
    other[23] = 100;
    other[128 + 3] = 0; // the flags of the extension: F2 in the sample
    compareWith(folder.write("other.bin", other));
    choose(0);
    ASSERT_EQ(text(0, 3), "base.basic.gamma");
    go().click();
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(23)");
    choose(table().model()->rowCount() - 1);
    emit table().activated(table().currentIndex());
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(3)");
    EXPECT_EQ(program.workbench.windows.activeChild()->name(), "frmCEA_EXT");
}

TEST_F(Compare, LeadsToTheFirstCellOfAField) {
    program.openSample("zarqo-z40.bin");
    std::string other = sample();
    other[10] = 0; // the lower byte of the product code, which stands before the upper one
    other[54] = 0; // that of the clock of the first timing
    compareWith(folder.write("other.bin", other));
    ASSERT_EQ(text(0, 3), "base.vendor.product_code");
    for (const auto& [row, cell] : {std::pair(0, "frmEDID.txtEdit(10)"), std::pair(1, "frmEDID.txtEdit(54)")}) {
        choose(row);
        go().click();
        DesktopProgram::settle();
        EXPECT_EQ(focused(), cell) << text(row, 3);
    }
}

TEST_F(Compare, TellsWhereACellIsOutOfReach) {
    std::string mine = sample() + std::string(128, '\0');
    mine[126] = 2;
    mine[127] = static_cast<char>(mine[127] - 1);
    mine[256] = 0x40;
    program.platform.queueFileName(folder.write("mine.bin", mine));
    program.frame().window().findChild<QAction*>("fileImport")->trigger();
    DesktopProgram::settle();
    std::string other = mine;
    other[23] = 100;
    other[128 + 3] = 0; // the flags of the extension: F2 in the sample
    other[256] = 0x50;
    compareWith(folder.write("other.bin", other));
    ASSERT_EQ(text(0, 3), "base.basic.gamma");
    choose(table().model()->rowCount() - 1);
    EXPECT_FALSE(go().isEnabled());
    emit table().activated(table().currentIndex());
    DesktopProgram::settle();
    EXPECT_TRUE(says("Block 2 has no screen: its bytes can only be read."));
    choose(0);
    go().click();
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(23)");
    EXPECT_TRUE(says(QString("%1 fields differ.").arg(table().model()->rowCount()))) << "and no refusal any more";
    program.act([&] { frame().Command4.setEnabled(false); });
    choose(1);
    go().click();
    DesktopProgram::settle();
    EXPECT_TRUE(says("Byte 3 (03h) of block 1 is out of reach now.")) << text(1, 3);
}

TEST_F(Compare, TakesNoPartInTheFocusOfTheProgram) {
    program.openSample("zarqo-z40.bin");
    focus(edid().txtEdit(40));
    const std::vector<Screen*> children = program.workbench.windows.children();
    std::string other = sample();
    other[23] = 100;
    compareWith(folder.write("other.bin", other));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(40)");
    EXPECT_EQ(program.workbench.windows.children(), children);
    table().setFocus();
    DesktopProgram::settle();
    EXPECT_TRUE(table().hasFocus()) << "until the user goes elsewhere";
    window()->close();
    DesktopProgram::settle();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(40)");
}

TEST_F(Compare, LetsTheUserPickOneOfSeveralImages) {
    program.openSample("zarqo-z40.bin");
    std::string other = sample().substr(0, 128);
    other[126] = 0;
    const std::string text =
        "HDMI-1 connected\n\tEDID:\n\t\t" + inHex(sample()) + "\nDP-2 connected\n\tEDID:\n\t\t" + inHex(other) + "\n";
    compareWith(folder.write("two.txt", text));
    QComboBox& choice = *window()->findChild<QComboBox*>();
    ASSERT_EQ(choice.count(), 2);
    EXPECT_TRUE(choice.isVisible());
    EXPECT_EQ(choice.itemText(0), "HDMI-1, 256 bytes");
    EXPECT_EQ(choice.itemText(1), "DP-2, 128 bytes");
    EXPECT_TRUE(says("The images are the same."));
    choice.setCurrentIndex(1);
    emit choice.activated(1);
    EXPECT_EQ(this->text(0, 3), "base.extension_count");
    EXPECT_EQ(this->text(table().model()->rowCount() - 1, 2), "(none)");
    compareWith(folder.write("one.txt", inHex(sample())));
    EXPECT_FALSE(choice.isVisible()) << "the same window, with another file";
    EXPECT_EQ(program.frame().window().findChildren<desktop::CompareWindow*>().size(), 1);
}

TEST_F(Compare, AFieldThatOnlyTheFileHasLeadsNowhere) {
    program.newImage(false);
    compareWith(folder.write("sample.bin", sample()));
    choose(table().model()->rowCount() - 1);
    EXPECT_EQ(text(table().model()->rowCount() - 1, 1), "(none)");
    EXPECT_FALSE(go().isEnabled());
    choose(0);
    EXPECT_TRUE(go().isEnabled());
}

TEST_F(Compare, TellsWhyThereIsNoImage) {
    program.openSample("zarqo-z40.bin");
    compareWith(folder.file("missing.bin"));
    compareWith(folder.write("words.txt", "no image at all"));
    compareWith({});
    EXPECT_EQ(window(), nullptr);
    const auto told = takeBoxes();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0], "missing.bin cannot be read: No such file or directory.");
    EXPECT_EQ(told[1].rfind("words.txt holds no EDID image: ", 0), 0U);
}

} // namespace
} // namespace wb::test
