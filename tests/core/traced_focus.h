#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/workbench.h"
#include "platform/headless/headless_platform.h"

namespace wb::test {

/// What the handlers of the test screens do, beside writing their name: the action planned for the next such event.
struct Plan {
    std::vector<std::string> events;
    std::map<std::string, std::function<void()>> actions;
};

inline Plan* plan = nullptr;

inline Control& controlNamed(Workbench& workbench, const std::string& name) {
    if (name == "brand") {
        return workbench.frmEDID().txtBrand;
    }
    if (name == "info") {
        return workbench.frmEDID().VendorInfo; // on a hidden panel
    }
    return workbench.frmEDID().txtEdit(std::stoi(name));
}

inline void happen(const std::string& event) {
    plan->events.push_back(event);
    if (auto action = plan->actions.extract(event)) {
        action.mapped()();
    }
}

inline void connectTraced(Screen& screen) {
    auto& block = static_cast<FrmEdid&>(screen);
    block.txtEdit.on.gotFocus = [](Workbench&, int i) { happen("got " + std::to_string(i)); };
    block.txtEdit.on.lostFocus = [](Workbench&, int i) { happen("lost " + std::to_string(i)); };
    block.txtBrand.on.gotFocus = [](Workbench&, int) { happen("got brand"); };
}

/// A bare program whose cells and brand tell their focus events.
class FocusTest : public testing::Test {
protected:
    FocusTest() : workbench(platform.services(), wiring) {
        plan = &plan_;
        workbench.windows.show(workbench.frmEDID());
        plan_.events.clear();
    }

    void move(const std::string& to) { workbench.focus.moveTo(controlNamed(workbench, to)); }
    /// The next time the event happens, its handler asks for the focus, for one control after the other.
    void planMoves(const std::string& event, std::vector<std::string> targets) {
        plan_.actions[event] = [this, targets = std::move(targets)] {
            for (const std::string& target : targets) {
                move(target);
            }
        };
    }
    void disable(const std::string& name) { controlNamed(workbench, name).setEnabled(false); }
    std::string focused() {
        return workbench.focus.current() == nullptr ? "none" : workbench.focus.current()->fullName();
    }
    std::string active() {
        const Screen* child = workbench.windows.activeChild();
        return child == nullptr ? "none" : std::string(child->name());
    }

    static Wiring makeWiring() {
        Wiring made{};
        made[static_cast<std::size_t>(ScreenId::Edid)].connect = &connectTraced;
        return made;
    }

    using Events = std::vector<std::string>;
    Plan plan_;
    platform::headless::HeadlessPlatform platform;
    const Wiring wiring = makeWiring();
    Workbench workbench;
};

} // namespace wb::test
