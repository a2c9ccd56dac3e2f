#include <gtest/gtest.h>

#include <clocale>

#include "desktop/widget_front_end.h"
#include "script/driver.h"
#include "support/german_locale.h"
#include "support/scenarios.h"

namespace wb::test {
namespace {

std::string traceOf(const Scenario& scenario) {
    const ScenarioFolder folder;
    DesktopProgram program(false);
    WidgetFrontEnd user(program);
    std::string trace;
    script::Driver driver(
        {program.workbench, program.platform, user, [&](const std::string& line) { trace += line + '\n'; }});
    play(scenario, driver);
    return trace;
}

class ScenariosOnWidgets : public testing::TestWithParam<Scenario> {};

TEST_P(ScenariosOnWidgets, LeaveTheSameTraceAsWithoutAView) {
    EXPECT_EQ(traceOf(GetParam()), TemporaryFolder::read(GetParam().expected.string()));
}

TEST(ScenariosUnderACommaLocale, LeaveTheSameTrace) {
    const GermanLocale german;
    ASSERT_TRUE(german.available()) << "the package locales is missing";
    // What making the application does on a system with that locale.
    ASSERT_NE(std::setlocale(LC_ALL, GermanLocale::name), nullptr);
    for (const Scenario& scenario : scenarios()) {
        if (scenario.name.starts_with("report-")) {
            EXPECT_EQ(traceOf(scenario), TemporaryFolder::read(scenario.expected.string())) << scenario.name;
        }
    }
    std::setlocale(LC_ALL, "C");
}

INSTANTIATE_TEST_SUITE_P(All, ScenariosOnWidgets, testing::ValuesIn(scenarios()), scenarioTestName);

} // namespace
} // namespace wb::test
