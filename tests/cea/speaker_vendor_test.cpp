#include "cea/definitions.h"
#include "cea/extension_fixture.h"
#include "cea/speaker.h"
#include "cea/vendor.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using test::FlagsCase;
using test::noElement;
using test::selectedOf;
using Texts = std::vector<std::string>;

class Speakers : public ExtensionTest, public testing::WithParamInterface<FlagsCase> {};

TEST_P(Speakers, AreListed) {
    wb.SpeakerBlockStart = 40;
    setCell(41, GetParam().cell);
    BuildSpeaker(wb);
    EXPECT_EQ(wb.SpeakerText, GetParam().text);
    EXPECT_EQ(selectedOf(screen().speaker), GetParam().checks);
    EXPECT_EQ(cell(41), GetParam().cell);
}

INSTANTIATE_TEST_SUITE_P(Bytes, Speakers,
                         testing::Values(FlagsCase{"00", {}, ""}, FlagsCase{"80", {}, ""},
                                         FlagsCase{"01", {0}, "FL/FR,"}, FlagsCase{"02", {1}, " LFE,"},
                                         FlagsCase{"04", {2}, " FC,"}, FlagsCase{"08", {3}, " RL/RR,"},
                                         FlagsCase{"10", {4}, " RC,"}, FlagsCase{"20", {5}, " FLC/FRC,"},
                                         FlagsCase{"40", {6}, " RLC/RRC"},
                                         FlagsCase{"4F", {0, 1, 2, 3, 6}, "FL/FR, LFE, FC, RL/RR, RLC/RRC"}),
                         [](const auto& flags) { return test::cellName(flags.param.cell); });

class SpeakerPanel : public ExtensionTest {};

TEST_F(SpeakerPanel, AnUnknownBlockDecodesTheVersion) {
    wb.SpeakerBlockStart = 0;
    BuildSpeaker(wb);
    EXPECT_EQ(wb.SpeakerText, "FL/FR, LFE,"); // 03
}

TEST_F(SpeakerPanel, EachCheckHasItsMask) {
    wb.SpeakerBlockStart = 40;
    const Texts without = {"7E", "7D", "7B", "77", "6F", "5F", "3F"};
    for (int i = 0; i < 7; ++i) {
        setCell(41, "FF");
        visit(41);
        choose(screen().speaker(i), 0);
        EXPECT_EQ(cell(41), without[static_cast<std::size_t>(i)]);
        choose(screen().speaker(i), 1);
        EXPECT_EQ(cell(41), "7F");
        EXPECT_EQ(wb.SpeakerText, "FL/FR, LFE, FC, RL/RR, RC, FLC/FRC, RLC/RRC");
    }
}

TEST_F(SpeakerPanel, RestsWhileADecoderRuns) {
    wb.SpeakerBlockStart = 40;
    screen().InFocusDispatch = flagTrue;
    screen().speaker(0).changeValue(1);
    speaker_Click(wb, 0);
    EXPECT_EQ(cell(41), "00");
}

class Vendor : public ExtensionTest {
protected:
    void SetUp() override { wb.VendorBlockStart = 40; }
    void setCells(int first, const Texts& texts) {
        for (const std::string& text : texts) {
            setCell(first++, text);
        }
    }
};

TEST_F(Vendor, TheIdentifierIsReadBackwards) {
    setCells(41, {"03", "0C", "00"});
    BuildVendorID(wb);
    EXPECT_EQ(screen().txtBoxVendorID.text(), "000C03");
    EXPECT_EQ(wb.VendorIDText, "Vendor IEEE Registration ID: 000C03 Hexadecimal");
}

TEST_F(Vendor, TheDataIsReadForwards) {
    setCells(44, {"10", "00"});
    BuildVendorData(wb);
    EXPECT_EQ(screen().txtBoxVendorData.text(), "1000");
    EXPECT_EQ(wb.VendorDataText, "Vendor Specific Data: 1000 Hexadecimal");
}

TEST_F(Vendor, ShortDataIsFilledUpTo3Characters) {
    setCells(44, {"1", "2"});
    BuildVendorData(wb);
    EXPECT_EQ(screen().txtBoxVendorData.text(), "12");
    EXPECT_EQ(wb.VendorDataText, "Vendor Specific Data: 12  Hexadecimal");
    setCells(44, {"", ""});
    BuildVendorData(wb);
    EXPECT_EQ(wb.VendorDataText, "Vendor Specific Data:     Hexadecimal");
}

TEST_F(Vendor, CellsPastTheGridCountAsEmpty) {
    wb.VendorBlockStart = 125;
    BuildVendorID(wb);
    EXPECT_EQ(boxes(), Texts{noElement});
    EXPECT_EQ(wb.VendorIDText, "Vendor IEEE Registration ID:  Hexadecimal");
    BuildVSDBExt(wb);
    EXPECT_EQ(boxes(), Texts(6, noElement)); // read afresh for each bit
    EXPECT_EQ(wb.VSDBExtText, "");
}

struct EntryCase {
    std::string text;
    std::string shown;
    Texts cells;
};

