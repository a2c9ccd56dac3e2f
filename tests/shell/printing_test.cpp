#include "shell/printing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::shell {
namespace {

using testing::HasSubstr;
using testing::Not;
using Lines = std::vector<std::string>;

const std::string confirmed = "[dialog] Print -> ok";
const std::string cancelled = "[dialog] Print -> cancel";

class Printing : public testing::Test {
protected:
    void newImage() {
        program.platform.queueAnswer(platform::Answer::No);
        input::choose(frame.mnuFileNew);
        program.takeLines();
        program.takeBoxes();
    }
    void print(bool confirm = true) {
        program.platform.queuePrinter(confirm);
        input::choose(frame.mnuFilePrint);
    }
    const std::vector<std::string>& printed() const { return program.platform.printedTexts(); }

    test::Program program;
    Workbench& workbench = program.workbench;
    FrmMain& frame = workbench.frmMain();
};

TEST_F(Printing, WithoutAnImageNothingHappens) {
    print();
    EXPECT_TRUE(program.lines.empty());
    input::choose(frame.HexCalculator);
    print();
    EXPECT_TRUE(program.lines.empty());
}

TEST_F(Printing, WithoutAnActiveChildNothingHappens) {
    newImage();
    workbench.windows.hide(workbench.frmEDID());
    print();
    EXPECT_TRUE(program.lines.empty());
}

TEST_F(Printing, PrintsTheReportWithoutShowingIt) {
    newImage();
    program.platform.setClock({.year = 2003, .month = 4, .day = 5, .hour = 6, .minute = 7, .second = 8});
    print();
    ASSERT_EQ(printed().size(), 1U);
    EXPECT_THAT(printed()[0], HasSubstr("Time:  06:07:08"));
    EXPECT_THAT(printed()[0], HasSubstr("128 BYTES OF EDID CODE:"));
    EXPECT_THAT(printed()[0], Not(HasSubstr("END REPORT")));
    EXPECT_EQ(program.takeLines(),
              (Lines{confirmed, "[print] " + std::to_string(printed()[0].size()) + " characters"}));
    EXPECT_EQ(workbench.loaded(ScreenId::Document), nullptr);
    EXPECT_EQ(workbench.DocumentOpen, flagFalse);
    EXPECT_EQ(workbench.windows.activeChild(), &workbench.frmEDID());
}

TEST_F(Printing, ClosesAReportThatWasOpenForReading) {
    newImage();
    input::click(frame.Command1);
    ASSERT_EQ(workbench.windows.activeChild(), &workbench.frmDocument());
    print();
    EXPECT_EQ(printed().size(), 1U);
    EXPECT_EQ(workbench.loaded(ScreenId::Document), nullptr);
    EXPECT_EQ(workbench.DocumentOpen, flagFalse);
}

TEST_F(Printing, ACancelLeavesTheReportAsItIs) {
    newImage();
    input::click(frame.Command1);
    workbench.frmDocument().rtftext.setText("old");
    print(false);
    EXPECT_EQ(program.takeLines(), Lines{cancelled});
    EXPECT_EQ(workbench.frmDocument().rtftext.text(), "old");
    EXPECT_TRUE(printed().empty());
}

TEST_F(Printing, ASelectionDoesNotNarrowThePrint) {
    newImage();
    input::click(frame.Command1);
    input::select(workbench.frmDocument().rtftext, 10, 5);
    const std::size_t whole = workbench.frmDocument().rtftext.text().size();
    print();
    ASSERT_EQ(printed().size(), 1U);
    EXPECT_EQ(printed()[0].size(), whole);
}

TEST_F(Printing, GoesOnWithTheCalculatorActive) {
    newImage();
    input::choose(frame.HexCalculator);
    ASSERT_EQ(workbench.windows.activeChild(), &workbench.frmHexCalculator());
    print();
    EXPECT_EQ(printed().size(), 1U);
    EXPECT_EQ(workbench.windows.activeChild(), &workbench.frmEDID()) << "a report that is built unseen raises it";
    EXPECT_TRUE(program.takeBoxes().empty());
}

TEST_F(Printing, TheToolBarKeyDoesTheSame) {
    newImage();
    program.platform.queuePrinter(true);
    input::toolBar(workbench, "Print");
    EXPECT_EQ(printed().size(), 1U);
}

TEST_F(Printing, PageSetupOnlyShowsItsDialog) {
    input::choose(frame.mnuFilePageSetup);
    EXPECT_EQ(program.takeLines(), Lines{"[dialog] PageSetup -> cancel"});
}

/// Records what the print dialog is shown with, and cancels it.
class RecordingDialogs : public platform::Dialogs {
public:
    std::string openFile(const platform::FileDialogRequest&) override { return {}; }
    std::string saveFile(const platform::FileDialogRequest&) override { return {}; }
    bool print(const std::string& title, int printerFlags) override {
        titles.push_back(title);
        flags.push_back(printerFlags);
        return false;
    }
    bool pageSetup(const std::string& title) override {
        titles.push_back(title);
        return false;
    }
    std::vector<std::string> titles;
    std::vector<int> flags;
};

TEST(PrintDialog, TellsASelectionInItsFlags) {
    platform::headless::HeadlessPlatform headless;
    RecordingDialogs dialogs;
    const platform::Services& inner = headless.services();
    const platform::Services services{
        inner.messageBoxes, dialogs,     inner.printer, inner.settings,  inner.registry, inner.operatingSystem,
        inner.edidReader,   inner.shell, inner.clock,   inner.eventLoop, inner.arranger, ""};
    Workbench workbench(services, wiring());
    Main(workbench);
    input::choose(workbench.frmMain().mnuFileNew);
    mnuFilePrint(workbench);
    input::click(workbench.frmMain().Command1);
    mnuFilePrint(workbench);
    workbench.frmDocument().rtftext.setSelection(3, 4);
    mnuFilePrint(workbench);
    input::choose(workbench.frmMain().HexCalculator);
    mnuFilePrint(workbench);
    EXPECT_EQ(dialogs.flags, (std::vector<int>{264, 264, 265, 264}));
    mnuFilePageSetup(workbench);
    EXPECT_EQ(dialogs.titles, (Lines{"Print", "Print", "Print", "Print", "Page Setup"}));
}

} // namespace
} // namespace wb::shell
