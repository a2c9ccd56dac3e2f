#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using Texts = std::vector<std::string>;

class Return : public ExtensionTest {
protected:
    void showBoth() {
        wb.windows.show(wb.frmEDID());
        wb.windows.show(screen());
        wb.CEAScreenOpen = flagTrue;
    }
};

TEST_F(Return, GoesToTheFirstCellOfBlock0) {
    showBoth();
    wb.focus.moveTo(wb.frmEDID().txtEdit(20));
    wb.windows.show(screen());
    setCell(30, "AB");
    ASSERT_TRUE(input::click(screen().Cmd_Return));
    EXPECT_FALSE(screen().shown());
    EXPECT_EQ(wb.CEAScreenOpen, flagFalse);
    EXPECT_EQ(wb.focus.current(), &wb.frmEDID().txtEdit(0));
    EXPECT_EQ(wb.windows.activeChild(), &wb.frmEDID());
    EXPECT_EQ(cell(30), "AB");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Return, ShowsBlock0WhereTheFocusLastWasThere) {
    wb.windows.show(wb.frmEDID());
    wb.focus.moveTo(wb.frmEDID().txtEdit(20));
    wb.windows.show(wb.frmDocument());
    wb.frmEDID().txtEdit(20).setText("ABC");
    wb.windows.show(screen());
    ASSERT_TRUE(input::click(screen().Cmd_Return));
    // On its way to cell 0 the focus meets a cell that does not let it go.
    EXPECT_EQ(boxes(), Texts{"Please Make Your Values In Hex"});
    EXPECT_EQ(wb.focus.current(), &wb.frmEDID().txtEdit(20));
    EXPECT_FALSE(screen().shown());
}

TEST_F(Return, OnlyHidesWithoutAnImage) {
    wb.windows.show(screen());
    wb.CEAScreenOpen = flagTrue;
    wb.EDIDLoaded = flagFalse;
    input::click(screen().Cmd_Return);
    EXPECT_FALSE(screen().shown());
    EXPECT_EQ(wb.CEAScreenOpen, flagFalse);
    EXPECT_FALSE(wb.frmEDID().shown());
}

} // namespace
} // namespace wb::cea
