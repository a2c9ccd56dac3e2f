#include "block0/editor.h"

namespace wb::test {
namespace {

constexpr int horizontal = 0;
constexpr int frequency = 1;

/// An entry into a pair that holds "31 C5", and the pair afterwards.
struct Entry {
    int adjust;
    const char* typed;
    const char* pair;
    const char* box;
};

const Entry entries[] = {
    {horizontal, "1024", "61 C5", ""},
    {horizontal, "248", "01 01", ""}, // 0 is the mark of an unused pair
    {horizontal, "0", "01 01", ""},
    {horizontal, "", "01 01", ""},
    {horizontal, "abc", "01 01", ""},
    {horizontal, "2288", "FF C5", ""},
    {horizontal, "2296", "31 C5", "Invalid Value"},
    {horizontal, "32767", "31 C5", "Invalid Value"},
    {horizontal, "32768", "31 C5", "Overflow"},
    {horizontal, "1028", "62 C5", ""}, // 97.5 goes to the even neighbour
    {horizontal, "1036", "62 C5", ""}, // 98.5 too
    {horizontal, "1024.5", "61 C5", ""},
    {horizontal, "240", "FFFF C5", ""},
    {horizontal, "8", "FFE2 C5", ""},
    {horizontal, "-5", "FFFB C5", ""},
    {frequency, "60", "31 C0", ""},
    {frequency, "85", "31 D9", ""},
    {frequency, "123", "31 FF", ""},
    {frequency, "124", "31 C0", ""}, // 64 falls onto the aspect bits
    {frequency, "315", "31 FF", ""},
    {frequency, "316", "31 C5", "Invalid Value"},
    {frequency, "59", "31 FFFF", ""},
    {frequency, "", "31 FFC4", ""},
    {frequency, "32768", "31 C5", "Overflow"},
    {frequency, "-32709", "31 C5", "Overflow"},
};

class Standard : public Editor {
protected:
    Standard() {
        switchModify();
        program.setCells(54, {"00", "00", "00", "FA", "00"});
    }

