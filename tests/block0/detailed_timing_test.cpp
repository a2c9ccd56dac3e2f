#include <gmock/gmock.h>

#include "block0/editor.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

constexpr int base = 72;
constexpr int fieldCells[] = {0, 2, 3, 5, 6, 8, 9, 10, 11, 15, 16, 12, 13};

class DetailedTiming : public Editor {
protected:
    DetailedTiming() { switchModify(); }
    /// The block with all cells the same; one of zeros gets a clock, so that it is no descriptor.
    void fill(const char* text) {
        for (int i = 0; i < 18; ++i) {
            screen().txtEdit(base + i).setText(text);
        }
        if (std::string(text) == "00") {
            screen().txtEdit(base).setText("01");
        }
    }
    void visitField(int field) { visit(base + fieldCells[field]); }
    void setFlags(const char* text) {
        program.setCells(base + 17, {text});
        visit(base + 17);
    }
    std::string flags() { return cell(base + 17); }
};

struct Written {
    int offset;
    const char* text;
};

/// An entry into a field of a block whose cells are all `fill`, and the cells that it changes.
struct Entry {
    int field;
    const char* fill;
    const char* typed;
    std::vector<Written> written;
};

const std::vector<Entry> entries = {
    // Pixel clock in MHz, two whole cells.
    {0, "FF", "65", {{0, "64"}, {1, "19"}}},
    {0, "FF", "655.34", {{0, "FE"}, {1, "FF"}}},
    {0, "FF", "0.015", {{0, "02"}, {1, "00"}}},
    {0, "FF", "0.025", {{0, "02"}, {1, "00"}}},
    {0, "FF", "-1", {{0, "9C"}, {1, "FF"}}},
    {0, "FF", "", {{0, "00"}, {1, "00"}}},
    // Active: the last digit of the upper two.
    {1, "FF", "1280", {{2, "00"}, {4, "5F"}}},
    {1, "00", "1280", {{2, "00"}, {4, "50"}}},
    {1, "FF", "4095", {{2, "FF"}, {4, "FF"}}},
    {1, "FF", "4096", {{2, "00"}, {4, "0F"}}},
    {1, "FF", "65534", {{2, "FE"}, {4, "FF"}}},
    {3, "FF", "1080", {{5, "38"}, {7, "4F"}}},
    {3, "00", "", {{5, "00"}, {7, "00"}}},
    // Blanking and sizes: the decimal reading of the upper two digits.
    {2, "FF", "280", {{3, "18"}, {4, "F1"}}},
    {2, "FF", "2304", {{3, "00"}, {4, "F9"}}},
    {2, "FF", "2600", {{3, "28"}, {4, "F0"}}},
    {2, "FF", "4096", {{3, "00"}, {4, "FA"}}},
    {2, "FF", "7680", {{3, "00"}, {4, "F1"}}},
    {2, "FF", "39321", {{3, "99"}, {4, "F3"}}},
    {4, "FF", "45", {{6, "2D"}, {7, "F0"}}},
    {11, "FF", "708", {{12, "C4"}, {14, "2F"}}},
    {11, "00", "4096", {{12, "00"}, {14, "A0"}}},
    {12, "FF", "398", {{13, "8E"}, {14, "F1"}}},
    // Horizontal sync: keeps its own old bits and wipes the rest of the cell.
    {5, "FF", "88", {{8, "58"}, {11, "C0"}}},
    {5, "00", "1023", {{8, "FF"}, {11, "C0"}}},
    {5, "00", "39321", {{8, "99"}, {11, "18C0"}}},
    {6, "FF", "44", {{9, "2C"}, {11, "30"}}},
    {6, "00", "1023", {{9, "FF"}, {11, "30"}}},
    {6, "00", "4096", {{9, "00"}, {11, "A0"}}},
    // Vertical sync: six bits in two cells.
    {7, "FF", "3", {{10, "3F"}, {11, "F3"}}},
    {7, "00", "63", {{10, "F0"}, {11, "0C"}}},
    {7, "FF", "64", {{10, "0F"}, {11, "F3"}}},
    {8, "FF", "5", {{10, "F5"}, {11, "FC"}}},
    {8, "00", "63", {{10, "0F"}, {11, "03"}}},
    // Borders.
    {9, "FF", "256", {{15, "00"}}},
    {9, "00", "255", {{15, "FF"}}},
    {9, "00", "-5", {{15, "FB"}}},
    {9, "00", "2.5", {{15, "02"}}},
    {10, "FF", "12", {{16, "0C"}}},
};

TEST_F(DetailedTiming, Entries) {
    for (const Entry& row : entries) {
        SCOPED_TRACE(entryName(base + fieldCells[row.field], row.typed) + " on " + row.fill);
        fill(row.fill);
        visitField(row.field);
        ASSERT_EQ(screen().DT.firstSelected(), row.field);
        enter(screen().DTInput, row.typed);
        EXPECT_TRUE(program.takeBoxes().empty());
        for (int i = 0; i < 18; ++i) {
            std::string expected = i == 0 && std::string(row.fill) == "00" ? "01" : row.fill;
            for (const Written& written : row.written) {
                expected = written.offset == i ? written.text : expected;
            }
            EXPECT_EQ(cell(base + i), expected) << i;
        }
        EXPECT_EQ(blockSum(), 0);
        EXPECT_EQ(focused(), "frmEDID.DTInput");
    }
}

