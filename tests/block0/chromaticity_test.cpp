#include "block0/editor.h"
#include "core/base/numbers.h"

namespace wb::test {
namespace {

class Chromaticity : public Editor {
protected:
    Chromaticity() { switchModify(); }
    void fill(const char* text) {
        for (int i = 25; i <= 34; ++i) {
            screen().txtEdit(i).setText(text);
        }
    }
};

struct Entry {
    const char* typed;
    const char* low;  ///< cell 25, "00" before
    const char* high; ///< cell 27, "00" before
    const char* box;
};

const Entry entries[] = {
    {"0.640", "C0", "A3", ""}, // 655
    {"0.25", "00", "40", ""},  // by the rounding step
    {"0.5", "00", "80", ""},
    {"0.625", "00", "A0", ""},
    {"0.1", "80", "19", ""}, // 102.4 is cut to 102
    {"1e-1", "80", "19", ""},
    {" 0.1 ", "80", "19", ""},
    {"0.999", "C0", "FF", ""}, // 1022.976: the rest is 0.00095, above the threshold of 0.0005
    {"1.00", "00", "00", ""},  // the carry is lost
    {"0.9999", "00", "00", ""},
    {"-1", "00", "00", ""},
    {"0", "00", "00", ""},
    {"1.01", "00", "00", "This value must be a fraction less than 1.00"},
    {"x", "00", "00", "Type mismatch"},
    {"", "00", "00", "Type mismatch"},
    {"0.5x", "00", "00", "Type mismatch"},
};

TEST_F(Chromaticity, Values) {
    for (const Entry& row : entries) {
        SCOPED_TRACE(entryName(27, row.typed));
        fill("00");
        visit(27);
        enter(screen().ChromaValue, row.typed);
        EXPECT_EQ(cell(25), row.low);
        EXPECT_EQ(cell(27), row.high);
        EXPECT_EQ(cell(26), "00");
        EXPECT_EQ(cells(28, 34), "00 00 00 00 00 00 00");
        EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
        if (*row.box != '\0') {
            EXPECT_EQ(screen().ChromaValue.text(), row.typed);
        } else {
            EXPECT_EQ(blockSum(), 0);
        }
    }
}

TEST_F(Chromaticity, EachCoordinateHasItsBits) {
    const char* lows[] = {"3F", "CF", "F3", "FC"};
    for (int i = 0; i <= 7; ++i) {
        SCOPED_TRACE(cellName(27 + i));
        fill("FF");
        visit(27 + i);
        enter(screen().ChromaValue, "0.5");
        EXPECT_EQ(cell(25), i < 4 ? lows[i] : "FF");
        EXPECT_EQ(cell(26), i < 4 ? "FF" : lows[i - 4]);
        for (int other = 27; other <= 34; ++other) {
            EXPECT_EQ(cell(other), other == 27 + i ? "80" : "FF");
        }
    }
}

TEST_F(Chromaticity, EveryCoordinateComesBack) {
    visit(34);
    for (int n = 0; n <= 1023; ++n) {
        enter(screen().ChromaValue, plainDecimal(n / 1024.0));
        EXPECT_EQ(byteAt(screen(), 34) * 4 + (byteAt(screen(), 26) & 3), n);
        EXPECT_EQ(screen().ChromaValue.text(), formatNumber(n / 1024.0, "0.000"));
    }
}

TEST_F(Chromaticity, WithoutASelectorOnlyTheDecoderRuns) {
    fill("80");
    visit(27);
    screen().chkChroma(0).setValue(0);
    screen().chkChroma(7).setCaption("stale");
    enter(screen().ChromaValue, "0.25");
    EXPECT_EQ(cells(25, 27), "80 80 80");
    EXPECT_EQ(screen().chkChroma(7).caption(), "White Y - 0.500");
}

TEST_F(Chromaticity, ASelectorOpensItsCell) {
    visit(25);
    for (int i = 0; i <= 7; ++i) {
        click(screen().chkChroma(i));
        EXPECT_EQ(focused(), cellName(27 + i));
        EXPECT_TRUE(screen().chkChroma(i).selected());
        EXPECT_TRUE(screen().ChromaValue.visible());
    }
}

TEST_F(Chromaticity, ASelectorTestsNoFlag) {
    visit(25);
    screen().InFocusDispatch = flagTrue;
    click(screen().chkChroma(3));
    EXPECT_EQ(focused(), cellName(30));
}

TEST_F(Chromaticity, ASelectorSeeks) {
    visit(25);
    switchSeek();
    click(screen().chkChroma(2));
    EXPECT_EQ(focused(), "frmEDID.ChromaValue");
    EXPECT_EQ(screen().ChromaValue.selLength(), 5);
}

TEST_F(Chromaticity, OtherKeysWriteNothing) {
    visit(27);
    moveFocus(screen().ChromaValue);
    program.type("0.5");
    EXPECT_EQ(cell(27), "00");
}

} // namespace
} // namespace wb::test
