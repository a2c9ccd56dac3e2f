#include "block0/editor.h"

namespace wb::test {
namespace {

class Established : public Editor {
protected:
    Established() { switchModify(); }
};

TEST_F(Established, EachCheckWritesItsBit) {
    const char* bits[] = {"80", "40", "20", "10", "08", "04", "02", "01"};
    const char* others[] = {"7F", "BF", "DF", "EF", "F7", "FB", "FD", "FE"};
    for (int i = 0; i <= 7; ++i) {
        SCOPED_TRACE("check " + std::to_string(i));
        for (const auto& [cell, checks] : {std::pair{35, &screen().ET1}, std::pair{36, &screen().ET2}}) {
            program.setCells(cell, {"00"});
            visit(cell);
            click((*checks)(i));
            EXPECT_EQ(this->cell(cell), bits[i]);
            EXPECT_EQ(blockSum(), 0);
            program.setCells(cell, {"FF"});
            visit(cell);
            click((*checks)(i));
            EXPECT_EQ(this->cell(cell), others[i]);
        }
    }
}

TEST_F(Established, ChecksAddUp) {
    visit(35);
    click(screen().ET1(0));
    EXPECT_EQ(cell(35), "80");
    click(screen().ET1(7));
    EXPECT_EQ(cell(35), "81");
    click(screen().ET1(0));
    EXPECT_EQ(cell(35), "01");
    EXPECT_EQ(workbench.EstablishedTiming1Text, "         800 X 600 @ 60Hz (VESA)");
}

TEST_F(Established, ReservedBitsStay) {
    program.setCells(37, {"55"});
    visit(37);
    click(screen().ET3(7));
    EXPECT_EQ(cell(37), "D5");
    click(screen().ET3(7));
    EXPECT_EQ(cell(37), "55");
    EXPECT_EQ(workbench.ReservedTimingText, "");
}

TEST_F(Established, AFlagLeftByAFailureStopsTheHandlers) {
    visit(36);
    program.type("ZZ");
    program.setCells(36, {"00"});
    click(screen().ET2(3));
    EXPECT_EQ(cell(36), "00");
}

} // namespace
} // namespace wb::test
