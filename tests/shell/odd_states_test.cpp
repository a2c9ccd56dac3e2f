#include <gtest/gtest.h>

#include <map>

#include "shell/lifecycle.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::shell {
namespace {

using Lines = std::vector<std::string>;
using platform::Answer;

const std::string invalidCall = "Invalid procedure call or argument";

class OddStates : public testing::Test {
protected:
    void newImage(Answer extension = Answer::No) {
        program.platform.queueAnswer(extension);
        input::choose(frame.mnuFileNew);
        program.takeLines();
        program.takeBoxes();
    }
    /// A data file of so many cells, "00" but for those given.
    std::string dataFile(const std::map<int, std::string>& cells, int count = 128) {
        std::string content = "128 BYTES OF EDID CODE:\r\n\r\n\r\n";
        for (int i = 0; i < count; ++i) {
            const auto cell = cells.find(i);
            content += "|" + (cell == cells.end() ? "00" : cell->second) + "\r\n";
        }
        return folder.write("image.DAT", content);
    }
    void open(const std::string& name) {
        program.platform.queueFileName(name);
        input::choose(frame.mnuFileOpen);
    }
    /// The image stays open after the user wanted to save and then gave no name.
    void refuseToClose() {
        workbench.EDIDModified = flagTrue;
        program.platform.queueAnswer(Answer::Yes);
        input::close(workbench.frmEDID());
        program.takeLines();
        program.takeBoxes();
        ASSERT_EQ(workbench.EDIDLoaded, flagFalse);
        ASSERT_TRUE(workbench.frmEDID().shown());
    }
    std::string extensionCell(int index) { return workbench.frmCEA_EXT().txtEdit(index).text(); }

    test::TemporaryFolder folder;
    test::Program program;
    Workbench& workbench = program.workbench;
    FrmMain& frame = workbench.frmMain();
};

TEST_F(OddStates, ANewExtensionIsEmptyButForItsTag) {
    newImage(Answer::Yes);
    EXPECT_EQ(extensionCell(0), "02");
    for (int i = 1; i < BlockScreen::cellCount; ++i) {
        EXPECT_EQ(extensionCell(i), "00") << i;
    }
    EXPECT_EQ(program.cell(126), "01");
    EXPECT_EQ(program.cell(127), "00") << "an image is made without its check sum";
}

TEST_F(OddStates, ANewImageWithoutExtensionLeavesTheCellsOfTheOldOne) {
    newImage(Answer::Yes);
    workbench.frmCEA_EXT().txtEdit(9).setText("77");
    program.platform.queueAnswer(Answer::Yes);
    newImage(Answer::No);
    EXPECT_EQ(program.cell(126), "00");
    EXPECT_EQ(extensionCell(9), "77");
    EXPECT_FALSE(frame.Command4.enabled());
    EXPECT_EQ(workbench.ModifyEDIDOn, flagTrue) << "as it was";
}

TEST_F(OddStates, ANewImageClearsItsIdentity) {
    newImage();
    FrmEdid& screen = workbench.frmEDID();
    for (Control* text : {static_cast<Control*>(&screen.txtBrand), static_cast<Control*>(&screen.txtModel),
                          static_cast<Control*>(&screen.txtVersion), static_cast<Control*>(&screen.txtRevision)}) {
        text->setText("old");
    }
    program.platform.queueAnswer(Answer::Yes);
    newImage();
    EXPECT_EQ(screen.txtBrand.text() + screen.txtModel.text() + screen.txtVersion.text() + screen.txtRevision.text(),
              "");
}

TEST_F(OddStates, NewAndOpenComeToTheFrontWithTheirFirstCell) {
    newImage();
    input::moveFocus(workbench.frmEDID().txtEdit(40));
    input::choose(frame.HexCalculator);
    input::choose(frame.mnuFileNew); // and No: the old cells stay, and the focus goes where it was
    EXPECT_EQ(workbench.windows.activeChild(), &workbench.frmEDID());
    EXPECT_EQ(workbench.focus.current(), &workbench.frmEDID().txtEdit(40));
    input::activate(workbench.frmHexCalculator());
    open(dataFile({}));
    EXPECT_EQ(workbench.windows.activeChild(), &workbench.frmEDID());
    EXPECT_EQ(workbench.focus.current(), &workbench.frmEDID().txtEdit(0));
}

TEST_F(OddStates, NewShowsAFailureAndLeavesTheStateAsItStands) {
    newImage();
    workbench.CurrentFileName = "old.DAT";
    program.setCells(126, {"ZZ"});
    input::choose(frame.mnuFileNew);
    // The question, the helper's box and that of the command.
    EXPECT_EQ(program.takeBoxes(), (Lines{"Are You Sure?", invalidCall, invalidCall}));
    EXPECT_EQ(workbench.CurrentFileName, "");
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "00");
}

