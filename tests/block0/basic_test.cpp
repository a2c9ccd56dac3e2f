#include "block0/editor.h"

namespace wb::test {
namespace {

class Basic : public Editor {
protected:
    Basic() { switchModify(); }
};

struct Entry {
    int cell;
    const char* typed;
    const char* text; ///< of the cell, "05" before
    const char* box;
};

constexpr const char* sizeRefused = "This value must value between 0 and 2550";
constexpr const char* gammaRefused = "This value must value between 1.00-3.55";

const Entry entries[] = {
    {21, "2550", "FF", ""},
    {21, "2551", "05", sizeRefused},
    {21, "0", "00", ""},
    {21, "14", "01", ""},
    {21, "15", "02", ""},
    {21, "25", "03", ""},
    {21, "520", "34", ""},
    {21, "-5", "FFFB", ""},
    {21, "", "00", ""},
    {21, "-1.5", "FFFE", ""},
    {21, "-32769", "05", "Overflow"},
    {22, "2550", "FF", ""},
    {22, "300", "1E", ""},
    {22, "9999", "05", sizeRefused},
    {23, "1.00", "00", ""},
    {23, "2.20", "78", ""},
    {23, "3.55", "FF", ""},
    {23, "0.99", "05", gammaRefused},
    {23, "3.56", "05", gammaRefused},
    {23, "", "05", gammaRefused},
    {23, "-2.2", "05", gammaRefused},
};

TEST_F(Basic, Values) {
    for (const Entry& row : entries) {
        SCOPED_TRACE(entryName(row.cell, row.typed));
        program.setCells(21, {"05", "05", "05"});
        visit(row.cell);
        enter(screen().BasicInput, row.typed);
        EXPECT_EQ(cell(row.cell), row.text);
        EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
        if (*row.box == '\0') {
            EXPECT_EQ(blockSum(), 0);
        } else {
            EXPECT_EQ(screen().BasicInput.text(), row.typed);
        }
        for (int other = 21; other <= 23; ++other) {
            if (other != row.cell) {
                EXPECT_EQ(cell(other), "05");
            }
        }
    }
}

TEST_F(Basic, SizesComeBack) {
    visit(22);
    for (int size = 1; size <= 255; ++size) {
        const std::string millimetres = std::to_string(size * 10);
        enter(screen().BasicInput, millimetres);
        EXPECT_EQ(screen().Basic(1).caption(), "Max Vert Size " + millimetres + " mm");
    }
}

TEST_F(Basic, GammasComeBack) {
    visit(23);
    for (int gamma = 100; gamma <= 355; ++gamma) {
        std::string text = std::to_string(gamma);
        text.insert(1, ".");
        enter(screen().BasicInput, text);
        EXPECT_EQ(workbench.DisplayGammaText, text);
    }
}

TEST_F(Basic, AnOptionOpensItsField) {
    visit(21);
    for (const int field : {1, 2, 0}) {
        click(screen().Basic(field));
        EXPECT_EQ(focused(), cellName(21 + field));
        EXPECT_TRUE(screen().Basic(field).selected());
    }
}

TEST_F(Basic, OtherKeysWriteNothing) {
    program.setCells(21, {"05"});
    visit(21);
    moveFocus(screen().BasicInput);
    EXPECT_EQ(screen().BasicInput.selLength(), 2);
    program.type("99");
    EXPECT_EQ(cell(21), "05");
}

struct BitClick {
    int cell;
    const char* before;
    const char* control;
    int index;
    const char* after;
};

const BitClick clicks[] = {
    {20, "1F", "VideoMode", 1, "80"},   {20, "81", "VideoMode", 0, "00"},   {20, "6F", "VideoMode", 0, "00"},
    {20, "81", "VideoMode", 1, "80"},   {20, "0F", "Signal", 3, "6F"},      {20, "6F", "Signal", 0, "0F"},
    {20, "6F", "Signal", 1, "2F"},      {20, "2F", "Signal", 2, "4F"},      {20, "00", "Sync", 0, "01"},
    {20, "00", "Sync", 1, "02"},        {20, "00", "Sync", 2, "04"},        {20, "00", "Sync", 3, "08"},
    {20, "00", "Sync", 4, "10"},        {20, "7F", "Sync", 0, "7E"},        {20, "7F", "Sync", 1, "7D"},
    {20, "7F", "Sync", 2, "7B"},        {20, "7F", "Sync", 3, "77"},        {20, "7F", "Sync", 4, "6F"},
    {20, "80", "DFP_1", 1, "81"},       {20, "81", "DFP_1", 1, "80"},       {20, "FE", "DFP_1", 1, "FF"},
    {20, "FF", "DFP_1", 1, "80"},       {24, "18", "DisplayType", 1, "08"}, {24, "FF", "DisplayType", 0, "E7"},
    {24, "00", "DisplayType", 2, "10"}, {24, "00", "DisplayType", 3, "18"}, {24, "00", "FSupport", 0, "80"},
    {24, "00", "FSupport", 1, "40"},    {24, "00", "FSupport", 2, "20"},    {24, "00", "FSupport", 3, "04"},
    {24, "00", "FSupport", 4, "02"},    {24, "00", "FSupport", 5, "01"},    {24, "FF", "FSupport", 0, "7F"},
    {24, "FF", "FSupport", 1, "BF"},    {24, "FF", "FSupport", 2, "DF"},    {24, "FF", "FSupport", 3, "FB"},
    {24, "FF", "FSupport", 4, "FD"},    {24, "FF", "FSupport", 5, "FE"},
};

TEST_F(Basic, BitControls) {
    for (const BitClick& row : clicks) {
        SCOPED_TRACE(std::string(row.control) + std::to_string(row.index) + " on " + row.before);
        program.setCells(row.cell, {row.before});
        visit(row.cell);
        EXPECT_EQ(cell(row.cell), row.before) << "a visit writes nothing";
        click(*screen().find(row.control, row.index));
        EXPECT_EQ(cell(row.cell), row.after);
        EXPECT_EQ(blockSum(), 0);
    }
}

TEST_F(Basic, ABitClickDecodesTheField) {
    visit(20);
    click(screen().VideoMode(1));
    EXPECT_TRUE(screen().DFP.visible());
    EXPECT_EQ(workbench.VideoInputText.substr(0, 14), "Digital Signal");
    visit(24);
    click(screen().FSupport(1));
    EXPECT_EQ(workbench.PowerFeatureText, "Suspend");
}

TEST_F(Basic, TheVideoModeReplacesABadCell) {
    program.setCells(20, {"ZZ"});
    visit(20);
    program.takeBoxes();
    click(screen().VideoMode(1));
    EXPECT_EQ(cell(20), "80");
    EXPECT_TRUE(program.takeBoxes().empty());
}

TEST_F(Basic, AFlagLeftByAFailureStopsTheHandlers) {
    visit(20);
    program.type("ZZ"); // the decoder fails after it has raised the flag
    ASSERT_EQ(screen().InFocusDispatch, flagTrue);
    program.setCells(20, {"00"});
    click(screen().Signal(1));
    click(screen().Sync(0));
    EXPECT_EQ(cell(20), "00");
    visit(0);
    visit(20);
    click(screen().Signal(1));
    EXPECT_EQ(cell(20), "20");
}

} // namespace
} // namespace wb::test
