#include "acquire/get_edid.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "acquire/monitors.h"
#include "core/base/text.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::acquire {
namespace {

using Lines = std::vector<std::string>;

const std::string notLocated =
    "Unable to locate EDID Data. \r\n\r\n"
    "Using the Control Panel, please make sure that a Monitor has been Detected by Windows 2000/XP";

class GetEdid : public testing::Test {
protected:
    void store(const std::string& edid) { test::addMonitor(program.platform.registry, "AAA0001", edid); }
    void run() { input::choose(program.workbench.frmMain().GetEDIDData); }
    void newImage() {
        program.platform.queueAnswer(platform::Answer::No);
        input::choose(program.workbench.frmMain().mnuFileNew);
        program.takeBoxes();
    }
    std::string extensionCell(int index) { return workbench.frmCEA_EXT().txtEdit(index).text(); }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(GetEdid, PutsTheStoredEdidIntoTheCells) {
    store(test::block0('\x2A'));
    run();
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_TRUE(workbench.frmEDID().shown());
    const Lines first{"00", "FF", "FF", "FF", "FF", "FF", "FF", "00", "2A", "00"};
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(program.cell(static_cast<int>(i)), first[i]) << i;
    }
    // 6 * 255 + 42 = 1572 = 6 * 256 + 36
    EXPECT_EQ(program.cell(127), "DC");
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "DC");
    EXPECT_EQ(workbench.Block0ChecksumLast, "DC");
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_FALSE(workbench.frmMain().Command4.enabled());
}

TEST_F(GetEdid, DecodesTheImage) {
    std::string edid = test::block0('\x04');
    edid[9] = '\x21'; // 0 00001 00001 00001: AAA
    store(edid);
    run();
    EXPECT_EQ(workbench.IDManufacturerName, "AAA");
}

TEST_F(GetEdid, TheToolBarKeyDoesTheSame) {
    store(test::block0('\x2A'));
    input::toolBar(workbench, "GetEDID");
    EXPECT_EQ(program.cell(8), "2A");
}

TEST_F(GetEdid, TakesOneExtensionBlock) {
    std::string extension(128, '\x11');
    extension[0] = '\x40'; // no CEA timing extension: it is taken all the same
    extension[2] = '\x2B';
    store(test::block0('\x04', '\x01') + extension);
    run();
    EXPECT_EQ(extensionCell(0), "40");
    EXPECT_EQ(extensionCell(127), "11");
    EXPECT_FALSE(workbench.frmCEA_EXT().shown());
    EXPECT_TRUE(workbench.frmMain().Command4.enabled());
    EXPECT_EQ(workbench.frmMain().Command4.caption(), "See Ext Block");
    EXPECT_EQ(workbench.CEADtdOffset, 0) << "only the load from a file sets it";
}

TEST_F(GetEdid, AnOffsetThatAFileLeftMovesTheTimings) {
    workbench.CEADtdOffset = 7;
    std::string extension(128, '\x11');
    extension[0] = '\x02';
    extension[2] = '\x04';
    store(test::block0('\x04', '\x01') + extension);
    run();
    // The area at 7 of the transfer buffer, which is empty, takes the place of what was read from cell 4 on. 121 texts
    // bring the move to cell 125, one more is passed over, and the second run from 126 on leaves the grid.
    EXPECT_EQ(workbench.CEADtdOffset, 7);
    EXPECT_EQ(extensionCell(3), "11");
    EXPECT_EQ(extensionCell(4), "");
    EXPECT_EQ(extensionCell(123), "");
    EXPECT_EQ(extensionCell(124), "00");
    EXPECT_EQ(extensionCell(126), "00");
    EXPECT_EQ(extensionCell(127), "");
    // The load step of the screen has moved its own block in the same way, from cell 0 on: there the second run starts
    // at cell 122 and fits six texts, here at cell 126 and fits two.
    const auto missing = std::count(program.boxes.begin(), program.boxes.end(), "Control array element does not exist");
    EXPECT_EQ(missing, (121 - 6) + (121 - 2));
}

TEST_F(GetEdid, CutsWhatIsLongerThanTwoBlocks) {
    store(test::block0('\x04', '\x03') + std::string(128, '\x02') + std::string(768, '\x33'));
    run();
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_EQ(extensionCell(127), "02");
    EXPECT_EQ(program.cell(126), "03");
}

TEST_F(GetEdid, WithoutAMonitorNothingIsTouched) {
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{notLocated});
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(GetEdid, ASkippedMonitorAloneIsNone) {
    test::addMonitor(program.platform.registry, "Default_Monitor", test::block0());
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{notLocated});
}

