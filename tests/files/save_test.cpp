#include "files/save.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "files/text_file.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::files {
namespace {

using testing::HasSubstr;
using testing::Not;
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
    EXPECT_THAT(content, HasSubstr("128 BYTES OF EDID CODE:\r\n"));
    EXPECT_THAT(content, HasSubstr("0    |00  FF  FF  FF  FF  FF  FF  00  00  00  \r\n"));
    EXPECT_THAT(content, Not(HasSubstr("END REPORT")));
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
    EXPECT_THAT(test::TemporaryFolder::read(name), HasSubstr("EDID Block 0"));
}

/// Counts the passes of a save by the hourglasses it shows.
class CountingEvents : public platform::EventLoop {
public:
    void processPending() override { ++rounds; }
    void setPointer(platform::Pointer pointer) override {
        hourglass = pointer == platform::Pointer::Hourglass;
        hourglasses += hourglass ? 1 : 0;
    }
    void startTimer(int, std::function<void()> fire) override { fire(); }

    int rounds = 0;
    int hourglasses = 0;
    bool hourglass = false;
};

/// Tells in which order the hourglass comes and goes, events run and boxes are shown; the first round of pending events
/// under the given pointer fails.
class FailingEvents : public platform::EventLoop {
public:
    void processPending() override {
        calls.emplace_back("events");
        if (pointer_ == failing) {
            failing.reset();
            throw Failure(FailureKind::Overflow);
        }
    }
    void setPointer(platform::Pointer pointer) override {
        pointer_ = pointer;
        calls.emplace_back(pointer == platform::Pointer::Hourglass ? "hourglass" : "normal");
    }
    void startTimer(int, std::function<void()> fire) override { fire(); }

    std::optional<platform::Pointer> failing;
    Lines calls;

private:
    platform::Pointer pointer_ = platform::Pointer::Normal;
};

/// A second program, with a new image, whose events are those of the test.
template <class Events>
class SaveUnder : public Save {
protected:
    SaveUnder() {
        shell::Main(other);
        input::choose(other.frmMain().mnuFileNew);
    }

    Events events;
    const platform::Services& inner = program.platform.services();
    platform::Services services{
        inner.messageBoxes, inner.dialogs, inner.printer, inner.settings, inner.registry, inner.operatingSystem,
        inner.edidReader,   inner.shell,   inner.clock,   events,         inner.arranger, ""};
    Workbench other{services, shell::wiring()};
};

class SaveEvents : public SaveUnder<FailingEvents> {
protected:
    SaveEvents() {
        program.platform.onBox = [this](const std::string& text) { events.calls.push_back(text); };
    }
    Lines callsOf(const std::string& name, std::optional<platform::Pointer> failing = {}) {
        other.CurrentFileName = name;
        events.failing = failing;
        events.calls.clear();
        FileSave(other);
        return events.calls;
    }
};

TEST_F(SaveEvents, RunBeforeAFailureIsTold) {
    EXPECT_EQ(callsOf(folder.file("no/such/folder.DAT")),
              (Lines{"hourglass", "events", "normal", "events", "Path/File access error"}));
}

TEST_F(SaveEvents, ThatFailEndTheSaveLikeAnyFailure) {
    const std::string name = folder.file("image.DAT");
    EXPECT_EQ(callsOf(name, platform::Pointer::Hourglass), (Lines{"hourglass", "events", "Overflow"}));
    EXPECT_FALSE(fileExists(name));
    EXPECT_EQ(callsOf(name, platform::Pointer::Normal), (Lines{"hourglass", "events", "normal", "events", "Overflow"}));
    EXPECT_TRUE(fileExists(name)) << "the first pass has written it";
    EXPECT_EQ(callsOf(folder.file("no/such/folder.DAT"), platform::Pointer::Normal),
              (Lines{"hourglass", "events", "normal", "events", "Overflow"}));
}

class SavePasses : public SaveUnder<CountingEvents> {
protected:
    SavePasses() {
        events.rounds = 0;
        events.hourglasses = 0;
    }
};