TEST_F(Vendor, AnEnteredIdentifierIsSplit) {
    const EntryCase cases[] = {{"000c03", "000C03", {"03", "0C", "00"}},
                               {"AB", "ABABAB", {"AB", "AB", "AB"}},
                               {"12345678", "123478", {"78", "34", "12"}},
                               {"abc", "ABBCBC", {"BC", "BC", "AB"}},
                               {"", "", {"", "", ""}}};
    visit(41);
    for (const EntryCase& one : cases) {
        enter(screen().txtBoxVendorID, one.text);
        EXPECT_EQ((Texts{cell(41), cell(42), cell(43)}), one.cells) << one.text;
        EXPECT_EQ(screen().txtBoxVendorID.text(), one.shown) << one.text;
        EXPECT_EQ(wb.VendorIDText, "Vendor IEEE Registration ID: " + one.shown + " Hexadecimal");
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Vendor, EnteredDataIsSplit) {
    const EntryCase cases[] = {{"abcd", "ABCD", {"AB", "CD"}},
                               {"ABCDE", "ABDE", {"AB", "DE"}}, // the middle is lost
                               {"12", "1212", {"12", "12"}},
                               {"7", "77", {"7", "7"}}};
    visit(44);
    for (const EntryCase& one : cases) {
        enter(screen().txtBoxVendorData, one.text);
        EXPECT_EQ((Texts{cell(44), cell(45)}), one.cells) << one.text;
        EXPECT_EQ(screen().txtBoxVendorData.text(), one.shown) << one.text;
    }
}

TEST_F(Vendor, OnlyEnterTakesAnEntry) {
    screen().txtBoxVendorID.setText("000c03");
    txtBoxVendorID_KeyUp(wb, 0, '3');
    screen().txtBoxVendorData.setText("abcd");
    txtBoxVendorData_KeyUp(wb, 0, 'D');
    EXPECT_EQ(screen().txtBoxVendorID.text(), "000c03");
    EXPECT_EQ(screen().txtBoxVendorData.text(), "abcd");
    EXPECT_EQ(cell(41) + cell(44), "0000");
}

TEST_F(Vendor, FocusSelectsTheWholeEntry) {
    screen().txtBoxVendorID.setText("000c03");
    screen().txtBoxVendorData.setText("abcd");
    txtBoxVendorID_GotFocus(wb, 0);
    txtBoxVendorData_GotFocus(wb, 0);
    EXPECT_EQ(screen().txtBoxVendorID.selLength(), 6);
    EXPECT_EQ(screen().txtBoxVendorData.selLength(), 4);
}

class VendorExtension : public Vendor, public testing::WithParamInterface<FlagsCase> {};

TEST_P(VendorExtension, IsListed) {
    setCell(46, GetParam().cell);
    BuildVSDBExt(wb);
    EXPECT_EQ(wb.VSDBExtText, GetParam().text);
    EXPECT_EQ(selectedOf(screen().VSDBExt), GetParam().checks);
    EXPECT_EQ(cell(46), GetParam().cell);
}

INSTANTIATE_TEST_SUITE_P(Bytes, VendorExtension,
                         testing::Values(FlagsCase{"00", {}, ""}, FlagsCase{"06", {}, ""},
                                         FlagsCase{"80", {0}, "Supports_AI,"}, FlagsCase{"40", {1}, " DC_48bit,"},
                                         FlagsCase{"20", {2}, " DC_36bit,"}, FlagsCase{"10", {3}, " DC_30bit,"},
                                         FlagsCase{"08", {4}, " DC_Y444,"}, FlagsCase{"01", {5}, " DVI_Dual,"},
                                         FlagsCase{"F9",
                                                   {0, 1, 2, 3, 4, 5},
                                                   "Supports_AI, DC_48bit, DC_36bit, DC_30bit, DC_Y444, DVI_Dual,"}),
                         [](const auto& flags) { return test::cellName(flags.param.cell); });

TEST_F(Vendor, EachExtensionFlagHasItsMask) {
    const Texts without = {"7F", "BF", "DF", "EF", "F7", "FE"};
    for (int i = 0; i < 6; ++i) {
        setCell(46, "FF");
        visit(46);
        choose(screen().VSDBExt(i), 0);
        EXPECT_EQ(cell(46), without[static_cast<std::size_t>(i)]);
        choose(screen().VSDBExt(i), 1);
        EXPECT_EQ(cell(46), "FF");
    }
    setCell(46, "06");
    visit(46);
    choose(screen().VSDBExt(0), 1);
    EXPECT_EQ(cell(46), "86"); // bits without a check stay
    EXPECT_EQ(wb.VSDBExtText, "Supports_AI,");
}

TEST_F(Vendor, TheExtensionRestsWhileADecoderRuns) {
    screen().InFocusDispatch = flagTrue;
    screen().VSDBExt(0).changeValue(1);
    VSDBExt_Click(wb, 0);
    EXPECT_EQ(cell(46), "00");
}

TEST_F(Vendor, ABuildDecodesTheExtensionOfALongBlockOnly) {
    wb.VSDBExtText = "old";
    loadCollection({"65", "03", "0C", "00", "10", "00", "80"}, "10");
    EXPECT_EQ(wb.VSDBExtText, "old");
    loadCollection({"66", "03", "0C", "00", "10", "00", "80"}, "10");
    EXPECT_EQ(wb.VSDBExtText, "Supports_AI,");
}

TEST_F(Vendor, FocusDecodesTheExtensionOfAShortBlockToo) {
    loadCollection({"65", "03", "0C", "00", "10", "00", "80"}, "10");
    EXPECT_EQ(wb.VendorBlockStart, 4);
    wb.VideoBlockStart = 0; // where nothing else is found it is taken to start there as well
    focusOn(10);
    EXPECT_EQ(wb.VSDBExtText, "Supports_AI,");
}

} // namespace
} // namespace wb::cea
