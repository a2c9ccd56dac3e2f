#include <gtest/gtest.h>

#include "desktop/widget_front_end.h"
#include "support/model_session.h"
#include "support/random_user.h"

namespace wb::test {
namespace {

struct Step {
    std::string line;
    std::string trace;
};

/// What a random user did without a view, with looks at the state in between, and what each line left in the trace.
std::vector<Step> play(unsigned seed, int actions) {
    constexpr int actionsBetweenLooks = 10;
    ModelSession session;
    RandomUser user(session.workbench, seed);
    std::vector<Step> steps;
    const auto run = [&](const std::string& line) { steps.push_back({line, session.run(line)}); };
    for (const std::string& line : RandomUser::preparations()) {
        run(line);
    }
    for (int i = 1; i <= actions; ++i) {
        for (const std::string& line : user.next()) {
            run(line);
        }
        run("focused");
        if (i % actionsBetweenLooks == 0) {
            run("windows");
            for (const Screen* screen : session.workbench.loadedInOrder()) {
                if (screen->id() == ScreenId::Edid || screen->id() == ScreenId::CeaExt) {
                    run("cells " + std::string(screen->name()));
                }
            }
        }
    }
    return steps;
}

class RandomScriptOnWidgets : public testing::TestWithParam<unsigned> {};

TEST_P(RandomScriptOnWidgets, LeavesTheSameTraceAsWithoutAView) {
    constexpr int actions = 200;
    const std::vector<Step> steps = play(GetParam(), actions);
    const ScenarioFolder folder;
    DesktopProgram program(false);
    WidgetFrontEnd front(program);
    const RandomUser sameImages(program.workbench, GetParam());
    std::string trace;
    script::Driver driver(
        {program.workbench, program.platform, front, [&](const std::string& line) { trace += line + '\n'; }});
    std::string story;
    for (const Step& step : steps) {
        story += step.line + '\n';
        trace.clear();
        driver.runLine(step.line);
        ASSERT_EQ(trace, step.trace) << story;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomScriptOnWidgets, testing::Range(1U, 13U));

} // namespace
} // namespace wb::test