TEST_F(GetEdid, TheFirstMonitorWinsEvenIfItHasNoEdid) {
    store("");
    test::addMonitor(program.platform.registry, "BBB0002", test::block0());
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{notLocated});
}

TEST_F(GetEdid, AnEdidAboveTheBufferIsNone) {
    store(test::block0() + std::string(1024, '\0'));
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{notLocated});
}

TEST_F(GetEdid, WithoutAMonitorTheRootIsSearchedForAValue) {
    program.platform.registry.setValue(
        "", {.name = "EDID", .type = platform::RegistryType::Binary, .data = test::block0('\x77')});
    run();
    EXPECT_EQ(program.cell(8), "77");
}

TEST_F(GetEdid, AnInstanceWithAnotherSpellingOfControlIsReadItself) {
    const std::string instance = test::displayKey + "\\AAA0001\\1";
    program.platform.registry.addKey(instance + "\\CONTROL");
    program.platform.registry.setValue(
        instance + "\\Device Parameters",
        {.name = "EDID", .type = platform::RegistryType::Binary, .data = test::block0('\x11')});
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{notLocated});
    program.platform.registry.setValue(
        instance, {.name = "EDID", .type = platform::RegistryType::Binary, .data = test::block0('\x22')});
    run();
    EXPECT_EQ(program.cell(8), "22");
}

TEST_F(GetEdid, ASearchStartsAtTheBaseLocation) {
    program.platform.registry.addKey("ELSEWHERE\\Control");
    program.platform.registry.setValue(
        "ELSEWHERE\\Device Parameters",
        {.name = "EDID", .type = platform::RegistryType::Binary, .data = test::block0('\x44')});
    workbench.RegBaseLocation = "ELSEWHERE";
    run();
    EXPECT_EQ(program.cell(8), "44");
}

TEST_F(GetEdid, AMissingByteEndsTheLoadAndTheCellsBeforeItStay) {
    newImage();
    workbench.CurrentFileName = "kept.DAT";
    workbench.Block0ChecksumAsLoaded = "kept";
    const std::string text = "no EDID at all";
    store(text);
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{"Invalid procedure call or argument"});
    EXPECT_EQ(program.cell(0), "6E");
    EXPECT_EQ(program.cell(13), "6C");
    EXPECT_EQ(program.cell(14), "00");
    EXPECT_EQ(workbench.CurrentFileName, "kept.DAT");
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "kept");
}

TEST_F(GetEdid, TheFirstCellGetsTheFocusBeforeAnyByteIsThere) {
    newImage();
    workbench.focus.moveTo(workbench.frmEDID().txtEdit(5));
    store("no EDID at all");
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{"Invalid procedure call or argument"});
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
}

class OddLengths : public GetEdid, public testing::WithParamInterface<std::size_t> {};

TEST_P(OddLengths, OfBlock0FailOnce) {
    store(test::block0('\x2A').substr(0, GetParam()));
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{"Invalid procedure call or argument"});
    EXPECT_EQ(program.cell(static_cast<int>(GetParam()) - 1),
              ByteToHex2(static_cast<unsigned char>(test::block0('\x2A')[GetParam() - 1])));
    EXPECT_EQ(program.cell(static_cast<int>(GetParam())), "00") << "as the load of the screen left it";
}

INSTANTIATE_TEST_SUITE_P(Lengths, OddLengths, testing::Values(1, 2, 9, 63, 126, 127));

TEST_F(GetEdid, AMissingExtensionFailsBehindBlock0) {
    newImage();
    workbench.CurrentFileName = "kept.DAT";
    workbench.EDIDModified = flagTrue;
    store(test::block0('\x2A', '\x01'));
    program.platform.queueAnswer(platform::Answer::No);
    run();
    EXPECT_EQ(program.takeBoxes(), (Lines{"Save Changes?", "Invalid procedure call or argument"}));
    EXPECT_EQ(program.cell(8), "2A");
    EXPECT_TRUE(workbench.frmMain().Command4.enabled());
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_EQ(workbench.CurrentFileName, "kept.DAT");
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(GetEdid, AShortExtensionKeepsItsFirstCells) {
    store(test::block0('\x2A', '\x01') + "\x02\x03\x04");
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{"Invalid procedure call or argument"});
    EXPECT_EQ(extensionCell(2), "04");
    EXPECT_EQ(extensionCell(3), "00") << "as the load of the screen left it";
}

