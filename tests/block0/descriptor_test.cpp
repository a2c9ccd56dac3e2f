#include "block0/editor.h"
#include "core/numbers.h"

namespace wb::test {
namespace {

constexpr int base = 90;

class Descriptor : public Editor {
protected:
    Descriptor() { switchModify(); }
    /// A descriptor whose cells behind the tag are all "11".
    void makeBlock(const char* tag) {
        program.setCells(base, {"00", "00", "00", tag, "11", "11", "11", "11", "11", "11", "11", "11", "11", "11", "11",
                                "11", "11", "11"});
    }
    std::string payload() { return cells(base + 5, base + 17); }
    std::string at(int offset) { return cell(base + offset); }
};

TEST_F(Descriptor, ATextEndsWithALineFeedAndBlanks) {
    for (const char* tag : {"FF", "FE", "FC"}) {
        SCOPED_TRACE(tag);
        makeBlock(tag);
        visit(base + 8);
        enter(screen().DTaInput, "ABC");
        EXPECT_EQ(payload(), "41 42 43 0A 20 20 20 20 20 20 20 20 20");
        EXPECT_EQ(screen().DTaInput.text(), "ABC");
        EXPECT_EQ(blockSum(), 0);
        EXPECT_EQ(cells(base, base + 4), std::string("00 00 00 ") + tag + " 11");
    }
}

TEST_F(Descriptor, TextsOfEveryLengthComeBack) {
    makeBlock("FC");
    visit(base);
    const std::string longest = "Halvorine 17x";
    for (std::size_t length = 0; length <= longest.size(); ++length) {
        const std::string name = longest.substr(0, length);
        enter(screen().DTaInput, name);
        EXPECT_EQ(screen().txtModel.text(), name);
        EXPECT_EQ(screen().DTaInput.text(), name);
    }
    EXPECT_EQ(payload(), "48 61 6C 76 6F 72 69 6E 65 20 31 37 78") << "a full text has no end";
}

TEST_F(Descriptor, AnEmptyTextIsAllBlank) {
    makeBlock("FE");
    visit(base);
    enter(screen().DTaInput, "");
    EXPECT_EQ(payload(), "0A 20 20 20 20 20 20 20 20 20 20 20 20");
}

TEST_F(Descriptor, ATextTakesNoFourteenthCharacter) {
    makeBlock("FE");
    visit(base);
    enter(screen().DTaInput, "01234567890123");
    EXPECT_EQ(payload(), "30 31 32 33 34 35 36 37 38 39 30 31 32");
}

TEST_F(Descriptor, ATextKeepsItsCase) {
    makeBlock("FE");
    visit(base);
    enter(screen().DTaInput, "aZ\xE9");
    EXPECT_EQ(payload().substr(0, 11), "61 5A E9 0A");
}

TEST_F(Descriptor, TagsWithoutFieldsWriteNothing) {
    makeBlock("FF");
    visit(base);
    for (const int tag : {5, 6, 7}) {
        screen().InFocusDispatch = flagTrue;
        screen().DTa(tag).setValue(-1);
        screen().InFocusDispatch = flagFalse;
        enter(screen().DTaInput, "5");
        EXPECT_EQ(payload(), "11 11 11 11 11 11 11 11 11 11 11 11 11");
        EXPECT_TRUE(screen().DTa(0).selected()) << "the decoder has run";
    }
}

TEST_F(Descriptor, WithoutATagEnterDoesNothing) {
    makeBlock("FF");
    visit(base);
    screen().DTa(0).setValue(0);
    enter(screen().DTaInput, "5");
    EXPECT_EQ(payload(), "11 11 11 11 11 11 11 11 11 11 11 11 11");
    EXPECT_EQ(screen().DTa.firstSelected(), -1) << "not even the decoder";
}

TEST_F(Descriptor, TagOptions) {
    const char* tags[] = {"FF", "FE", "FD", "FC", "FB", "FA"};
    for (int i = 0; i <= 5; ++i) {
        SCOPED_TRACE(i);
        makeBlock(i == 0 ? "FE" : "FF");
        visit(base);
        click(screen().DTa(i));
        EXPECT_TRUE(program.takeBoxes().empty());
        EXPECT_EQ(cells(base + 3, base + 4), std::string(tags[i]) + " 00");
        const char* const end = i == 5 ? "0A" : i == 4 ? "20" : "11"; // the decoder of a colour point fills up
        EXPECT_EQ(at(17), end);
        EXPECT_EQ(screen().Hints(12).visible(), i == 5);
        EXPECT_EQ(blockSum(), 0);
    }
}

TEST_F(Descriptor, TheUndefinedTagFailsInItsDecoder) {
    makeBlock("FF");
    visit(base);
    click(screen().DTa(6));
    EXPECT_EQ(cells(base + 3, base + 4), "F9 00");
    EXPECT_EQ(program.takeBoxes(), Texts{"Control array element does not exist"});
    EXPECT_EQ(screen().InFocusDispatch, flagTrue);
    click(screen().DTa(1));
    EXPECT_EQ(at(3), "F9") << "the flag stands until the next visit";
}

TEST_F(Descriptor, TheManufacturersTagIsDecodedAsASerialNumber) {
    makeBlock("FF");
    visit(base);
    click(screen().DTa(7));
    EXPECT_EQ(cells(base + 3, base + 4), "00 11") << "the fill byte stays";
    EXPECT_TRUE(screen().DTa(0).selected());
    EXPECT_TRUE(program.takeBoxes().empty());
}

struct Entry {
    int offset; ///< of the cell
    const char* typed;
    const char* text; ///< of the cell, "11" before
    const char* box;
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

TEST_F(Descriptor, RangeLimits) {
    for (const Entry& row : rangeEntries) {
        SCOPED_TRACE(std::to_string(row.offset) + " " + row.typed);
        makeBlock("FD");
        program.setCells(base + 10, {"00"});
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

TEST_F(Descriptor, RangeLimitsComeBack) {
    makeBlock("FD");
    program.setCells(base + 10, {"00"});
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

TEST_F(Descriptor, WithoutALimitOnlyTheDecoderRuns) {
    makeBlock("FD");
    program.setCells(base + 10, {"00"});
    visit(base + 3);
    enter(screen().DTaInput, "300");
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_EQ(cells(base + 5, base + 9), "11 11 11 11 11");
    EXPECT_EQ(screen().DTaInput.text(), "") << "the decoder empties the box";
}

TEST_F(Descriptor, LimitOptionsOpenTheirFields) {
    makeBlock("FD");
    program.setCells(base + 10, {"00"});
    visit(base);
    for (int i = 4; i >= 0; --i) {
        click(screen().DtaOpt(i));
        EXPECT_EQ(focused(), cellName(base + 5 + i));
        EXPECT_TRUE(screen().DtaOpt(i).selected());
    }
}

TEST_F(Descriptor, TheCurveIsSwitchedByItsCheck) {
    makeBlock("FD");
    program.setCells(base + 10, {"00"});
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

TEST_F(Descriptor, TheDecodersOwnSwitchWritesTheCellsToo) {
    makeBlock("FD");
    program.setCells(base + 10, {"01", "33"});
    visit(base);
    EXPECT_EQ(cells(base + 10, base + 12), "02 00 11") << "any curve becomes the one it knows";
    program.setCells(base + 10, {"04", "33"});
    visit(base + 1);
    EXPECT_EQ(cells(base + 10, base + 17), "00 0A 20 20 20 20 20 20");
}

TEST_F(Descriptor, WithModifyOffTheDecodersSwitchWritesNothing) {
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

class Curve : public Descriptor {
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
        SCOPED_TRACE(std::to_string(row.offset) + " " + row.typed);
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
        SCOPED_TRACE(row.typed);
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

class ColourPoint : public Descriptor {
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
        SCOPED_TRACE(std::to_string(row.offset) + " " + row.typed);
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

TEST_F(Descriptor, TheFieldOptionsDoNothingWhileTheFlagStands) {
    makeBlock("FD");
    program.setCells(base + 10, {"00"});
    visit(base);
    screen().InFocusDispatch = flagTrue;
    click(screen().DtaOpt(2));
    EXPECT_EQ(focused(), "frmEDID.DtaOpt(2)");
    click(screen().DTa(0));
    EXPECT_EQ(at(3), "FD");
}

TEST_F(Descriptor, TheBoxSelectsItsTextOnFocus) {
    makeBlock("FC");
    program.setCells(base + 5, {"41", "42", "0A"});
    visit(base);
    moveFocus(screen().DTaInput);
    EXPECT_EQ(screen().DTaInput.selLength(), 2);
}

} // namespace
} // namespace wb::test
