#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <sstream>

#include "core/text.h"
#include "desktop/widget_front_end.h"
#include "support/program.h"

namespace wb::test {
namespace {

/// All that can be seen of a screen, a line a control.
std::string stateOf(const Screen& screen) {
    std::string state(screen.name());
    state += screen.shown() ? " shown\n" : " hidden\n";
    for (const Control* control : screen.controls()) {
        state += control->fullName() + ' ' + wb::quoted(control->text()) + ' ' + wb::quoted(control->caption()) + ' ' +
                 std::to_string(control->value()) + (control->visible() ? " visible" : "") +
                 (control->enabled() ? " enabled" : "") + (control->locked() ? " locked" : "") +
                 (control->fontBold() ? " bold" : "") + ' ' + std::to_string(static_cast<int>(control->backColor())) +
                 '\n';
    }
    return state;
}

std::string stateOf(const Workbench& workbench) {
    const Control* holder = workbench.focus.current();
    std::string state = "focus none\nwindows";
    if (holder != nullptr) { // a selection elsewhere is not drawn, and a click of the mouse changes it
        state = "focus " + holder->fullName() + ' ' + std::to_string(holder->selStart()) + ' ' +
                std::to_string(holder->selLength()) + "\nwindows";
    }
    for (const Screen* child : workbench.windows.children()) {
        state += ' ' + std::string(child->name());
    }
    state += '\n';
    for (const ScreenId id : {ScreenId::Main, ScreenId::Edid, ScreenId::CeaExt, ScreenId::HexCalculator}) {
        if (const Screen* screen = workbench.loaded(id)) {
            state += stateOf(*screen);
        }
    }
    return state;
}

/// The first line in which the two differ.
std::string difference(const std::string& left, const std::string& right) {
    std::istringstream a(left);
    std::istringstream b(right);
    std::string lineOfA;
    std::string lineOfB;
    while (std::getline(a, lineOfA) && std::getline(b, lineOfB)) {
        if (lineOfA != lineOfB) {
            return lineOfA + "\n" + lineOfB;
        }
    }
    return {};
}

/// The same user at the model and at widgets.
class Twins {
public:
    explicit Twins(unsigned seed) : random_(seed), atModel_(model_.workbench), atWidgets_(widgets_) {
        for (platform::headless::HeadlessPlatform* platform : {&model_.platform, &widgets_.platform}) {
            platform->queueFileName(WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT");
        }
        both([](script::FrontEnd& user, Workbench& program) { return user.chooseMenu(program.frmMain().mnuFileOpen); });
        both([](script::FrontEnd& user, Workbench& program) { return user.click(program.frmMain().Command2); });
        both([](script::FrontEnd& user, Workbench& program) { return user.click(program.frmMain().Command4); });
    }

    /// One action of the user, and what it was.
    std::string step() {
        switch (pick(10)) {
            case 0:
            case 1:
            case 2:
                return onControl("click", &script::FrontEnd::click, &Twins::clickable);
            case 3:
            case 4:
                return onControl("focus", &script::FrontEnd::moveFocus, &Twins::focusable);
            case 5:
                return pickRow();
            case 6:
                return onControl("dblclick", &script::FrontEnd::doubleClick, &Twins::isPanel);
            case 7:
                both([](script::FrontEnd& user, Workbench&) { return user.enter(); });
                return "enter";
            default:
                return type();
        }
    }

    std::string different() const {
        if (model_.boxes != widgets_.boxes) {
            return "boxes: " + std::to_string(model_.boxes.size()) + ", " + std::to_string(widgets_.boxes.size());
        }
        return difference(stateOf(model_.workbench), stateOf(widgets_.workbench));
    }
    bool refusedAlike() const { return alike_; }

private:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    template <class Action>
    void both(Action action) {
        const bool first = action(atModel_, model_.workbench);
        const bool second = action(atWidgets_, widgets_.workbench);
        alike_ = alike_ && first == second;
    }

    /// A control of a shown screen that fits, or null after some attempts.
    Control* choose(bool (*fits)(const Control&)) {
        static constexpr ScreenId ids[] = {ScreenId::Edid, ScreenId::Edid, ScreenId::CeaExt, ScreenId::Main};
        constexpr int attempts = 400;
        for (int i = 0; i < attempts; ++i) {
            Screen* screen = model_.workbench.loaded(ids[pick(4)]);
            if (screen != nullptr && screen->shown()) {
                Control* control =
                    screen->controls()[static_cast<std::size_t>(pick(static_cast<int>(screen->controls().size())))];
                // Mostly what is within reach: a refusal is soon told.
                if (fits(*control) && (input::reachable(*control) || pick(20) == 0)) {
                    return control;
                }
            }
        }
        return nullptr;
    }
    static Control& twin(const Control& control, Workbench& workbench) {
        return *workbench.loaded(control.screen().id())->find(control.name(), control.index());
    }

    using ActionOnControl = bool (script::FrontEnd::*)(Control&);
    std::string onControl(const std::string& word, ActionOnControl action, bool (*fits)(const Control&)) {
        const Control* control = choose(fits);
        if (control == nullptr) {
            return "nothing";
        }
        both([&](script::FrontEnd& user, Workbench& workbench) { return (user.*action)(twin(*control, workbench)); });
        return word + ' ' + control->fullName();
    }
    std::string pickRow() {
        const Control* combo = choose([](const Control& c) { return c.kind() == ControlKind::Combo; });
        if (combo == nullptr) {
            return "nothing";
        }
        const int row = pick(static_cast<int>(combo->rows().size()));
        both([&](script::FrontEnd& user, Workbench& workbench) { return user.pick(twin(*combo, workbench), row); });
        return "pick " + combo->fullName() + ' ' + std::to_string(row);
    }
    std::string type() {
        static constexpr std::string_view characters = "0123456789abcdefgzAF.-\b";
        const char character = characters[static_cast<std::size_t>(pick(static_cast<int>(characters.size())))];
        const Control* holder = model_.workbench.focus.current();
        if (holder != nullptr && holder->kind() == ControlKind::Combo) {
            return "nothing"; // there the keys search for a row
        }
        both([&](script::FrontEnd& user, Workbench&) { return user.typeCharacter(character); });
        return "type " + wb::quoted(std::string(1, character));
    }

    // A click on a text puts the cursor there, which is more than the model's click does. The excluded buttons wait or
    // open the report.
    static bool clickable(const Control& c) {
        return c.kind() != ControlKind::Text && c.kind() != ControlKind::Menu && c.name() != "Command5" &&
               c.name() != "Command1";
    }
    static bool focusable(const Control& c) { return c.takesFocus(); }
    static bool isPanel(const Control& c) { return c.name() == "Hints"; }

    std::minstd_rand random_;
    Program model_;
    DesktopProgram widgets_;
    script::ModelFrontEnd atModel_;
    WidgetFrontEnd atWidgets_;
    bool alike_ = true;
};

class RandomUser : public testing::TestWithParam<unsigned> {};

TEST_P(RandomUser, LeavesTheSameStateAtTheModelAndAtWidgets) {
    Twins twins(GetParam());
    std::string history;
    constexpr int steps = 400;
    for (int i = 0; i < steps; ++i) {
        history += twins.step() + '\n';
        ASSERT_EQ(twins.different(), "") << history;
        ASSERT_TRUE(twins.refusedAlike()) << history;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUser, testing::Range(1U, 9U));

} // namespace
} // namespace wb::test
