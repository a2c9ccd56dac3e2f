#include <gtest/gtest.h>

#include <clocale>

#include "desktop/widget_front_end.h"
#include "script/driver.h"
#include "support/german_locale.h"
#include "support/scenarios.h"

namespace wb::test {
namespace {

testing::AssertionResult leavesItsTraceOnWidgets(const Scenario& scenario) {
    const ScenarioFolder folder;
    DesktopProgram program(false);
    WidgetFrontEnd user(program);
    std::string trace;
    script::Driver driver(
        {program.workbench, program.platform, user, [&](const std::string& line) { trace += line + '\n'; }});
    return leavesItsTrace(scenario, driver, trace);
}

class ScenariosOnWidgets : public testing::TestWithParam<Scenario> {};

TEST_P(ScenariosOnWidgets, LeaveTheSameTraceAsWithoutAView) {
    EXPECT_TRUE(leavesItsTraceOnWidgets(GetParam()));
}

TEST(ScenariosUnderACommaLocale, LeaveTheSameTrace) {
    const GermanLocale german;
    ASSERT_TRUE(german.available()) << "the package locales is missing";
    // What making the application does on a system with that locale.
    ASSERT_NE(std::setlocale(LC_ALL, GermanLocale::name), nullptr);
    for (const Scenario& scenario : scenarios()) {
        if (scenario.name.starts_with("report-")) {
            EXPECT_TRUE(leavesItsTraceOnWidgets(scenario));
        }
    }
    std::setlocale(LC_ALL, "C");
}

INSTANTIATE_TEST_SUITE_P(All, ScenariosOnWidgets, testing::ValuesIn(scenarios()), scenarioTestName);

} // namespace
} // namespace wb::test
