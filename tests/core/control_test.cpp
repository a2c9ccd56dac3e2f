#include "core/control.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/workbench.h"
#include "support/program.h"
#include "support/silent_view.h"

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

/// Notes which controls have changed.
class NotingView : public test::SilentView {
public:
    void controlChanged(Control& control) override { names.push_back(control.fullName()); }

    std::vector<std::string> names;
};

/// A change of a combo with the rows "01" to "08".
struct Change {
    const char* name;
    void (*make)(Control& control);
};

const Change changes[] = {
    {"setText", [](Control& control) { control.setText("a text"); }},
    {"setText of a cell", [](Control& control) { control.setText("AB"); }},
    {"takeText", [](Control& control) { control.takeText("a long text"); }},
    {"setCaption", [](Control& control) { control.setCaption("a caption"); }},
    {"setCaption in pieces",
     [](Control& control) {
         control.setCaption({"a ", "caption"});
     }},
    {"lendCaption", [](Control& control) { control.lendCaption("a caption"); }},
    {"changeValue", [](Control& control) { control.changeValue(3); }},
    {"setVisible", [](Control& control) { control.setVisible(false); }},
    {"setEnabled", [](Control& control) { control.setEnabled(false); }},
    {"setLocked", [](Control& control) { control.setLocked(true); }},
    {"setBackColor", [](Control& control) { control.setBackColor(CellColour::Field); }},
    {"setFontBold", [](Control& control) { control.setFontBold(true); }},
    {"setMaxLength", [](Control& control) { control.setMaxLength(3); }},
    {"setBounds",
     [](Control& control) {
         control.setBounds({1, 2, 3, 4});
     }},
    {"setTop", [](Control& control) { control.setTop(5); }},
    {"setHeight", [](Control& control) { control.setHeight(6); }},
};

std::string propertiesOf(const Control& control) {
    const Bounds& bounds = control.bounds();
    std::string told = control.text() + '|' + control.caption();
    for (const int number : {control.value(), static_cast<int>(control.ownVisible()),
                             static_cast<int>(control.enabled()), static_cast<int>(control.locked()),
                             static_cast<int>(control.backColor()), static_cast<int>(control.fontBold()),
                             control.maxLength(), bounds.left, bounds.top, bounds.width, bounds.height}) {
        told += '|' + std::to_string(number);
    }
    return told;
}

class AChange : public testing::Test {
protected:
    test::Program program;
    NotingView view;
    const std::unique_ptr<Screen> made = program.workbench.makeScreen(ScreenId::CeaExt);
    Control& combo = *made->find("AudChCBox");

    void SetUp() override { program.workbench.view = &view; }
    void TearDown() override { program.workbench.view = nullptr; }
};

TEST_F(AChange, IsToldToTheView) {
    for (const Change& change : changes) {
        view.names.clear();
        change.make(combo);
        EXPECT_EQ(view.names, std::vector<std::string>{"frmCEA_EXT.AudChCBox"}) << change.name;
    }
}

TEST_F(AChange, IsTakenBack) {
    const std::unique_ptr<Screen> other = program.workbench.makeScreen(ScreenId::CeaExt);
    const Control& asMade = *other->find("AudChCBox");
    for (const Change& change : changes) {
        combo.takeBack(asMade);
        change.make(combo);
        ASSERT_NE(propertiesOf(combo), propertiesOf(asMade)) << change.name;
        combo.takeBack(asMade);
        EXPECT_EQ(propertiesOf(combo), propertiesOf(asMade)) << change.name;
    }
}

} // namespace
} // namespace wb
