#include "shell/lifecycle.h"

#include <gtest/gtest.h>

#include <map>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::shell {
namespace {

using Lines = std::vector<std::string>;
using platform::Answer;

class Lifecycle : public testing::Test {
protected:
    void answer(std::initializer_list<Answer> answers) {
        for (const Answer one : answers) {
            program.platform.queueAnswer(one);
        }
    }
    void newImage(Answer extension = Answer::No) {
        answer({extension});
        input::choose(frame().mnuFileNew);
        program.takeBoxes();
    }
    FrmMain& frame() { return workbench.frmMain(); }
    Lines windowNames() {
        Lines names;
        for (const Screen* screen : workbench.windows.children()) {
            names.emplace_back(screen->name());
        }
        return names;
    }
    /// A data file whose cells are all "00" but for those given.
    std::string dataFile(const std::string& name, const std::map<int, std::string>& cells, int count = 128) {
        std::string content = "128 BYTES OF EDID CODE:\r\n\r\n\r\n";
        for (int i = 0; i < count; ++i) {
            const auto cell = cells.find(i);
            content += "|" + (cell == cells.end() ? "00" : cell->second) + "\r\n";
        }
        return folder.write(name, content);
    }
    void open(const std::string& name) {
        program.platform.queueFileName(name);
        input::choose(frame().mnuFileOpen);
    }

    test::TemporaryFolder folder;
    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(Lifecycle, NewWithoutExtension) {
    newImage();
    EXPECT_EQ(program.cell(0), "00");
    EXPECT_EQ(program.cell(1), "FF");
    EXPECT_EQ(program.cell(6), "FF");
    EXPECT_EQ(program.cell(7), "00");
    EXPECT_EQ(program.cell(126), "00");
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr) << "not even touched";
    EXPECT_EQ(workbench.ModifyEDIDOn, flagFalse);
    EXPECT_FALSE(frame().Command4.enabled());
    EXPECT_EQ(frame().Command4.caption(), "No Ext Block");
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
}

TEST_F(Lifecycle, NewWithExtensionStartsInTheEditingState) {
    newImage(Answer::Yes);
    EXPECT_EQ(program.cell(126), "01");
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(0).text(), "02");
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(1).text(), "00") << "the 03 of the load step is overwritten";
    EXPECT_EQ(workbench.ModifyEDIDOn, flagTrue);
    EXPECT_TRUE(frame().Command4.enabled());
    EXPECT_EQ(frame().Command4.caption(), "See Ext Block");
    EXPECT_FALSE(workbench.frmCEA_EXT().shown());
}

TEST_F(Lifecycle, NewWithExtensionLeavesASwitchThatIsOn) {
    newImage();
    input::click(frame().Command2);
    answer({Answer::Yes, Answer::Yes});
    workbench.EDIDModified = flagFalse;
    input::choose(frame().mnuFileNew);
    EXPECT_EQ(workbench.ModifyEDIDOn, flagTrue);
}

TEST_F(Lifecycle, NewAnsweredNoKeepsTheCellsAsANamelessImage) {
    newImage();
    program.setCells(20, {"80"});
    program.setCells(127, {"12"});
    workbench.CurrentFileName = "a.DAT";
    answer({Answer::No});
    input::choose(frame().mnuFileNew);
    EXPECT_EQ(program.lines.back(), "[box] \"Are You Sure?\" title=\"New EDID Data File\" YesNo -> No");
    EXPECT_EQ(program.cell(20), "80");
    EXPECT_EQ(workbench.CurrentFileName, "");
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "12");
    EXPECT_EQ(workbench.Block0ChecksumLast, "12");
}

TEST_F(Lifecycle, NewOffersToSaveAndStopsWhenTheSaveWasAbandoned) {
    newImage();
    program.setCells(20, {"80"});
    workbench.EDIDModified = flagTrue;
    answer({Answer::Yes});
    input::choose(frame().mnuFileNew);
    EXPECT_EQ(program.takeBoxes(), Lines{"Save Changes?"});
    EXPECT_EQ(program.cell(20), "80");
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(Lifecycle, OpenReadsTheCells) {
    const std::string name = dataFile("a.DAT", {{8, "22"}, {9, "D6"}, {127, "08"}});
    open(name);
    EXPECT_EQ(program.cell(8), "22");
    EXPECT_EQ(workbench.IDManufacturerName, "HVV");
    EXPECT_EQ(workbench.frmEDID().txtBrand.text(), "HVV");
    EXPECT_EQ(workbench.CurrentFileName, name);
    EXPECT_EQ(workbench.frmEDID().caption(), name);
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "08");
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    EXPECT_EQ(program.lines.front(), "[dialog] Open filter=\"EDID/DDC Data Files (*.DAT)|*.DAT\" -> \"" + name + "\"");
}

TEST_F(Lifecycle, OpenGivesNoPromptForUnsavedChanges) {
    newImage();
    workbench.EDIDModified = flagTrue;
    open(dataFile("a.DAT", {}));
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
}

