#include "cea/header.h"

#include "cea/checksum.h"
#include "cea/data_blocks.h"
#include "cea/definitions.h"
#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using test::invalidCall;
using Texts = std::vector<std::string>;

class Header : public ExtensionTest {};

TEST_F(Header, AnEmptyScreenIsAVersion3ExtensionWithoutTimings) {
    EXPECT_EQ(cell(0), "02");
    EXPECT_EQ(cell(1), "03");
    EXPECT_EQ(cell(2), "00");
    EXPECT_EQ(cell(127), "00");
    EXPECT_EQ(wb.EDIDLoaded, flagTrue);
    EXPECT_EQ(wb.ExtDetailedBlockText.size(), 7);
    EXPECT_EQ(wb.ExtDetailedBlockNote.size(), 13);
    EXPECT_EQ(screen().VerRev.text(), "3");
    EXPECT_EQ(wb.ExtDtdOffsetText, "0");
    EXPECT_TRUE(boxes().empty());
}

TEST(HeaderLoad, TakesBrandAndModelOfBlock0) {
    test::Program program;
    FrmEdid& block0 = program.workbench.frmEDID();
    block0.txtBrand.setText("Halvorine");
    block0.txtModel.setText("HV19");
    EXPECT_EQ(program.workbench.frmCEA_EXT().txtBrand.text(), "Halvorine");
    EXPECT_EQ(program.workbench.frmCEA_EXT().txtModel.text(), "HV19");
}

TEST(HeaderLoad, MakesTheImageLoadedAndUnchanged) {
    test::Program program;
    Workbench& wb = program.workbench;
    wb.frmEDID(); // which would do the same
    wb.EDIDLoaded = flagFalse;
    wb.EDIDModified = wb.EDIDRedecodeNeeded = flagTrue;
    wb.frmCEA_EXT();
    EXPECT_EQ(wb.EDIDLoaded, flagTrue);
    EXPECT_EQ(wb.EDIDModified, flagFalse);
    EXPECT_EQ(wb.EDIDRedecodeNeeded, flagFalse);
}

TEST(HeaderLoad, TheCheckSumComesAfterThat) {
    test::Program program;
    Workbench& wb = program.workbench;
    wb.ModifyEDIDOn = flagTrue;
    EXPECT_EQ(wb.frmCEA_EXT().txtEdit(127).text(), "FB"); // 02 and 03
    EXPECT_EQ(wb.EDIDModified, flagTrue);
    EXPECT_EQ(wb.EDIDRedecodeNeeded, flagTrue);
    EXPECT_EQ(wb.Block0ChecksumLast, "FB");
}

TEST_F(Header, VersionIsShownInDecimal) {
    load({"02", "1F"});
    EXPECT_EQ(screen().txtVersion.text(), "31");
    EXPECT_EQ(screen().VerRev.text(), "31");
    EXPECT_EQ(screen().lbEDID(0).caption(), "Version Number - 31");
    EXPECT_EQ(screen().Hints(2).caption(), "Version Number (1)");
}

TEST_F(Header, AnUnreadableVersionCountsAs0) {
    setCell(1, "ZZ");
    boxes();
    BuildVersion(wb);
    EXPECT_EQ(boxes(), (Texts{invalidCall, invalidCall}));
    EXPECT_EQ(screen().VerRev.text(), "0");
    EXPECT_EQ(screen().lbEDID(0).caption(), "Version Number - 0");
}

struct Entry {
    const char* text;
    const char* cell; ///< null: refused
};

class VersionEntry : public Header, public testing::WithParamInterface<Entry> {};

TEST_P(VersionEntry, IsTakenOrRefused) {
    setCell(1, "AB");
    visit(1);
    enter(screen().VerRev, GetParam().text);
    if (GetParam().cell != nullptr) {
        EXPECT_EQ(cell(1), GetParam().cell);
        EXPECT_EQ(screen().lbEDID(0).caption(), std::string("Version Number - ") + GetParam().cell[1]);
        EXPECT_TRUE(boxes().empty());
    } else {
        EXPECT_EQ(cell(1), "AB");
        EXPECT_EQ(screen().VerRev.text(), GetParam().text);
        EXPECT_EQ(boxes(), Texts{"Valid number are 1 - 3"});
    }
}

INSTANTIATE_TEST_SUITE_P(Entries, VersionEntry,
                         testing::Values(Entry{"1", "01"}, Entry{"3", "03"}, Entry{"2.6", "03"}, Entry{"1.5", "02"},
                                         Entry{"2.5", "02"}, Entry{"2x", "02"}, Entry{"0", nullptr},
                                         Entry{"0.9", nullptr}, Entry{"3.1", nullptr}, Entry{"4", nullptr},
                                         Entry{"", nullptr}, Entry{"-1", nullptr}));

class OffsetEntry : public Header, public testing::WithParamInterface<Entry> {};

