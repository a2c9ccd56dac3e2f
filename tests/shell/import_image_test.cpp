#include "shell/import_image.h"

#include <gtest/gtest.h>

#include "shell/export_image.h"
#include "shell/history.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::shell {
namespace {

using Texts = std::vector<std::string>;
using platform::Answer;

/// An image of that many blocks: block 0 with a header, a week and the number of extensions, the others with their
/// number as their last byte.
std::string imageOf(char week, int blocks) {
    std::string bytes(static_cast<std::size_t>(blocks) * 128, '\0');
    bytes.replace(0, imageHeader.size(), imageHeader);
    bytes[16] = week;
    bytes[126] = static_cast<char>(blocks - 1);
    for (int block = 1; block < blocks; ++block) {
        bytes[static_cast<std::size_t>(block) * 128 + 127] = static_cast<char>(block);
    }
    return bytes;
}

std::string twoImages() {
    std::string text;
    for (const char* const week : {"12", "13"}) {
        text += "00 FF FF FF FF FF FF 00 00 00 00 00 00 00 00 00 ";
        text += week;
        for (int i = 17; i < 128; ++i) {
            text += " 00";
        }
        text += "\n\n";
    }
    return text;
}

class Import : public testing::Test {
protected:
    Import() { keepHistory(workbench); }

    std::string import(const std::string& name) {
        program.platform.queueFileName(name);
        return importImage(workbench, ways);
    }
    FrmEdid& edid() { return workbench.frmEDID(); }