TEST_F(GetEdid, MakesTheImageNamelessAndClearsTheIdentity) {
    newImage();
    workbench.CurrentFileName = "old.DAT";
    FrmEdid& screen = workbench.frmEDID();
    for (Control* text : {static_cast<Control*>(&screen.txtModel), static_cast<Control*>(&screen.txtBrand)}) {
        text->setText("old");
    }
    workbench.focus.moveTo(screen.txtEdit(5));
    store(test::block0('\x2A'));
    run();
    EXPECT_EQ(workbench.CurrentFileName, "");
    EXPECT_EQ(screen.txtModel.text(), "");
    EXPECT_NE(screen.txtBrand.text(), "old");
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(workbench.windows.activeChild(), &screen);
}

TEST_F(GetEdid, AsksForUnsavedChangesFirst) {
    newImage();
    store(test::block0('\x2A'));
    workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(platform::Answer::No);
    run();
    EXPECT_EQ(program.takeBoxes(), Lines{"Save Changes?"});
    EXPECT_EQ(program.cell(8), "2A") << "not saved, and replaced";
}

TEST_F(GetEdid, StopsWhereTheSaveIsAbandoned) {
    newImage();
    store(test::block0('\x2A'));
    workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(platform::Answer::Yes);
    program.platform.queueFileName(std::nullopt);
    run();
    EXPECT_EQ(program.cell(8), "00");
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(GetEdid, GoesOnAfterASave) {
    const test::TemporaryFolder folder;
    newImage();
    store(test::block0('\x2A'));
    workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(platform::Answer::Yes);
    program.platform.queueFileName(folder.file("saved.DAT"));
    run();
    EXPECT_TRUE(std::filesystem::exists(folder.file("saved.DAT")));
    EXPECT_EQ(program.cell(8), "2A");
}

/// A reader that gives one text after the other, the last one for ever.
class Reader : public platform::DirectEdidReader {
public:
    std::string read(const std::string& blanks) override {
        asked.push_back(blanks);
        return answers.at(std::min(asked.size(), answers.size()) - 1);
    }
    std::vector<std::string> answers;
    std::vector<std::string> asked;
};

class DirectRead : public testing::Test {
protected:
    DirectRead() {
        headless.setMajorVersion(4);
        headless.onBox = [this](const std::string& text) { boxes.push_back(text); };
        test::addMonitor(headless.registry, "AAA0001", test::block0('\x55'));
    }

    platform::headless::HeadlessPlatform headless;
    Reader reader;
    Lines boxes;
    const platform::Services& inner = headless.services();
    platform::Services services{inner.messageBoxes, inner.dialogs,         inner.printer,  inner.settings,
                                inner.registry,     inner.operatingSystem, reader,         inner.shell,
                                inner.clock,        inner.eventLoop,       inner.arranger, ""};
    Workbench workbench{services, shell::wiring()};
};

TEST_F(DirectRead, OnOtherVersionsAsksTheMonitorWith256Blanks) {
    reader.answers = {test::block0('\x66')};
    GetEDIDData(workbench);
    EXPECT_EQ(reader.asked, Lines{std::string(256, ' ')});
    EXPECT_EQ(workbench.frmEDID().txtEdit(8).text(), "66");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DirectRead, TriesUpToFiveTimesForAHeader) {
    reader.answers = {"", "bad", std::string(256, ' '), test::block0('\x66')};
    GetEDIDData(workbench);
    EXPECT_EQ(reader.asked.size(), 4U);
    EXPECT_EQ(workbench.frmEDID().txtEdit(8).text(), "66");
}

TEST_F(DirectRead, TakesWhatTheFifthTryGaveAsItIs) {
    reader.answers = {"a", "b", "c", "d", std::string(128, '\x07') + std::string(128, '\x08'), test::block0()};
    GetEDIDData(workbench);
    EXPECT_EQ(reader.asked.size(), 5U);
    EXPECT_EQ(workbench.frmEDID().txtEdit(0).text(), "07");
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(0).text(), "08");
}

TEST_F(DirectRead, NothingReadFailsAtTheFirstByte) {
    reader.answers = {""};
    GetEDIDData(workbench);
    EXPECT_EQ(boxes, Lines{"Invalid procedure call or argument"});
    EXPECT_TRUE(workbench.frmEDID().shown());
}

TEST(LoadStoredEdid, TakesTheImageOfAFile) {
    test::Program program;
    LoadStoredEdid(program.workbench, test::block0('\x2A', '\x02') + std::string(384, '\x02'));
    EXPECT_TRUE(program.boxes.empty());
    EXPECT_EQ(program.cell(8), "2A");
    EXPECT_EQ(program.workbench.frmCEA_EXT().txtEdit(5).text(), "02");
}

TEST(LoadStoredEdid, ShowsItsOwnFailures) {
    test::Program program;
    LoadStoredEdid(program.workbench, "");
    EXPECT_EQ(program.takeBoxes(), Lines{"Invalid procedure call or argument"});
}

} // namespace
} // namespace wb::acquire