TEST_F(OddStates, ARefusedCloseLeavesAScreenWithoutAnImage) {
    newImage();
    refuseToClose();
    for (Control* entry : {static_cast<Control*>(&frame.mnuFileSave), static_cast<Control*>(&frame.mnuFilePrint),
                           static_cast<Control*>(&frame.ExportHex)}) {
        input::choose(*entry);
    }
    input::click(frame.Command1);
    EXPECT_TRUE(program.takeLines().empty());
    EXPECT_EQ(workbench.DocumentOpen, flagFalse);
}

TEST_F(OddStates, ARefusedCloseIsAskedAgainAndCannotBeSavedAnyMore) {
    newImage();
    refuseToClose();
    program.platform.queueAnswer(Answer::Yes);
    input::choose(frame.mnuFileClose);
    EXPECT_EQ(program.takeLines(), Lines{"[box] \"Save Changes?\" YesNo -> Yes"}) << "no dialog: there is no image";
    EXPECT_TRUE(workbench.frmEDID().shown());
    program.platform.queueAnswer(Answer::No);
    input::choose(frame.mnuFileClose);
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(OddStates, NewAfterARefusedCloseDoesNotAskWhetherTheUserIsSure) {
    newImage();
    program.setCells(20, {"80"});
    refuseToClose();
    input::choose(frame.mnuFileNew);
    EXPECT_EQ(program.takeBoxes(), (Lines{"Save Changes?", "CEA 861 EDID Timing Extension?"}));
    EXPECT_EQ(program.cell(20), "00");
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.EDIDLoaded, flagFalse) << "only a load step sets it, and the screen was there";
}

TEST_F(OddStates, OpenAfterARefusedCloseKeepsTheIdentityUntilItIsDecoded) {
    newImage();
    workbench.frmEDID().txtModel.setText("old");
    refuseToClose();
    input::choose(frame.mnuFileOpen);
    EXPECT_EQ(workbench.frmEDID().txtModel.text(), "old");
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
}

TEST_F(OddStates, CloseMayCloseAllFourWindows) {
    newImage(Answer::Yes);
    workbench.EDIDModified = flagFalse;
    input::click(frame.Command4);
    input::click(frame.Command1);
    input::activate(workbench.frmEDID());
    input::choose(frame.HexCalculator);
    ASSERT_EQ(workbench.windows.children(), (std::vector<Screen*>{&workbench.frmHexCalculator(), &workbench.frmEDID(),
                                                                  &workbench.frmDocument(), &workbench.frmCEA_EXT()}));
    input::choose(frame.mnuFileClose);
    EXPECT_TRUE(workbench.windows.children().empty());
    EXPECT_EQ(workbench.focus.current(), nullptr);
    EXPECT_EQ(workbench.HexCalculatorOpen, flagFalse);
    EXPECT_EQ(workbench.DocumentOpen, flagFalse);
    EXPECT_EQ(workbench.CEAScreenOpen, flagFalse);
    EXPECT_EQ(workbench.EDIDLoaded, flagFalse);
}

