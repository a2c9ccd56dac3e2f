#include "files/save.h"

#include <gtest/gtest.h>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::files {
namespace {

using Lines = std::vector<std::string>;

class Save : public testing::Test {
protected:
    Save() {
        program.platform.queueAnswer(platform::Answer::No);
        input::choose(program.workbench.frmMain().mnuFileNew);
        program.takeLines();
        program.takeBoxes();
    }

    test::TemporaryFolder folder;
    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(Save, AskOnceForANameAndWriteARepeatedFile) {
    const std::string name = folder.file("new.DAT");
    program.platform.queueFileName(name);
    workbench.EDIDModified = flagTrue;
    FileSave(workbench);
    EXPECT_EQ(program.takeLines(), Lines{"[dialog] Save filter=\"All Files (*.*)|*.*\" -> \"" + name + "\""});
    EXPECT_EQ(workbench.CurrentFileName, name);
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    const std::string content = test::TemporaryFolder::read(name);
    EXPECT_NE(content.find("128 BYTES OF EDID CODE:\r\n"), std::string::npos);
    EXPECT_NE(content.find("0    |00  FF  FF  FF  FF  FF  FF  00  00  00  \r\n"), std::string::npos);
    EXPECT_EQ(content.find("END REPORT"), std::string::npos);
    EXPECT_EQ(content.find("128 BYTES OF EDID CODE:", content.find("128 BYTES") + 1), std::string::npos)
        << "written anew each time";
}

TEST_F(Save, ACancelledSaveAsLeavesTheImageWithoutAFile) {
    workbench.EDIDModified = flagTrue;
    FileSave(workbench);
    EXPECT_EQ(workbench.CurrentFileName, "");
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
    EXPECT_EQ(program.takeLines().size(), 1U);
}

TEST_F(Save, NoAtTheReplaceQuestionOfSaveAsLeavesTheNameAndTheFile) {
    const std::string name = folder.write("old.DAT", "old");
    program.platform.queueFileName(name);
    FileSaveAs(workbench);
    EXPECT_EQ(test::TemporaryFolder::read(name), "old");
    EXPECT_EQ(workbench.CurrentFileName, name);
    EXPECT_EQ(program.takeBoxes(), Lines{name + "\r\n\r\nExists! Do you want to Replace it?"});
}

TEST_F(Save, NoAtTheReplaceQuestionInsideSaveReplacesAllTheSame) {
    const std::string name = folder.write("old.DAT", "old");
    program.platform.queueFileName(name);
    FileSave(workbench);
    EXPECT_NE(test::TemporaryFolder::read(name).find("EDID Block 0"), std::string::npos);
}

TEST_F(Save, DoesNothingWithoutAnImage) {
    workbench.EDIDLoaded = flagFalse;
    FileSave(workbench);
    FileSaveAs(workbench);
    EXPECT_TRUE(program.takeLines().empty());
}

TEST_F(Save, AFailedSaveIsToldAndLeavesTheImageModified) {
    workbench.EDIDModified = flagTrue;
    workbench.CurrentFileName = folder.file("no/such/folder.DAT");
    FileSave(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Path/File access error"});
    workbench.CurrentFileName = folder.file("");
    FileSave(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Path/File access error"});
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(Save, AFullDeviceIsTold) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "no device that is always full";
    }
    workbench.EDIDModified = flagTrue;
    workbench.CurrentFileName = "/dev/full";
    FileSave(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Disk full"});
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(Save, ASavedFileReadsBackToTheSameCells) {
    for (int i = 0; i < 126; ++i) {
        program.setCells(i, {i % 2 == 0 ? "A5" : "5A"});
    }
    program.setCells(60, {"F", "|x", "", "ABC", "ABCDEF"}); // a cell with a bar, an empty and long ones
    const std::string name = folder.file("odd.DAT");
    workbench.CurrentFileName = name;
    FileSave(workbench);
    program.setCells(60, {"01", "02", "03", "04", "05"});
    FileSave(workbench);
    Lines cells;
    for (int i = 0; i < 128; ++i) {
        cells.push_back(program.cell(i));
    }
    program.platform.queueFileName(name);
    input::choose(workbench.frmMain().mnuFileOpen);
    for (int i = 0; i < 128; ++i) {
        EXPECT_EQ(program.cell(i), cells[static_cast<std::size_t>(i)]) << i;
    }
}

} // namespace
} // namespace wb::files