struct Refused {
    int field;
    const char* typed;
    const char* box;
};

const Refused refusals[] = {
    {1, "65535", "Invalid Value"}, {1, "70000", "Invalid Value"},   {0, "655.35", "Invalid Value"},
    {0, "65535", "Invalid Value"}, {9, "65534.5", "Invalid Value"}, {9, "-9999999999", "Overflow"},
    {0, "-99999999", "Overflow"},
};

TEST_F(DetailedTiming, Refusals) {
    for (const Refused& row : refusals) {
        SCOPED_TRACE(entryName(base + fieldCells[row.field], row.typed));
        fill("FF");
        visitField(row.field);
        screen().DT(10).setCaption("stale");
        enter(screen().DTInput, row.typed);
        EXPECT_EQ(program.takeBoxes(), Texts{row.box});
        EXPECT_EQ(screen().DTInput.text(), row.typed);
        EXPECT_EQ(cells(base, base + 17), "FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF");
        EXPECT_EQ(screen().DT(10).caption(), "stale") << "no decoder";
    }
}

TEST_F(DetailedTiming, AnEntryThatCannotBeReadCountsAsNothingAndAClockIsReadTwice) {
    fill("FF");
    visitField(1);
    enter(screen().DTInput, "1E400");
    EXPECT_EQ(program.takeBoxes(), Texts{"Overflow"});
    EXPECT_EQ(cells(base + 2, base + 4), "00 FF 0F");
    visitField(0);
    enter(screen().DTInput, "1E400");
    EXPECT_EQ(program.takeBoxes(), Texts(2, "Overflow"));
    EXPECT_EQ(cells(base, base + 1), "00 00");
}

TEST_F(DetailedTiming, WithoutAFieldOnlyTheDecoderRuns) {
    fill("FF");
    visitField(9);
    screen().DT(9).setValue(0);
    screen().DT(10).setCaption("stale");
    enter(screen().DTInput, "5");
    EXPECT_EQ(cell(base + 15), "FF");
    EXPECT_EQ(screen().DT(10).caption(), "Border - 255 lines");
}

struct RoundTrip {
    int field;
    int highest; ///< above it the decimal reading or the width of the field loses digits
    const char* before;
    const char* after;
};

const RoundTrip roundTrips[] = {
    {1, 4095, "Active Time - ", " pixels"}, {2, 2559, "Blanking Time - ", " pixels"},
    {3, 4095, "Active Time - ", " lines"},  {4, 2559, "Blanking Time - ", " lines"},
    {5, 1023, "Sync Offset - ", " pixels"}, {6, 1023, "Sync Pulse Width - ", " pixels"},
    {7, 63, "Sync Offset - ", " lines"},    {8, 63, "Sync Pulse Width - ", " lines"},
    {9, 255, "Border - ", " pixels"},       {10, 255, "Border - ", " lines"},
    {11, 2559, "Image Size - ", " mm"},     {12, 2559, "Image Size - ", " mm"},
};

TEST_F(DetailedTiming, EntriesComeBack) {
    for (const RoundTrip& row : roundTrips) {
        SCOPED_TRACE(cellName(base + fieldCells[row.field]));
        for (int value = 0; value <= row.highest; value += value < 300 ? 1 : 37) {
            fill("00");
            visitField(row.field);
            enter(screen().DTInput, std::to_string(value));
            ASSERT_EQ(screen().DT(row.field).caption(), row.before + std::to_string(value) + row.after);
        }
        fill("00");
        visitField(row.field);
        enter(screen().DTInput, std::to_string(row.highest));
        EXPECT_EQ(screen().DT(row.field).caption(), row.before + std::to_string(row.highest) + row.after);
    }
}

TEST_F(DetailedTiming, PixelClocksComeBack) {
    fill("FF");
    visitField(0);
    for (int clock = 1; clock <= 65534; clock += 811) {
        std::string text = std::to_string(clock);
        text.insert(0, text.size() < 3 ? 3 - text.size() : 0, '0');
        text.insert(text.size() - 2, ".");
        enter(screen().DTInput, text);
        ASSERT_EQ(screen().DT(0).caption(), "Pixel Clock - " + text + " MHz");
    }
}

TEST_F(DetailedTiming, AnOptionOpensItsField) {
    fill("FF");
    visit(base);
    for (int field = 12; field >= 0; --field) {
        click(screen().DT(field));
        EXPECT_EQ(focused(), cellName(base + fieldCells[field]));
        EXPECT_TRUE(screen().DT(field).selected());
        EXPECT_EQ(screen().CurrentBlockBase, base);
    }
}