TEST_F(OddStates, ACloseThatIsRefusedLeavesTheWindowsBehind) {
    newImage();
    input::click(frame.Command1);
    input::activate(workbench.frmEDID());
    workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(Answer::Yes);
    input::choose(frame.mnuFileClose);
    EXPECT_EQ(workbench.windows.children(), (std::vector<Screen*>{&workbench.frmEDID(), &workbench.frmDocument()}));
}

TEST_F(OddStates, AMarkerWithoutRowsEmptiesTheCells) {
    newImage();
    open(dataFile({}, 0));
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        EXPECT_EQ(program.cell(i), "") << i;
    }
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr) << "an empty cell has the value 0";
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "");
}

TEST_F(OddStates, AnExtensionWithoutRowsEmptiesItsCells) {
    newImage(Answer::Yes);
    workbench.CEADtdOffset = 9;
    open(dataFile({{126, "0A"}}));
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        EXPECT_EQ(extensionCell(i), "") << i;
    }
    EXPECT_EQ(workbench.CEADtdOffset, 9) << "no tag: nothing is decoded";
    EXPECT_TRUE(frame.Command4.enabled());
    EXPECT_FALSE(workbench.frmCEA_EXT().shown());
    EXPECT_TRUE(program.takeBoxes().empty());
}

TEST_F(OddStates, TheModelOfTheExtensionScreenFollowsTheImage) {
    open(dataFile({{54, "00"}, {55, "00"}, {56, "00"}, {57, "FC"}, {59, "41"}, {60, "0A"}, {126, "01"}, {128, "02"}},
                  256));
    EXPECT_EQ(workbench.frmEDID().txtModel.text(), workbench.frmCEA_EXT().txtModel.text());
    EXPECT_NE(workbench.frmEDID().txtModel.text(), "");
}

TEST_F(OddStates, AnUnreadableExtensionCountEndsOpen) {
    open(dataFile({{8, "22"}, {126, "ZZ"}, {127, "08"}}));
    // Twice a helper's box and a procedure's: the last decoder, whose failure the load shows, and the command itself.
    EXPECT_EQ(program.takeBoxes(), Lines(4, invalidCall));
    EXPECT_EQ(program.cell(8), "22");
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "");
    EXPECT_FALSE(frame.Command4.enabled());
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue) << "set by the load of the screen";
}

TEST_F(OddStates, AnUnreadableTagEndsTheLoadOfTheExtension) {
    open(dataFile({{126, "01"}, {127, "08"}, {128, "ZZ"}}, 256));
    EXPECT_EQ(program.takeBoxes(), Lines(2, invalidCall));
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "08") << "the command goes on";
}

TEST_F(OddStates, AnUnreadableNameIsShownAndEmpty) {
    newImage();
    program.setCells(57, {"FC", "00", "41", "ZZ"});
    EXPECT_EQ(GetModelName(workbench, "none"), "");
    EXPECT_EQ(program.takeBoxes(), Lines(2, invalidCall));
}

TEST_F(OddStates, TheReportFillsItsWindow) {
    newImage();
    input::click(frame.Command1);
    FrmDocument& screen = workbench.frmDocument();
    screen.innerWidth = 5000;
    screen.innerHeight = 3000;
    frmDocument_Resize(workbench);
    EXPECT_EQ(screen.rtftext.bounds().left, 100);
    EXPECT_EQ(screen.rtftext.bounds().top, 100);
    EXPECT_EQ(screen.rtftext.bounds().width, 4800);
    EXPECT_EQ(screen.rtftext.bounds().height, 2800);
    screen.innerWidth = 199;
    frmDocument_Resize(workbench);
    EXPECT_EQ(screen.rtftext.bounds().width, 4800) << "a negative size is passed over";
}

} // namespace
} // namespace wb::shell