TEST_P(OffsetEntry, IsTakenOrRefused) {
    setCell(2, "20");
    visit(2);
    enter(screen().DetailOffset, GetParam().text);
    if (GetParam().cell != nullptr) {
        EXPECT_EQ(cell(2), GetParam().cell);
        EXPECT_TRUE(boxes().empty());
        EXPECT_EQ(wb.ExtDtdOffsetText, std::to_string(std::stoi(GetParam().cell, nullptr, 16)));
    } else {
        EXPECT_EQ(cell(2), "20");
        EXPECT_EQ(boxes(), Texts{"Valid number are 4 - 109"});
    }
}

INSTANTIATE_TEST_SUITE_P(Entries, OffsetEntry,
                         testing::Values(Entry{"0", "00"}, Entry{"abc", "00"}, Entry{"4", "04"}, Entry{"109", "6D"},
                                         Entry{"4.5", "04"}, Entry{"5.5", "06"}, Entry{"3", nullptr},
                                         Entry{"3.9", nullptr}, Entry{"0.1", nullptr}, Entry{"109.2", nullptr},
                                         Entry{"110", nullptr}, Entry{"-4", nullptr}));

TEST_F(Header, OnlyEnterTakesAnEntry) {
    screen().VerRev.setText("1");
    VerRev_KeyUp(wb, 0, '1');
    EXPECT_EQ(cell(1), "03");
    screen().DetailOffset.setText("9");
    DetailOffset_KeyUp(wb, 0, '9');
    EXPECT_EQ(cell(2), "00");
}

TEST_F(Header, FocusSelectsTheWholeEntry) {
    screen().DetailOffset.setText("109");
    VerRev_GotFocus(wb, 0);
    DetailOffset_GotFocus(wb, 0);
    EXPECT_EQ(screen().VerRev.selLength(), 1);
    EXPECT_EQ(screen().DetailOffset.selLength(), 3);
}

class Checksum : public ExtensionTest {
protected:
    void SetUp() override { load({"02", "03"}); }
};

TEST_F(Checksum, StaysWhileEditingIsOff) {
    setCell(127, "99");
    CalcCheckSum(wb);
    EXPECT_EQ(cell(127), "99");
}

TEST_F(Checksum, CompletesTheSumTo256) {
    modify();
    CalcCheckSum(wb);
    EXPECT_EQ(cell(127), "FB"); // 2 + 3
}

TEST_F(Checksum, ASumOf256IsNothing) {
    modify();
    setCell(1, "FE");
    setCell(127, "11");
    CalcCheckSum(wb);
    EXPECT_EQ(cell(127), "00");
}

TEST_F(Checksum, ASumAbove255LosesIts256) {
    modify();
    setCell(1, "FF");
    CalcCheckSum(wb);
    EXPECT_EQ(cell(127), "FF"); // 257 counts as 1
    setCell(126, "FF");
    setCell(125, "FF");
    CalcCheckSum(wb);
    EXPECT_EQ(cell(127), "01"); // 767 counts as 255
}

TEST_F(Checksum, TheLocationOfTheBlocksEndsWithIt) {
    modify();
    setCell(127, "old");
    LocateDataBlocks(wb);
    EXPECT_EQ(cell(127), "FB");
}

TEST_F(Checksum, TheWalkOverTheSlotsEndsWithIt) {
    modify();
    wb.ExtDtdStart = 143; // leaves no slot, whose decoder would run it
    setCell(127, "old");
    BuildDetailedTimings(wb);
    EXPECT_EQ(cell(127), "FB");
}

TEST_F(Checksum, SharesTheMemoryOfBlock0) {
    modify();
    wb.EDIDModified = wb.EDIDRedecodeNeeded = flagFalse;
    wb.Block0ChecksumAsLoaded = wb.Block0ChecksumLast = "FB";
    CalcCheckSum(wb);
    EXPECT_EQ(wb.EDIDModified, flagFalse);
    EXPECT_EQ(wb.EDIDRedecodeNeeded, flagFalse);
    wb.Block0ChecksumAsLoaded = wb.Block0ChecksumLast = "12";
    CalcCheckSum(wb);
    EXPECT_EQ(wb.EDIDModified, flagTrue);
    EXPECT_EQ(wb.EDIDRedecodeNeeded, flagTrue);
    EXPECT_EQ(wb.Block0ChecksumLast, "FB");
    EXPECT_EQ(wb.Block0ChecksumAsLoaded, "12");
}

TEST_F(Checksum, AnUnreadableCellCountsAsNothing) {
    modify();
    setCell(50, "ZZ");
    CalcCheckSum(wb);
    EXPECT_EQ(cell(127), "FB");
    EXPECT_EQ(boxes(), (Texts{invalidCall, invalidCall}));
}

} // namespace
} // namespace wb::cea
