#include "core/control.h"

#include <gtest/gtest.h>

#include "core/workbench.h"
#include "support/program.h"

namespace wb {
namespace {

class ALentCaption : public testing::Test {
protected:
    test::Program program;
    Control& button = program.workbench.frmMain().Command1;
};

TEST_F(ALentCaption, IsTheCaptionUntilAnotherIsSet) {
    button.lendCaption("lent");
    EXPECT_EQ(button.caption(), "lent");
    button.setCaption("set");
    EXPECT_EQ(button.caption(), "set");
    button.lendCaption("lent before it was asked for");
    button.setCaption({"set", " in pieces"});
    EXPECT_EQ(button.caption(), "set in pieces");
    button.lendCaption("");
    EXPECT_EQ(button.caption(), "");
}

TEST_F(ALentCaption, IsTakenBackAsItWasMade) {
    const std::unique_ptr<Screen> other = program.workbench.makeScreen(ScreenId::Main);
    const Control& asMade = *other->find("Command1");
    button.setCaption("something else");
    button.takeBack(asMade);
    EXPECT_EQ(button.caption(), "Translate EDID");
    button.setCaption("again");
    EXPECT_EQ(asMade.caption(), "Translate EDID") << "which makes it its own";
    button.takeBack(asMade);
    EXPECT_EQ(button.caption(), "Translate EDID");
}

} // namespace
} // namespace wb
