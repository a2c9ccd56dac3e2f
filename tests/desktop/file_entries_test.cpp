#include <QMenu>

#include "desktop/base/text_codec.h"
#include "desktop/desktop_test.h"
#include "desktop/shown_tip.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

class FileEntriesTest : public DesktopTest {
protected:
    QAction& entry(const QString& name) { return *program.frame().window().findChild<QAction*>(name); }
    /// What the menu of the last files lists.
    QStringList recent() {
        auto* menu = program.frame().window().findChild<QMenu*>("fileRecent");
        menu->popup(QPoint(0, 0));
        DesktopProgram::settle();
        QStringList titles;
        for (const QAction* action : menu->actions()) {
            titles.append(action->text());
        }
        menu->close();
        return titles;
    }
    void import(const std::string& name) {
        program.platform.queueFileName(name);
        entry("fileImport").trigger();
        DesktopProgram::settle();
    }

    TemporaryFolder folder;
    const std::string sample = TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/brindleco-b24w.bin");
};

TEST_F(FileEntriesTest, StandBeforeExit) {
    QStringList texts;
    for (const QAction* action : program.frame().menu(frame().mnuFile).actions()) {
        texts.append(action->isSeparator() ? QString("-") : QString(action->text()).remove('&'));
    }
    EXPECT_EQ(texts.mid(texts.size() - 6),
              (QStringList{"-", "Import...", "Export Image", "Recent Files", "-", "Exit"}));
}

TEST_F(FileEntriesTest, ImportAndOpenARecentFileAgain) {
    EXPECT_EQ(recent(), QStringList());
    const std::string name = folder.write("a.bin", sample);
    import(name);
    EXPECT_EQ(edid().txtEdit(21).text(), "34");
    EXPECT_EQ(edid().caption(), name);
    import(folder.write("b.bin", sample));
    EXPECT_EQ(recent(), (QStringList{"&1 b.bin", "&2 a.bin"}));
    program.frame().window().findChild<QMenu*>("fileRecent")->actions().at(1)->trigger();
    DesktopProgram::settle();
    EXPECT_EQ(edid().caption(), name);
    EXPECT_EQ(recent(), (QStringList{"&1 a.bin", "&2 b.bin"}));
}

TEST_F(FileEntriesTest, TellWholeFileNamesAsTheyAre) {
    for (const char* name : {"R&D.bin", "<b>.bin"}) {
        const std::string file = folder.write(name, sample);
        import(file);
        recent();
        const QAction* latest = program.frame().window().findChild<QMenu*>("fileRecent")->actions().front();
        EXPECT_EQ(shownTip(latest->toolTip()), file);
    }
}

TEST_F(FileEntriesTest, OpenWhatTheProgramIsStartedWithInWhateverForm) {
    const std::string image = folder.write("a.bin", sample);
    program.frame().openNamed(desktop::fromFileNameBytes(image));
    DesktopProgram::settle();
    EXPECT_EQ(edid().txtEdit(21).text(), "34");
    EXPECT_EQ(edid().caption(), image);

    const std::string data = WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT";
    program.frame().openNamed(desktop::fromFileNameBytes(data));
    DesktopProgram::settle();
    EXPECT_EQ(program.workbench.CurrentFileName, data);
    EXPECT_EQ(recent(), (QStringList{"&1 zarqo-z40.DAT", "&2 a.bin"}));

    const std::string missing = folder.file("missing");
    program.frame().openNamed(desktop::fromFileNameBytes(missing));
    DesktopProgram::settle();
    const std::vector<std::string> boxes = takeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].substr(0, missing.size() + 4), missing + "\r\n\r\n");
    EXPECT_EQ(program.workbench.CurrentFileName, data);
}

TEST_F(FileEntriesTest, AFileThatHasGoneIsToldAndForgotten) {
    const std::string name = folder.write("a.bin", sample);
    import(name);
    std::filesystem::remove(name);
    recent();
    program.frame().window().findChild<QMenu*>("fileRecent")->actions().at(0)->trigger();
    DesktopProgram::settle();
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{name + "\r\n\r\nThis file is not there any more."});
    EXPECT_EQ(recent(), QStringList());
}

TEST_F(FileEntriesTest, ExportWritesTheCells) {
    import(folder.write("a.bin", sample));
    program.platform.queueFileName(folder.file("b.bin"));
    entry("fileExport.bin").trigger();
    DesktopProgram::settle();
    EXPECT_EQ(TemporaryFolder::read(folder.file("b.bin")), sample);
}

} // namespace
} // namespace wb::test
