#include "shell/history.h"

#include <gtest/gtest.h>

#include "acquire/get_edid.h"
#include "core/base/image.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::shell {
namespace {

using Texts = std::vector<std::string>;

/// Block 0 with nothing but its header, whose bytes sum up to FA; the check sum follows from that.
std::string emptyBlock0(char extensions) {
    std::string block(128, '\0');
    block.replace(0, imageHeader.size(), imageHeader);
    block[126] = extensions;
    block[127] = static_cast<char>(0x06 - extensions);
    return block;
}

/// A CEA extension without data blocks and timings: 02 + 03 + 04 + F7 = 100.
std::string emptyExtension() {
    std::string block(128, '\0');
    block.replace(0, 3, "\x02\x03\x04");
    block[127] = '\xF7';
    return block;
}

class HistoryTest : public testing::Test {
protected:
    HistoryTest() { keepHistory(workbench); }

    void load(const std::string& bytes) {
        acquire::LoadStoredEdid(workbench, bytes);
        program.takeBoxes();
    }
    /// An image that is in order, with editing on.
    void edit(const std::string& bytes = emptyBlock0(0)) {
        load(bytes);
        input::click(workbench.frmMain().Command2);
        program.takeBoxes();
    }
    void typeInto(Control& control, std::string_view text) {
        input::moveFocus(control);
        program.type(text);
    }
    void typeIntoCell(int index, std::string_view text) { typeInto(edid().txtEdit(index), text); }
    void enterInto(Control& box, std::string_view text) {
        input::click(box);
        program.type(text);
        input::enter(workbench);
    }
    std::string focused() { return workbench.focus.current()->fullName(); }
    FrmEdid& edid() { return workbench.frmEDID(); }
    FrmCeaExt& cea() { return workbench.frmCEA_EXT(); }
    ChangeHistory& history() { return *workbench.history; }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(HistoryTest, IsEmptyAtFirst) {
    EXPECT_FALSE(history().undo());
    EXPECT_FALSE(history().redo());
    EXPECT_EQ(history().undoName(), "");
    EXPECT_EQ(history().redoName(), "");
}

TEST_F(HistoryTest, ATypedCellIsOneStep) {
    edit();
    typeIntoCell(16, "1F");
    EXPECT_EQ(program.cell(127), "E7") << "FA + 1F = 119";
    EXPECT_EQ(history().undoName(), "Week of manufacture");
    ASSERT_TRUE(history().undo());
    EXPECT_EQ(program.cell(16), "00");
    EXPECT_EQ(program.cell(127), "06");
    EXPECT_FALSE(history().canUndo()) << "not a step for each key";
    EXPECT_EQ(history().redoName(), "Week of manufacture");
    ASSERT_TRUE(history().redo());
    EXPECT_EQ(program.cell(16), "1F");
    EXPECT_EQ(program.cell(127), "E7");
}

TEST_F(HistoryTest, EveryCellButTheCheckSumCanBeTakenBack) {
    edit(emptyBlock0(1) + emptyExtension());
    const auto tryCells = [&](BlockScreen& screen) {
        for (int i = 0; i < checksumCell; ++i) {
            SCOPED_TRACE(screen.txtEdit(i).fullName());
            const std::string before = screen.txtEdit(i).text();
            typeInto(screen.txtEdit(i), "A5");
            ASSERT_EQ(screen.txtEdit(i).text(), "A5");
            program.takeBoxes(); // of what a block is taken for now
            ASSERT_TRUE(history().undo());
            EXPECT_EQ(screen.txtEdit(i).text(), before);
        }
    };
    tryCells(edid());
    input::click(workbench.frmMain().Command4);
    tryCells(cea());
}

TEST_F(HistoryTest, ACellThatIsTypedAgainIsAStepOfItsOwn) {
    edit();
    typeIntoCell(16, "1F");
    input::moveFocus(edid().txtEdit(17));
    typeIntoCell(16, "20");
    history().undo();
    EXPECT_EQ(program.cell(16), "1F");
    history().undo();
    EXPECT_EQ(program.cell(16), "00");
}

TEST_F(HistoryTest, AnUnfinishedCellIsTakenBackToo) {
    edit();
    typeIntoCell(16, "1");
    ASSERT_TRUE(history().undo());
    EXPECT_EQ(program.cell(16), "00");
    program.type("2F");
    EXPECT_EQ(program.cell(16), "2F") << "the text is selected as on any visit";
    history().undo();
    EXPECT_EQ(program.cell(16), "00");
}

TEST_F(HistoryTest, TypingWhatWasThereIsNoStep) {
    edit();
    typeIntoCell(16, "00");
    EXPECT_FALSE(history().canUndo());
}

TEST_F(HistoryTest, AnEntryOfAPanelIsOneStep) {
    edit();
    input::moveFocus(edid().txtEdit(8));
    enterInto(edid().VendorInfo, "ABC");
    ASSERT_EQ(program.cell(8) + program.cell(9), "0443") << "five bits each";
    EXPECT_EQ(history().undoName(), "Maker");
    ASSERT_TRUE(history().undo());
    EXPECT_EQ(program.cell(8) + program.cell(9), "0000");
    EXPECT_FALSE(history().canUndo());
}

TEST_F(HistoryTest, AnEntryThatEndsInABoxIsNone) {
    edit();
    input::moveFocus(edid().txtEdit(8));
    enterInto(edid().VendorInfo, "1");
    EXPECT_EQ(program.takeBoxes().size(), 1U);
    EXPECT_FALSE(history().canUndo());
}

TEST_F(HistoryTest, AClickOnAnOptionIsOneStep) {
    edit();
    input::moveFocus(edid().txtEdit(35));
    input::click(edid().ET1(0));
    ASSERT_NE(program.cell(35), "00");
    history().undo();
    EXPECT_EQ(program.cell(35), "00");
    EXPECT_EQ(edid().ET1(0).value(), 0) << "the panel shows what is true";
    EXPECT_FALSE(history().canUndo());
}

TEST_F(HistoryTest, ABlankedDescriptorIsOneStep) {
    edit();
    typeIntoCell(54, "28");
    typeIntoCell(55, "3C");
    input::doubleClick(edid().Hints(9));
    ASSERT_EQ(program.cell(54) + program.cell(57), "00FF");
    EXPECT_EQ(history().undoName(), "Blanked descriptor");
    ASSERT_TRUE(history().undo());
    EXPECT_EQ(program.cell(54) + program.cell(55) + program.cell(57), "283C00");
    EXPECT_EQ(program.takeBoxes(), Texts()) << "the block is read as the timing that it is again";
    EXPECT_EQ(history().undoName(), "Pixel clock");
}

TEST_F(HistoryTest, ACheckSumThatTheProgramPutsRightIsNoStep) {
    std::string bytes = emptyBlock0(0);
    bytes[127] = 0x55;
    edit(bytes);
    ASSERT_EQ(program.cell(127), "06") << "by the visit that comes with editing";
    EXPECT_FALSE(history().canUndo());
    typeIntoCell(16, "01");
    history().undo();
    EXPECT_EQ(program.cell(127), "06");
    EXPECT_EQ(workbench.EDIDModified, flagTrue) << "the image is not the one that was loaded";
}

TEST_F(HistoryTest, WhatIsPutIntoACellBehindTheScreensIsNoStep) {
    edit();
    edid().txtEdit(16).setText("12");
    input::moveFocus(edid().txtEdit(17));
    EXPECT_FALSE(history().canUndo());
}

TEST_F(HistoryTest, GivesTheFocusToTheCellThatHadItWithItsEvents) {
    edit();
    input::moveFocus(edid().txtEdit(8));
    enterInto(edid().VendorInfo, "ABC");
    input::moveFocus(edid().txtEdit(20));
    ASSERT_FALSE(edid().Hints(1).visible());
    history().undo();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(8)");
    EXPECT_TRUE(edid().Hints(1).visible());
    EXPECT_EQ(edid().txtEdit(8).backColor(), CellColour::Field);
}

TEST_F(HistoryTest, ACellThatHasTheFocusGetsItsEventsAllTheSame) {
    edit();
    typeIntoCell(16, "1F");
    const std::string shown = edid().lbVendor(2).caption();
    history().undo();
    EXPECT_EQ(focused(), "frmEDID.txtEdit(16)");
    EXPECT_EQ(edid().txtEdit(16).selLength(), 2) << "selected as on a visit";
    EXPECT_NE(edid().lbVendor(2).caption() + edid().lbVendor(3).caption() + edid().lbVendor(4).caption(), shown);
}

TEST_F(HistoryTest, TheImageIsModifiedUnlessItIsTheOneThatWasLoaded) {
    edit();
    ASSERT_EQ(workbench.EDIDModified, flagFalse);
    typeIntoCell(16, "01");
    typeIntoCell(17, "02");
    history().undo();
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
    history().undo();
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    history().redo();
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(HistoryTest, TheImageIsModifiedUnlessItIsTheOneThatWasSaved) {
    const test::TemporaryFolder folder;
    edit();
    typeIntoCell(16, "01");
    program.platform.queueFileName(folder.file("a.DAT"));
    input::choose(workbench.frmMain().mnuFileSave);
    ASSERT_EQ(workbench.EDIDModified, flagFalse);
    history().undo();
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
    history().redo();
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
}

TEST_F(HistoryTest, AnotherChangeForgetsWhatWasTakenBack) {
    edit();
    typeIntoCell(16, "01");
    history().undo();
    typeIntoCell(17, "02");
    EXPECT_FALSE(history().canRedo());
    history().undo();
    EXPECT_EQ(program.cell(16) + program.cell(17), "0000");
}

TEST_F(HistoryTest, AnotherImageForgetsAll) {
    edit();
    typeIntoCell(16, "01");
    load(emptyBlock0(0));
    EXPECT_FALSE(history().canUndo());
    typeIntoCell(16, "01");
    program.platform.queueAnswer(platform::Answer::No);
    program.platform.queueAnswer(platform::Answer::Yes);
    input::choose(workbench.frmMain().mnuFileNew);
    EXPECT_FALSE(history().canUndo());
    EXPECT_FALSE(history().canRedo());
}

TEST_F(HistoryTest, ClosingTheImageForgetsAll) {
    edit();
    typeIntoCell(16, "01");
    input::choose(workbench.frmMain().mnuFileClose);
    ASSERT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
    EXPECT_FALSE(history().undo());
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr) << "not brought back";
}

TEST_F(HistoryTest, ACancelledOpenForgetsNothing) {
    edit();
    typeIntoCell(16, "01");
    input::choose(workbench.frmMain().mnuFileOpen);
    EXPECT_TRUE(history().canUndo());
}

TEST_F(HistoryTest, ReachesTheExtensionAndBringsItsScreenBack) {
    edit(emptyBlock0(1) + emptyExtension());
    input::click(workbench.frmMain().Command4);
    typeInto(cea().txtEdit(3), "80");
    EXPECT_EQ(cea().txtEdit(127).text(), "77") << "F7 - 80";
    input::click(cea().Cmd_Return);
    ASSERT_FALSE(cea().shown());
    ASSERT_TRUE(history().undo());
    EXPECT_EQ(cea().txtEdit(3).text(), "00");
    EXPECT_EQ(cea().txtEdit(127).text(), "F7");
    EXPECT_TRUE(cea().shown());
    EXPECT_EQ(workbench.CEAScreenOpen, flagTrue);
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(3)");
}

TEST_F(HistoryTest, TheButtonOfTheExtensionFollowsByte126) {
    edit();
    typeIntoCell(126, "01");
    input::moveFocus(edid().txtEdit(0));
    input::moveFocus(edid().txtEdit(126));
    ASSERT_TRUE(workbench.frmMain().Command4.enabled());
    history().undo();
    EXPECT_FALSE(workbench.frmMain().Command4.enabled());
}

TEST_F(HistoryTest, RestsBehindAModalScreen) {
    edit();
    typeIntoCell(16, "01");
    input::choose(workbench.frmMain().Info);
    EXPECT_FALSE(history().undo());
    EXPECT_EQ(program.cell(16), "01");
}

TEST_F(HistoryTest, AnOpenReportIsMadeAnew) {
    edit();
    typeIntoCell(21, "34");
    input::click(workbench.frmMain().Command1);
    ASSERT_NE(workbench.frmDocument().rtftext.text().find("520"), std::string::npos) << "millimetres";
    history().undo();
    EXPECT_EQ(workbench.frmDocument().rtftext.text().find("520"), std::string::npos);
}

TEST_F(HistoryTest, NamesACellOfSeveralFieldsByTheFirst) {
    edit();
    typeIntoCell(54, "28");
    typeIntoCell(58, "11");
    EXPECT_EQ(history().undoName(), "Horizontal active and 1 more") << "and horizontal blanking";
}

} // namespace
} // namespace wb::shell