TEST_F(DetailedTiming, AnOptionDoesNothingWhileTheFlagStands) {
    fill("FF");
    visit(base);
    screen().InFocusDispatch = flagTrue;
    click(screen().DT(5));
    EXPECT_EQ(focused(), "frmEDID.DT(5)");
}

TEST_F(DetailedTiming, InterlacedLeavesTheChecksumToTheNextFocus) {
    fill("FF");
    setFlags("1E");
    const std::string checksum = cell(127);
    click(screen().DT1);
    EXPECT_EQ(flags(), "9E");
    EXPECT_EQ(cell(127), checksum);
    visit(base);
    EXPECT_EQ(blockSum(), 0);
    visit(base + 17);
    click(screen().DT1);
    EXPECT_EQ(flags(), "1E");
}

TEST_F(DetailedTiming, StereoBits) {
    const char* texts[] = {"BE", "DE", "BF", "DF", "FE", "FF", "9E"};
    fill("FF");
    setFlags("9E");
    const std::string checksum = cell(127);
    for (int i = 0; i <= 6; ++i) {
        SCOPED_TRACE(screen().DTStereo(i).fullName());
        click(screen().DTStereo(i));
        EXPECT_EQ(flags(), texts[i]);
        EXPECT_EQ(screen().frmStereo.caption(), i == 6 ? "Normal Display - No Stereo" : "Stereo");
        EXPECT_EQ(cell(127), checksum) << "no decoder, no check sum";
        setFlags(texts[i]);
        EXPECT_TRUE(screen().DTStereo(i).selected()) << "the decoder reads it back";
        setFlags("9E");
    }
}

TEST_F(DetailedTiming, StereoResetsTheCaptionWhileTheFlagStands) {
    fill("FF");
    setFlags("9E");
    screen().InFocusDispatch = flagTrue;
    screen().frmStereo.setCaption("x");
    click(screen().DTStereo(0));
    EXPECT_EQ(screen().frmStereo.caption(), "Stereo");
    click(screen().DT1);
    click(screen().DTSync(0));
    EXPECT_EQ(flags(), "9E");
}

TEST_F(DetailedTiming, SyncBits) {
    const char* texts[] = {"80", "88", "90", "98"};
    fill("FF");
    for (int i = 0; i <= 3; ++i) {
        SCOPED_TRACE(screen().DTSync(i).fullName());
        setFlags(i == 3 ? "80" : "98");
        click(screen().DTSync(i));
        EXPECT_EQ(flags(), texts[i]);
        EXPECT_TRUE(screen().DTSync(i).selected());
        EXPECT_EQ(screen().VSyncLine.visible(), i == 3);
        EXPECT_EQ(blockSum(), 0);
    }
}

TEST_F(DetailedTiming, SeparateSyncAfterASerratedOneLosesTheVerticalPolarity) {
    fill("FF");
    setFlags("06");
    EXPECT_EQ(screen().SyncSerrate.value(), 1);
    // The decoder takes the serration away, and the check's own handler writes that into the same bit.
    click(screen().DTSync(3));
    EXPECT_EQ(flags(), "1A");
    EXPECT_EQ(screen().VSyncLine.caption(), "Vertical Polarity (-)");
}

TEST_F(DetailedTiming, PolarityLines) {
    fill("FF");
    setFlags("18");
    click(screen().SyncLine);
    EXPECT_EQ(flags(), "1A");
    EXPECT_EQ(screen().SyncLine.caption(), "Horizontal Polarity (+)");
    click(screen().VSyncLine);
    EXPECT_EQ(flags(), "1E");
    EXPECT_EQ(screen().VSyncLine.caption(), "Vertical Polarity (+)");
    click(screen().SyncLine);
    click(screen().VSyncLine);
    EXPECT_EQ(flags(), "18");
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(DetailedTiming, PolarityLinesTestNoFlag) {
    fill("FF");
    setFlags("18");
    screen().InFocusDispatch = flagTrue;
    click(screen().SyncLine);
    EXPECT_EQ(flags(), "1A");
}

TEST_F(DetailedTiming, Serration) {
    fill("FF");
    setFlags("10");
    click(screen().SyncSerrate);
    EXPECT_EQ(flags(), "14");
    EXPECT_THAT(workbench.DetailedBlockText(1), HasSubstr("Digital Composite (Serrate) "));
    click(screen().SyncSerrate);
    EXPECT_EQ(flags(), "10");
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(DetailedTiming, OtherKeysWriteNothing) {
    fill("FF");
    visitField(9);
    moveFocus(screen().DTInput);
    program.type("5");
    EXPECT_EQ(cell(base + 15), "FF");
}

TEST_F(DetailedTiming, TheBoxSelectsItsTextOnFocus) {
    fill("FF");
    visitField(9);
    moveFocus(screen().DTInput);
    program.type("55");
    moveFocus(screen().DT(9)); // a bare move raises no click
    moveFocus(screen().DTInput);
    EXPECT_EQ(screen().DTInput.selLength(), 2);
}

} // namespace
} // namespace wb::test
