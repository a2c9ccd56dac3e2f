#include "block0/descriptor_fixture.h"

namespace wb::test {
namespace {

struct Entry {
    int offset; ///< of the cell
    const char* typed;
    const char* text; ///< of the cell, "11" before
    const char* box;
};

class RangeLimits : public DescriptorEditor {
protected:
    /// Limits without a curve.
    void makeLimits() {
        makeBlock("FD");
        program.setCells(base + 10, {"00"});
    }
};

const Entry rangeEntries[] = {
    {5, "0", "FF", ""},
    {5, "255", "FF", ""},
    {5, "256", "11", "Value entered must be between 0 - 255"},
    {5, "56", "38", ""},
    {5, "-3", "FF", ""},
    {5, "", "FF", ""},
    {6, "75", "4B", ""},
    {6, "2.5", "03", ""},
    {6, "0.4", "00", ""},
    {7, "30", "1E", ""},
    {8, "83", "53", ""},
    {8, "999", "11", "Value entered must be between 0 - 255"},
    {9, "170", "11", ""},
    {9, "150", "0F", ""},
    {9, "155", "10", ""},
    {9, "3000", "12C", ""},
    {9, "0", "FF", ""},
    {9, "-10", "FF", ""},
    {9, "999999", "11", "Overflow"},
};

TEST_F(RangeLimits, Entries) {
    for (const Entry& row : rangeEntries) {
        SCOPED_TRACE(entryName(base + row.offset, row.typed));
        makeLimits();
        visit(base + row.offset);
        ASSERT_EQ(screen().DtaOpt.firstSelected(), row.offset - 5);
        enter(screen().DTaInput, row.typed);
        EXPECT_EQ(at(row.offset), row.text);
        EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
        if (*row.box == '\0') {
            EXPECT_EQ(blockSum(), 0);
        } else {
            EXPECT_EQ(screen().DTaInput.text(), row.typed);
        }
    }
}

TEST_F(RangeLimits, EntriesComeBack) {
    makeLimits();
    for (int limit = 1; limit <= 255; ++limit) {
        visit(base + 5);
        enter(screen().DTaInput, std::to_string(limit));
        EXPECT_EQ(screen().DtaOpt(0).caption(), "Min Vertical Freq - " + std::to_string(limit) + " Hz");
        visit(base + 8);
        enter(screen().DTaInput, std::to_string(limit));
        EXPECT_EQ(screen().DtaOpt(3).caption(), "Max Horiz. Freq - " + std::to_string(limit) + " KHz");
        visit(base + 9);
        enter(screen().DTaInput, std::to_string(limit * 10));
        EXPECT_EQ(screen().DtaOpt(4).caption(), limit == 255 ? "Pixel Clock - Not Specified"
                                                             : "Pixel Clock  - " + std::to_string(limit * 10) + " MHz");
    }
}

TEST_F(RangeLimits, WithoutALimitOnlyTheDecoderRuns) {
    makeLimits();
    visit(base + 3);
    enter(screen().DTaInput, "300");
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_EQ(cells(base + 5, base + 9), "11 11 11 11 11");
    EXPECT_EQ(screen().DTaInput.text(), "") << "the decoder empties the box";
}

TEST_F(RangeLimits, OptionsOpenTheirFields) {
    makeLimits();
    visit(base);
    for (int i = 4; i >= 0; --i) {
        click(screen().DtaOpt(i));
        EXPECT_EQ(focused(), cellName(base + 5 + i));
        EXPECT_TRUE(screen().DtaOpt(i).selected());
    }
}

TEST_F(RangeLimits, TheCurveIsSwitchedByItsCheck) {
    makeLimits();
    visit(base);
    click(screen().DTAGTF);
    EXPECT_EQ(cells(base + 10, base + 17), "02 00 11 11 11 11 11 11");
    EXPECT_FALSE(screen().DTAFrame(0).visible());
    EXPECT_TRUE(screen().frmS_GTF(0).visible());
    EXPECT_EQ(blockSum(), 0);
    click(screen().DTAGTF);
    EXPECT_EQ(cells(base + 10, base + 17), "00 0A 20 20 20 20 20 20");
    EXPECT_TRUE(screen().DTAFrame(0).visible());
    EXPECT_FALSE(screen().frmS_GTF(0).visible());
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(RangeLimits, TheDecodersOwnSwitchWritesTheCellsToo) {
    makeBlock("FD");
    program.setCells(base + 10, {"01", "33"});
    visit(base);
    EXPECT_EQ(cells(base + 10, base + 12), "02 00 11") << "any curve becomes the one it knows";
    program.setCells(base + 10, {"04", "33"});
    visit(base + 1);
    EXPECT_EQ(cells(base + 10, base + 17), "00 0A 20 20 20 20 20 20");
}

TEST_F(RangeLimits, WithModifyOffTheDecodersSwitchWritesNothing) {
    click(frame().Command2);
    makeBlock("FD");
    program.setCells(base + 10, {"01", "33"});
    visit(base);
    EXPECT_EQ(screen().DTAGTF.value(), 1);
    EXPECT_EQ(cells(base + 10, base + 12), "01 33 11");
}

const Entry curveEntries[] = {
    {12, "61", "1F", ""},
    {12, "0", "00", ""},
    {12, "62", "1F", ""},
    {12, "1000", "1F4", ""},
    {12, "-1", "11", "Value entered must be integer"},
    {13, "127", "FE", ""},
    {13, "2.5", "05", ""},
    {13, "0.25", "01", ""},
    {13, "128", "11", "Value entered must be from 0 - 127"},
    {13, "-1", "11", "Value entered must be from 0 - 127"},
    {16, "255", "FF", ""},
    {16, "0.5", "01", ""},
    {16, "256", "11", "Value entered must be from 0 - 255"},
    {16, "-1", "11", "Value entered must be from 0 - 255"},
    {17, "127", "FE", ""},
    {17, "128", "11", "Value entered must be from 0 - 127"},
};

class Curve : public RangeLimits {
protected:
    /// A range block with a curve, and the option of the curve's field selected.
    void open(int option) {
        makeBlock("FD");
        program.setCells(base + 10, {"02", "00"});
        visit(base);
        click(screen().S_GTF(option));
        ASSERT_EQ(screen().S_GTF.firstSelected(), option);
    }
    static int optionOf(int offset) { return offset <= 13 ? offset - 12 : offset - 13; }
};

TEST_F(Curve, OptionsOpenTheirFields) {
    const int offsets[] = {12, 13, 15, 16, 17};
    for (int i = 0; i <= 4; ++i) {
        open(i);
        EXPECT_EQ(focused(), cellName(base + offsets[i]));
    }
}

TEST_F(Curve, Entries) {
    for (const Entry& row : curveEntries) {
        SCOPED_TRACE(entryName(base + row.offset, row.typed));
        open(optionOf(row.offset));
        enter(screen().DTaInput, row.typed);
        EXPECT_EQ(at(row.offset), row.text);
        EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
    }
}

struct EntryOfM {
    const char* typed;
    const char* cells; ///< 14 and 15 of the block, "11 11" before
    const char* box;
};

const EntryOfM entriesOfM[] = {
    {"4660", "12 34", ""}, // 1234 in hexadecimal
    {"65535", "FF FF", ""},
    {"256", "01 00", ""},
    {"255", "00 FF", ""},
    {"5", "00 5", ""},
    {"0", "00 0", ""},
    {"2.5", "00 2", ""},
    {"65536", "11 11", "Value entered must be from 0 - 65535"},
    {"-1", "11 11", "Value entered must be from 0 - 65535"},
};

TEST_F(Curve, EntriesOfM) {
    for (const EntryOfM& row : entriesOfM) {
        SCOPED_TRACE(entryName(base + 14, row.typed));
        open(2);
        enter(screen().DTaInput, row.typed);
        EXPECT_EQ(cells(base + 14, base + 15), row.cells);
        EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
    }
}

TEST_F(Curve, MComesBackSwapped) {
    open(2);
    enter(screen().DTaInput, "4660");
    EXPECT_EQ(screen().S_GTF(2).caption(), "M - 13330") << "3412 in hexadecimal";
}

TEST_F(Curve, EntriesComeBack) {
    open(3);
    for (int k = 0; k <= 255; ++k) {
        enter(screen().DTaInput, std::to_string(k));
        EXPECT_EQ(screen().S_GTF(3).caption(), "K - " + std::to_string(k));
    }
    for (const int option : {1, 4}) {
        open(option);
        for (int value = 0; value <= 127; ++value) {
            enter(screen().DTaInput, std::to_string(value));
            EXPECT_EQ(screen().S_GTF(option).caption(), (option == 1 ? "C - " : "J - ") + std::to_string(value));
        }
    }
    open(0);
    for (int frequency = 0; frequency <= 510; frequency += 2) {
        enter(screen().DTaInput, std::to_string(frequency));
        EXPECT_EQ(screen().S_GTF(0).caption(), "Start Hor Freq - " + std::to_string(frequency) + " KHz");
    }
}

TEST_F(Curve, WithoutAFieldOnlyTheDecoderRuns) {
    open(0);
    screen().S_GTF(0).setValue(0);
    enter(screen().DTaInput, "300");
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_EQ(cells(base + 12, base + 17), "11 11 11 11 11 11");
}

} // namespace
} // namespace wb::test
