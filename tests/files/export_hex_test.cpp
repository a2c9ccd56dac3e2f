#include "files/export_hex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::files {
namespace {

using testing::HasSubstr;
using Lines = std::vector<std::string>;

const std::string dialog = "[dialog] Save filter=\"Hexadecimal Files (*.hex)|*.hex\" -> ";

class Export : public testing::Test {
protected:
    Export() { newImage(platform::Answer::No); }

    void newImage(platform::Answer extension) {
        program.platform.queueAnswer(extension);
        input::choose(workbench.frmMain().mnuFileNew);
        program.takeLines();
        program.takeBoxes();
    }
    void exportTo(const std::string& target) {
        program.platform.queueFileName(target);
        input::choose(workbench.frmMain().ExportHex);
    }
    void fillExtension() {
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            workbench.frmCEA_EXT().txtEdit(i).setText("11");
        }
    }
    static std::string repeated(const std::string& item, int times) {
        std::string text;
        for (int i = 0; i < times; ++i) {
            text += item;
        }
        return text;
    }

    test::TemporaryFolder folder;
    test::Program program;
    Workbench& workbench = program.workbench;
    std::string name = folder.file("image.hex");
};

TEST_F(Export, WritesEachCellAndABlank) {
    exportTo(name);
    EXPECT_EQ(program.takeLines(), Lines{dialog + "\"" + name + "\""});
    EXPECT_EQ(test::TemporaryFolder::read(name), "00 FF FF FF FF FF FF 00 " + repeated("00 ", 120));
}

TEST_F(Export, WritesBothBlocksByTheDecimalPrefixOfByte126) {
    struct Case {
        const char* cell;
        std::size_t size;
    };
    fillExtension();
    for (const Case& test : {Case{"00", 384}, Case{"01", 768}, Case{"10", 768}, Case{"0A", 384}, Case{"FF", 384},
                             Case{"1E", 768}, Case{"", 382}}) {
        program.setCells(126, {test.cell});
        std::filesystem::remove(name);
        exportTo(name);
        EXPECT_EQ(test::TemporaryFolder::read(name).size(), test.size) << test.cell;
    }
}

TEST_F(Export, WritesTheCellsOfTheExtension) {
    program.setCells(126, {"01"});
    fillExtension();
    test::Program::setCells(workbench.frmCEA_EXT(), 0, {"02", "03", "04"});
    test::Program::setCells(workbench.frmCEA_EXT(), 127, {"7F"});
    exportTo(name);
    const std::string content = test::TemporaryFolder::read(name);
    ASSERT_EQ(content.size(), 768U);
    EXPECT_EQ(content.substr(384, 9), "02 03 04 ");
    EXPECT_EQ(content.substr(765), "7F ");
}

TEST_F(Export, WritesCellTextsUnchecked) {
    program.setCells(8, {"", "xyz", "\xE9|"});
    exportTo(name);
    EXPECT_EQ(test::TemporaryFolder::read(name).substr(24, 8), std::string(" xyz \xE9| "));
}

TEST_F(Export, WithoutAnImageNothingHappens) {
    test::Program empty;
    empty.platform.queueFileName(name);
    input::choose(empty.workbench.frmMain().ExportHex);
    EXPECT_TRUE(empty.lines.empty());
    EXPECT_FALSE(std::filesystem::exists(name));
}

TEST_F(Export, ACancelKeepsTheNameOfTheImage) {
    workbench.CurrentFileName = "kept.DAT";
    input::choose(workbench.frmMain().ExportHex);
    EXPECT_EQ(program.takeLines(), Lines{dialog + "cancel"});
    EXPECT_EQ(workbench.CurrentFileName, "kept.DAT");
}

TEST_F(Export, MakesTheFileThatOfTheImage) {
    workbench.CurrentFileName = "old.DAT";
    workbench.EDIDModified = flagTrue;
    exportTo(name);
    EXPECT_EQ(workbench.CurrentFileName, name);
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
    input::choose(workbench.frmMain().mnuFileSave);
    EXPECT_THAT(test::TemporaryFolder::read(name), HasSubstr("128 BYTES OF EDID CODE:"));
}

TEST_F(Export, NoAtTheQuestionLeavesTheFileAndTheImageNameless) {
    folder.write("image.hex", "old");
    workbench.CurrentFileName = "old.DAT";
    exportTo(name);
    EXPECT_EQ(program.takeBoxes(), Lines{name + "\r\n\r\nExists! Do you want to Replace it?"});
    EXPECT_EQ(workbench.CurrentFileName, "");
    EXPECT_EQ(test::TemporaryFolder::read(name), "old");
}

TEST_F(Export, YesAtTheQuestionReplacesTheFile) {
    folder.write("image.hex", std::string(1000, 'x'));
    program.platform.queueAnswer(platform::Answer::Yes);
    exportTo(name);
    EXPECT_EQ(test::TemporaryFolder::read(name).size(), 384U);
}

/// Records what each file dialog is shown with, and gives the same name each time.
class RecordingDialogs : public platform::Dialogs {
public:
    std::string openFile(const platform::FileDialogRequest& request) override { return ask(request); }
    std::string saveFile(const platform::FileDialogRequest& request) override { return ask(request); }
    bool print(const std::string&, int) override { return false; }
    bool pageSetup(const std::string&) override { return false; }

    std::string name;
    std::vector<platform::FileDialogRequest> requests;

private:
    std::string ask(const platform::FileDialogRequest& request) {
        requests.push_back(request);
        return name;
    }
};

TEST_F(Export, OffersTheNameOfTheLastExportButNotOfADataFile) {
    RecordingDialogs dialogs;
    const platform::Services& inner = program.platform.services();
    const platform::Services services{
        inner.messageBoxes, dialogs,     inner.printer, inner.settings,  inner.registry, inner.operatingSystem,
        inner.edidReader,   inner.shell, inner.clock,   inner.eventLoop, inner.arranger, ""};
    Workbench other(services, shell::wiring());
    shell::Main(other);
    input::choose(other.frmMain().mnuFileNew);
    dialogs.name = folder.file("image.DAT");
    input::choose(other.frmMain().mnuFileSaveAs);
    dialogs.name = name;
    input::choose(other.frmMain().ExportHex);
    input::choose(other.frmMain().ExportHex);
    ASSERT_EQ(dialogs.requests.size(), 3U);
    EXPECT_EQ(dialogs.requests[1].title, "Save As");
    EXPECT_EQ(dialogs.requests[1].name, "");
    EXPECT_EQ(dialogs.requests[2].name, name);
}

TEST_F(Export, AFullDeviceIsToldForEachCell) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "the system has no device that is always full";
    }
    program.setCells(5, {""}); // the blank alone fails too
    exportTo("/dev/full");
    EXPECT_EQ(program.takeBoxes(), Lines(128, "Disk full"));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full")) << "only an ordinary file is deleted";
    program.setCells(126, {"01"});
    exportTo("/dev/full");
    EXPECT_EQ(program.takeBoxes(), Lines(256, "Disk full"));
}

TEST_F(Export, AfterAFailedOpenEachItemFails) {
    exportTo(folder.file("missing/image.hex"));
    EXPECT_EQ(program.takeBoxes(), Lines(1 + 128, "Path/File access error"));
    EXPECT_EQ(workbench.CurrentFileName, folder.file("missing/image.hex"));
    exportTo(folder.file("."));
    EXPECT_EQ(program.takeBoxes(), Lines(1 + 128, "Path/File access error"));
}

} // namespace
} // namespace wb::files
