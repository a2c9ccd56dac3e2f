#include "block0/descriptor_fixture.h"
#include "core/base/numbers.h"

namespace wb::test {
namespace {

class ColourPoint : public DescriptorEditor {
protected:
    /// Two white points in use, every value "FF".
    void makePoints() {
        program.setCells(base, {"00", "00", "00", "FB", "00", "01", "FF", "FF", "FF", "FF", "02", "FF", "FF", "FF",
                                "FF", "0A", "20", "20"});
    }
};

/// An entry into a field of a white point, by the offset of its cell, and cells 6 to 9 and 11 to 14 afterwards.
struct EntryOfWhite {
    int offset;
    const char* typed;
    const char* first;
    const char* second;
    const char* box;
};

const EntryOfWhite entriesOfWhite[] = {
    {7, "0.640", "FF A3 FF FF", "FF FF FF FF", ""},
    {7, "0.5", "F3 80 FF FF", "FF FF FF FF", ""},
    {8, "0.5", "FC FF 80 FF", "FF FF FF FF", ""},
    {9, "2.20", "FF FF FF 78", "FF FF FF FF", ""},
    {12, "0.5", "FF FF FF FF", "F3 80 FF FF", ""},
    {13, "0.1", "FF FF FF FF", "FE FF 19 FF", ""},
    {14, "1.00", "FF FF FF FF", "FF FF FF 00", ""},
    {7, "1", "F3 00 FF FF", "FF FF FF FF", ""},
    {7, "-1", "F3 00 FF FF", "FF FF FF FF", ""},
    {8, "abc", "FC FF 00 FF", "FF FF FF FF", ""},
    {7, "1.01", "FF FF FF FF", "FF FF FF FF", "This value must be a fraction less than 1.00"},
    {13, "2", "FF FF FF FF", "FF FF FF FF", "This value must be a fraction less than 1.00"},
    {9, "0.99", "FF FF FF FF", "FF FF FF FF", "This value must value between 1.00-3.55"},
    {14, "3.56", "FF FF FF FF", "FF FF FF FF", "This value must value between 1.00-3.55"},
    {14, "", "FF FF FF FF", "FF FF FF FF", "This value must value between 1.00-3.55"},
};

TEST_F(ColourPoint, Entries) {
    for (const EntryOfWhite& row : entriesOfWhite) {
        SCOPED_TRACE(entryName(base + row.offset, row.typed));
        makePoints();
        visit(base + row.offset);
        EXPECT_EQ(focused(), "frmEDID.DTaInput") << "the decoder gives it the focus in any case";
        enter(screen().DTaInput, row.typed);
        EXPECT_EQ(cells(base + 6, base + 9), row.first);
        EXPECT_EQ(cells(base + 11, base + 14), row.second);
        EXPECT_EQ(cells(base + 15, base + 17), "0A 20 20");
        EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
        EXPECT_EQ(blockSum(), 0);
    }
}

TEST_F(ColourPoint, EntriesComeBack) {
    makePoints();
    for (int n = 0; n <= 1023; n += 3) {
        const std::string text = plainDecimal(n / 1024.0);
        visit(base + 13);
        enter(screen().DTaInput, text);
        EXPECT_EQ(byteAt(screen(), base + 13) * 4 + (byteAt(screen(), base + 11) & 3), n);
        EXPECT_EQ(screen().DtaOptWhite(4).caption(), "White Y - " + formatNumber(n / 1024.0, "0.000"));
        EXPECT_EQ(screen().DTaInput.text(), formatNumber(n / 1024.0, "0.000"));
    }
}

TEST_F(ColourPoint, APointThatIsOffTakesNoValues) {
    makePoints();
    program.setCells(base + 5, {"00"});
    visit(base + 7);
    ASSERT_EQ(screen().DtaOptWhite.firstSelected(), 0);
    EXPECT_EQ(cells(base + 6, base + 9), "00 00 00 00") << "its decoder blanks it";
    screen().DTa(4).setCaption("x");
    screen().Hints(11).setCaption("untouched");
    screen().NotUsed(0).setEnabled(false);
    enter(screen().DTaInput, "0.5");
    EXPECT_EQ(cells(base + 6, base + 9), "00 00 00 00");
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_FALSE(screen().NotUsed(0).enabled()) << "no decoder";
    enter(screen().DTaInput, "1.5");
    EXPECT_EQ(program.takeBoxes(), Texts{"This value must be a fraction less than 1.00"}) << "tested first";
    program.setCells(base + 5, {"01"});
    program.setCells(base + 10, {"00"});
    visit(base + 14);
    enter(screen().DTaInput, "2.2");
    EXPECT_EQ(at(14), "00");
}

TEST_F(ColourPoint, WithoutAFieldOnlyTheDecoderRuns) {
    makePoints();
    visit(base + 3);
    screen().NotUsed(0).setEnabled(true);
    enter(screen().DTaInput, "0.5");
    EXPECT_EQ(cells(base + 6, base + 9), "FF FF FF FF");
    EXPECT_FALSE(screen().NotUsed(0).enabled());
}

TEST_F(ColourPoint, OptionsOpenTheirFields) {
    makePoints();
    visit(base);
    const int offsets[] = {7, 8, 9, 12, 13, 14};
    for (int i = 5; i >= 0; --i) {
        click(screen().DtaOptWhite(i));
        EXPECT_EQ(screen().DtaOptWhite.firstSelected(), i);
        EXPECT_EQ(screen().txtEdit(base + offsets[i]).backColor(), CellColour::Field) << "the cell was visited";
        EXPECT_EQ(focused(), "frmEDID.DTaInput");
    }
}

TEST_F(ColourPoint, IndexChecksSwitchThePoints) {
    makePoints();
    program.setCells(base + 5, {"00"});
    program.setCells(base + 10, {"00"});
    visit(base + 3);
    click(screen().Windex(0));
    EXPECT_EQ(at(5), "01");
    EXPECT_EQ(at(10), "00");
    EXPECT_TRUE(screen().DtaOptWhite(0).selected());
    EXPECT_EQ(screen().txtEdit(base + 7).backColor(), CellColour::Field) << "its option opens the field";
    click(screen().Windex(1));
    EXPECT_EQ(at(10), "02");
    EXPECT_TRUE(screen().DtaOptWhite(3).selected());
    EXPECT_EQ(blockSum(), 0);
    program.setCells(base + 6, {"44", "44", "44", "44"});
    click(screen().Windex(0));
    EXPECT_EQ(cells(base + 5, base + 10), "00 00 00 00 00 02") << "the decoder blanks what is off";
    click(screen().Windex(1));
    EXPECT_EQ(at(10), "00");
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(ColourPoint, IndexChecksTestNoFlag) {
    makePoints();
    visit(base + 3);
    screen().InFocusDispatch = flagTrue;
    program.setCells(base + 5, {"07"});
    click(screen().Windex(0));
    EXPECT_EQ(at(5), "01");
}

} // namespace
} // namespace wb::test