    void expectEntries(int firstCell, ControlArray& adjust, Control& box) {
        for (const Entry& row : entries) {
            SCOPED_TRACE(adjust(row.adjust).fullName() + ", " + entryName(firstCell, row.typed));
            program.setCells(firstCell, {"31", "C5"});
            visit(firstCell);
            click(adjust(row.adjust));
            EXPECT_EQ(workbench.focus.current(), &box);
            enter(box, row.typed);
            EXPECT_EQ(cells(firstCell, firstCell + 1), row.pair);
            EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
            EXPECT_EQ(box.text(), *row.box == '\0' ? "" : row.typed);
        }
    }
};

TEST_F(Standard, EntriesOfAPair) {
    expectEntries(38, screen().STAOpta, screen().STAInput);
    expectEntries(52, screen().STAOpta, screen().STAInput);
}

TEST_F(Standard, EntriesOfADescriptorPair) {
    expectEntries(59, screen().ExtSTAOpta, screen().ExtStaInput);
    expectEntries(69, screen().ExtSTAOpta, screen().ExtStaInput);
}

TEST_F(Standard, WithNeitherAdjustOptionAnEntryIsTheRate) {
    program.setCells(38, {"31", "C5"});
    visit(38);
    enter(screen().STAInput, "85");
    EXPECT_EQ(cells(38, 39), "31 D9");
    program.setCells(59, {"31", "C5"});
    visit(59);
    enter(screen().ExtStaInput, "85");
    EXPECT_EQ(cells(59, 60), "31 D9");
}

TEST_F(Standard, TimingsComeBack) {
    visit(40);
    click(screen().STAOptb(3));
    for (int width = 256 + 8; width <= 2288; width += 8) {
        click(screen().STAOpta(horizontal));
        enter(screen().STAInput, std::to_string(width));
        click(screen().STAOpta(frequency));
        const int rate = 60 + width / 8 % 64;
        enter(screen().STAInput, std::to_string(rate));
        const std::string text = screen().STOpt(1).caption();
        EXPECT_EQ(text.substr(0, text.find(' ')), std::to_string(width));
        EXPECT_EQ(text.substr(text.find('@')), "@" + std::to_string(rate) + "Hz");
        EXPECT_TRUE(screen().STAOptb(3).selected());
    }
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(Standard, TheAspectLeavesTheRate) {
    const char* rates[] = {"05", "45", "85", "C5"};
    program.setCells(38, {"31", "C5"});
    program.setCells(59, {"31", "C5"});
    for (int i = 0; i <= 3; ++i) {
        SCOPED_TRACE(screen().STAOptb(i).fullName());
        visit(39);
        click(screen().STAOptb(i));
        EXPECT_EQ(cells(38, 39), std::string("31 ") + rates[i]);
        EXPECT_TRUE(screen().STAOptb(i).selected());
        visit(60);
        click(screen().ExtSTAOptb(i));
        EXPECT_EQ(cells(59, 60), std::string("31 ") + rates[i]);
        EXPECT_TRUE(screen().ExtSTAOptb(i).selected());
        EXPECT_EQ(blockSum(), 0);
    }
    EXPECT_EQ(screen().STOpt(0).caption(), "640 X 360 @65Hz");
    EXPECT_EQ(screen().ExtSTOpt(0).caption(), "640 X 360 @65Hz");
}

TEST_F(Standard, WithoutASelectorTheAspectDoesNothing) {
    program.setCells(38, {"31", "C5"});
    program.setCells(59, {"31", "C5"});
    visit(38);
    screen().STOpt(0).setValue(0);
    click(screen().STAOptb(0));
    EXPECT_EQ(cell(39), "C5");
    visit(59);
    screen().ExtSTOpt(0).setValue(0);
    click(screen().ExtSTAOptb(0));
    EXPECT_EQ(cell(60), "C5");
}

TEST_F(Standard, ASelectorOpensItsPair) {
    visit(38);
    for (int i = 7; i >= 0; --i) {
        click(screen().STOpt(i));
        EXPECT_EQ(focused(), cellName(38 + 2 * i));
        EXPECT_TRUE(screen().STOpt(i).selected());
    }
    visit(54);
    for (int i = 5; i >= 0; --i) {
        click(screen().ExtSTOpt(i));
        EXPECT_EQ(focused(), cellName(59 + 2 * i));
        EXPECT_TRUE(screen().ExtSTOpt(i).selected());
    }
}

TEST_F(Standard, DisablingTheDescriptorMakesItASerialNumber) {
    visit(60);
    click(screen().ExtSTOpt(6));
    EXPECT_EQ(cell(57), "FF");
    EXPECT_EQ(focused(), cellName(57));
    EXPECT_TRUE(screen().Hints(11).visible());
    EXPECT_FALSE(screen().Hints(12).visible());
    EXPECT_TRUE(screen().DTa(0).selected());
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(Standard, WithoutAPairADescriptorEntryGoesBehindTheLast) {
    program.setCells(72, {"22"});
    visit(57);
    ASSERT_EQ(screen().ExtSTOpt.firstSelected(), -1);
    click(screen().ExtSTAOpta(horizontal));
    enter(screen().ExtStaInput, "1024");
    EXPECT_EQ(cells(70, 72), "00 61 22");
    enter(screen().ExtStaInput, "0");
    EXPECT_EQ(cells(70, 72), "00 01 01") << "the second cell is in the next block";
}

TEST_F(Standard, AFlagLeftByAFailureStopsTheOptions) {
    program.setCells(38, {"31", "C5"});
    visit(38);
    program.type("ZZ");
    ASSERT_EQ(screen().InFocusDispatch, flagTrue);
    click(screen().STOpt(5));
    EXPECT_EQ(focused(), "frmEDID.STOpt(5)");
    click(screen().STAOptb(0));
    EXPECT_EQ(cell(39), "C5");
    click(screen().STAOpta(0));
    EXPECT_EQ(focused(), "frmEDID.STAOpta(0)");
}

TEST_F(Standard, TheBoxesSeek) {
    switchSeek();
    visit(38);
    EXPECT_EQ(focused(), "frmEDID.STAInput");
    visit(60);
    EXPECT_EQ(focused(), "frmEDID.ExtStaInput");
    visit(0);
}

} // namespace
} // namespace wb::test