TEST_F(Lifecycle, ACancelledOpenLeavesANamelessImageWithClearedIdentity) {
    newImage();
    workbench.frmEDID().txtBrand.setText("Halvorine");
    workbench.CurrentFileName = "a.DAT";
    workbench.EDIDModified = flagTrue;
    input::choose(frame().mnuFileOpen);
    EXPECT_EQ(workbench.CurrentFileName, "");
    EXPECT_EQ(workbench.frmEDID().txtBrand.text(), "");
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(Lifecycle, OpenOfAFileWithoutMarkerLeavesTheCells) {
    newImage();
    program.setCells(20, {"80"});
    open(folder.write("text.DAT", "nothing"));
    EXPECT_EQ(program.takeBoxes(), Lines{"This File is not a Valid EDID/DDC File"});
    EXPECT_EQ(program.cell(20), "80");
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
}

TEST_F(Lifecycle, ContentInMemoryIsOpenedUnderItsName) {
    const auto content = [this](const std::map<int, std::string>& cells) {
        return test::TemporaryFolder::read(dataFile("image.DAT", cells));
    };
    EXPECT_TRUE(openDataFile(workbench, "one.DAT", content({{20, "80"}})));
    EXPECT_EQ(program.cell(20), "80");
    EXPECT_EQ(workbench.CurrentFileName, "one.DAT");
    EXPECT_EQ(workbench.frmEDID().caption(), "one.DAT");
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_FALSE(openDataFile(workbench, "two.DAT", "nothing"));
    EXPECT_EQ(program.takeBoxes(), Lines{"This File is not a Valid EDID/DDC File"});
    EXPECT_EQ(program.cell(20), "80");
    EXPECT_TRUE(openDataFile(workbench, "three.DAT", content({{20, "81"}, {126, "ZZ"}})));
    EXPECT_EQ(program.cell(20), "81") << "the image is there, whatever fails behind it";
    EXPECT_EQ(program.takeBoxes().size(), 4U) << "those of the last decoder, and of the command itself";
}

TEST_F(Lifecycle, OpenTestsTheExtensionByValueNotByDecimalText) {
    open(dataFile("a.DAT", {{126, "0A"}, {128, "02"}, {130, "14"}}, 256));
    EXPECT_TRUE(frame().Command4.enabled());
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(0).text(), "02");
    EXPECT_EQ(workbench.CEADtdOffset, 20);
}

TEST_F(Lifecycle, AnExtensionOfAnotherTagStandsInTheCellsOnly) {
    open(dataFile("a.DAT", {{126, "01"}, {128, "F0"}, {129, "02"}, {130, "14"}}, 256));
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(1).text(), "02");
    EXPECT_EQ(workbench.CEADtdOffset, 0);
}

TEST_F(Lifecycle, ModifyThenNewThenOpenEachLeaveAVisibleScreen) {
    input::click(frame().Command2);
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    answer({Answer::Yes, Answer::No});
    input::choose(frame().mnuFileNew);
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    open(dataFile("a.DAT", {}));
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    EXPECT_TRUE(workbench.frmEDID().txtEdit(0).visible());
}

TEST_F(Lifecycle, ClosingTheImageAsksWhenItIsModified) {
    newImage();
    workbench.EDIDModified = flagTrue;
    answer({Answer::Yes});
    input::close(workbench.frmEDID());
    EXPECT_EQ(program.takeBoxes(), Lines{"Save Changes?"});
    EXPECT_EQ(windowNames(), Lines{"frmEDID"}) << "refused, since the save was abandoned";
    EXPECT_EQ(workbench.EDIDLoaded, flagFalse);
    answer({Answer::No});
    input::close(workbench.frmEDID());
    EXPECT_TRUE(windowNames().empty());
}

TEST_F(Lifecycle, OneCloseMayCloseAChainOfWindows) {
    newImage();
    input::click(frame().Command1);
    EXPECT_EQ(windowNames(), (Lines{"frmDocument", "frmEDID"}));
    // The image is tested before the report window: with the report active one Close closes the report alone.
    input::choose(frame().mnuFileClose);
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    input::click(frame().Command1);
    input::activate(workbench.frmEDID());
    // With the image active its unload makes the report active, which the same Close then meets.
    input::choose(frame().mnuFileClose);
    EXPECT_TRUE(windowNames().empty());
    EXPECT_EQ(workbench.DocumentOpen, flagFalse);
}

TEST_F(Lifecycle, TheReportWindowIsClosedByItsOwnButton) {
    newImage();
    input::click(frame().Command1);
    EXPECT_EQ(workbench.DocumentOpen, flagTrue);
    input::close(workbench.frmDocument());
    EXPECT_EQ(workbench.DocumentOpen, flagFalse);
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
}

TEST_F(Lifecycle, ToolBarKeysDoWhatTheMenuDoes) {
    input::toolBar(workbench, "New");
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    input::toolBar(workbench, "Print Preview");
    EXPECT_EQ(windowNames(), (Lines{"frmDocument", "frmEDID"}));
    program.takeLines();
    EXPECT_TRUE(input::toolBar(workbench, "Unknown"));
    EXPECT_TRUE(program.lines.empty());
}

TEST_F(Lifecycle, ModelNameJoinsTheNameDescriptors) {
    newImage();
    EXPECT_EQ(GetModelName(workbench, "none"), "none");
    program.setCells(57, {"FC", "00", "41", "42", "43", "44", "45", "46", "47", "48", "49", "4A", "4B", "4C", "4D"});
    EXPECT_EQ(GetModelName(workbench, "none"), "none") << "no descriptor ends in a line feed";
    program.setCells(93, {"FC", "00", "4E", "0A"});
    EXPECT_EQ(GetModelName(workbench, "none"), "ABCDEFGHIJKLMN");
    program.setCells(57, {"fc"});
    EXPECT_EQ(GetModelName(workbench, "none"), "N");
}

TEST_F(Lifecycle, FillInModelInfoSetsBrandAndModel) {
    newImage();
    EXPECT_TRUE(FillInModelInfo(workbench));
    EXPECT_EQ(workbench.frmEDID().txtModel.text(), "UNKNOWN MODEL");
    EXPECT_EQ(workbench.frmEDID().txtBrand.text(), "UNKNOWN BRAND");
    workbench.IDManufacturerName = "HLV";
    EXPECT_TRUE(FillInModelInfo(workbench));
    EXPECT_EQ(workbench.frmEDID().txtBrand.text(), "HLV");
}

} // namespace
} // namespace wb::shell