TEST_F(SavePasses, AreFive) {
    other.CurrentFileName = folder.file("new.DAT");
    FileSave(other);
    EXPECT_EQ(events.hourglasses, 5);
    EXPECT_EQ(events.rounds, 10) << "at both ends of a pass";
    EXPECT_FALSE(events.hourglass);
}

TEST_F(SavePasses, AreFiveMoreInsideTheFirstThatAsksForAName) {
    program.platform.queueFileName(folder.file("new.DAT"));
    FileSave(other);
    EXPECT_EQ(events.hourglasses, 10);
    EXPECT_FALSE(events.hourglass);
}

TEST_F(SavePasses, EndWithTheFirstThatHasNoNameOrFails) {
    FileSave(other);
    EXPECT_EQ(events.hourglasses, 1);
    EXPECT_FALSE(events.hourglass);
    other.CurrentFileName = folder.file("no/such/folder.DAT");
    FileSave(other);
    EXPECT_EQ(events.hourglasses, 2);
    other.EDIDLoaded = flagFalse;
    FileSave(other);
    EXPECT_EQ(events.hourglasses, 2) << "without an image no pass does anything";
}

TEST_F(Save, AFailedSaveAsInsideASaveIsTriedOnceMore) {
    program.platform.queueFileName(folder.file("no/such/folder.DAT"));
    FileSave(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines(2, "Path/File access error")) << "the inner save and the outer one";
}

TEST_F(Save, SaveAsReplacesAFileOnYesAndKeepsTheTitle) {
    const std::string name = folder.write("old.DAT", std::string(100000, 'x'));
    const std::string title = workbench.frmEDID().caption();
    workbench.Block0ChecksumAsLoaded = "77";
    workbench.EDIDModified = flagTrue;
    program.platform.queueFileName(name);
    program.platform.queueAnswer(platform::Answer::Yes);
    FileSaveAs(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{name + "\r\n\r\nExists! Do you want to Replace it?"}) << "asked once";
    EXPECT_LT(test::TemporaryFolder::read(name).size(), 10000U);
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "77");
    EXPECT_EQ(workbench.frmEDID().caption(), title);
}

TEST_F(Save, ANameIsTakenExactlyAsTyped) {
    program.platform.queueFileName(folder.file("no extension"));
    FileSaveAs(workbench);
    EXPECT_TRUE(std::filesystem::exists(folder.file("no extension")));
    EXPECT_FALSE(std::filesystem::exists(folder.file("no extension.DAT")));
}

TEST_F(Save, TheExtensionGoesByTheDecimalPrefixOfItsCount) {
    workbench.frmCEA_EXT();
    workbench.CurrentFileName = folder.file("image.DAT");
    const auto blocks = [&](const char* count) {
        program.setCells(126, {count});
        FileSave(workbench);
        const std::string content = test::TemporaryFolder::read(workbench.CurrentFileName);
        int rows = 0;
        for (std::size_t at = content.find("  |"); at != std::string::npos; at = content.find("  |", at + 1)) {
            ++rows;
        }
        return rows / 13;
    };
    EXPECT_EQ(blocks("00"), 1);
    EXPECT_EQ(blocks("01"), 2);
    EXPECT_EQ(blocks("10"), 2);
    EXPECT_EQ(blocks("0A"), 1);
    EXPECT_EQ(blocks("FF"), 1);
}

TEST_F(Save, DoesNothingWithoutAnImage) {
    workbench.EDIDLoaded = flagFalse;
    FileSave(workbench);
    FileSaveAs(workbench);
    EXPECT_TRUE(program.takeLines().empty());
}

TEST_F(Save, AFolderOfThatNameIsNotDeleted) {
    workbench.CurrentFileName = folder.file("folder.DAT");
    std::filesystem::create_directory(workbench.CurrentFileName);
    FileSave(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Path/File access error"});
    EXPECT_TRUE(std::filesystem::is_directory(workbench.CurrentFileName));
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