    test::TemporaryFolder folder;
    test::Program program;
    Workbench& workbench = program.workbench;
    Texts offered;
    std::optional<std::size_t> choice = 0;
    const ImportWays ways{.inflate = {}, .choose = [this](const Texts& outputs) {
                              offered = outputs;
                              return choice;
                          }};
};

TEST_F(Import, LoadsAsAMonitorUnderTheNameOfTheFile) {
    const std::string name = folder.write("a.bin", imageOf(0x12, 1));
    EXPECT_EQ(import(name), name);
    EXPECT_EQ(program.cell(16), "12");
    EXPECT_EQ(edid().caption(), name);
    EXPECT_EQ(workbench.CurrentFileName, "") << "Save asks for a name";
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(offered, Texts());
}

TEST_F(Import, OffersToSaveBefore) {
    import(folder.write("a.bin", imageOf(0x12, 1)));
    program.takeBoxes();
    workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(Answer::Yes);
    program.platform.queueFileName(folder.file("saved.DAT"));
    EXPECT_NE(import(folder.write("b.bin", imageOf(0x13, 1))), "");
    EXPECT_NE(test::TemporaryFolder::read(folder.file("saved.DAT")), "");
    EXPECT_EQ(program.cell(16), "13");
    EXPECT_EQ(program.takeBoxes(), Texts{"Save Changes?"});
}

TEST_F(Import, ForgetsTheChangesOfTheImageBefore) {
    import(folder.write("a.bin", imageOf(0x12, 1)));
    input::click(workbench.frmMain().Command2);
    input::moveFocus(edid().txtEdit(16));
    program.type("22");
    ASSERT_TRUE(workbench.history->canUndo());
    program.platform.queueAnswer(Answer::No);
    import(folder.file("a.bin"));
    EXPECT_FALSE(workbench.history->canUndo());
}

TEST_F(Import, AsksWhichOfSeveralImages) {
    choice = 1;
    const std::string name = folder.write("a.txt", twoImages());
    EXPECT_EQ(import(name), name);
    EXPECT_EQ(offered.size(), 2U);
    EXPECT_EQ(program.cell(16), "13");
    choice.reset();
    EXPECT_EQ(import(name), "");
    EXPECT_EQ(program.cell(16), "13");
}

TEST_F(Import, AFailureIsToldAndLoadsNothing) {
    const ImportWays failing{.inflate = {}, .choose = [](const Texts&) -> std::optional<std::size_t> {
                                 throw Failure(FailureKind::InvalidCall);
                             }};
    const std::string name = folder.write("a.txt", twoImages());
    EXPECT_FALSE(importFile(workbench, name, failing));
    EXPECT_FALSE(reopenFile(workbench, name, failing));
    EXPECT_FALSE(importText(workbench, twoImages(), failing));
    EXPECT_EQ(program.takeBoxes().size(), 3U);
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(Import, TellsWhatIsNoImage) {
    const std::string name = folder.write("a.txt", "hello");
    EXPECT_EQ(import(name), "");
    EXPECT_EQ(program.takeBoxes(), Texts{name + " is no EDID image: line 1: 'hello' is no hexadecimal pair"});
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(Import, TellsWhatCannotBeRead) {
    const std::string name = folder.file("none.bin");
    EXPECT_EQ(import(name), "");
    EXPECT_EQ(program.takeBoxes(), Texts{name + "\r\n\r\nNo such file or directory"});
}

TEST_F(Import, TellsAFileThatHasGone) {
    EXPECT_FALSE(reopenFile(workbench, folder.file("gone.bin"), ways));
    EXPECT_EQ(program.takeBoxes(), Texts{folder.file("gone.bin") + "\r\n\r\nThis file is not there any more."});
}

TEST_F(Import, TakesAText) {
    EXPECT_TRUE(importText(workbench, imageOf(0x12, 1), ways));
    EXPECT_EQ(program.cell(16), "12");
    EXPECT_EQ(edid().caption(), "Clipboard");
    EXPECT_FALSE(importText(workbench, "", ways));
    EXPECT_EQ(program.takeBoxes().back(), "Clipboard is empty.");
}

TEST_F(Import, ADataFileIsOpened) {
    const std::string name = WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT";
    EXPECT_EQ(import(name), name);
    EXPECT_EQ(workbench.CurrentFileName, name);
}

TEST_F(Import, EveryBlockComesOutAgain) {
    const std::string bytes = imageOf(0x12, 3);
    import(folder.write("a.bin", bytes));
    program.takeBoxes();
    program.platform.queueFileName(folder.file("b.bin"));
    exportImage(workbench, *forms::writtenForm("bin"));
    EXPECT_EQ(test::TemporaryFolder::read(folder.file("b.bin")), bytes);
    EXPECT_EQ(program.takeBoxes(), Texts());
}

TEST_F(Import, AnExportAsksBeforeItReplaces) {
    import(folder.write("a.bin", imageOf(0x12, 1)));
    program.platform.queueFileName(folder.write("b.bin", "old"));
    exportImage(workbench, *forms::writtenForm("bin"));
    EXPECT_EQ(test::TemporaryFolder::read(folder.file("b.bin")), "old") << "an unanswered question is a No";
}

TEST_F(Import, AnExportTellsACellThatIsNoByte) {
    import(folder.write("a.bin", imageOf(0x12, 1)));
    program.takeBoxes();
    edid().txtEdit(16).setText("1Z");
    exportImage(workbench, *forms::writtenForm("bin"));
    EXPECT_EQ(program.takeBoxes(), Texts{"The image cannot be written: cell 16 is no byte: \"1Z\""});
    EXPECT_EQ(imageText(workbench, *forms::writtenForm("hex")), "");
    import(folder.write("b.bin", imageOf(0x12, 2)));
    program.takeBoxes();
    workbench.frmCEA_EXT().txtEdit(5).setText("5");
    exportImage(workbench, *forms::writtenForm("bin"));
    EXPECT_EQ(program.takeBoxes(),
              Texts{"The image cannot be written: cell 5 of the extension block is no byte: \"5\""});
}

TEST_F(Import, FieldsAreCopiedInWords) {
    std::string bytes = imageOf(0x12, 1);
    bytes[21] = 0x34;
    bytes[22] = 0x21;
    import(folder.write("a.bin", bytes));
    input::moveFocus(edid().txtEdit(21));
    EXPECT_EQ(fieldText(workbench), "Width of the screen: 52 cm");
    workbench.focus.clear();
    EXPECT_EQ(fieldText(workbench), "");
}

} // namespace
} // namespace wb::shell
