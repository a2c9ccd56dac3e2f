#include <gtest/gtest.h>

#include "script/script_error.h"
#include "support/model_session.h"

namespace wb::test {
namespace {

std::string traceOf(const Scenario& scenario) {
    ModelSession session;
    std::ifstream script(scenario.script, std::ios::binary);
    try {
        session.driver.run(script);
    } catch (const script::ScriptError& error) {
        ADD_FAILURE() << scenario.script.string() << ':' << error.line() << ": " << error.what();
    }
    return session.trace;
}

class Scenarios : public testing::TestWithParam<Scenario> {};

TEST_P(Scenarios, LeaveTheirTrace) {
    ASSERT_TRUE(std::filesystem::exists(GetParam().expected)) << "run scripts/regenerate-expected and review";
    EXPECT_EQ(traceOf(GetParam()), TemporaryFolder::read(GetParam().expected.string()));
}

std::string testName(const testing::TestParamInfo<Scenario>& info) {
    std::string name = info.param.name;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, Scenarios, testing::ValuesIn(scenarios()), testName);

} // namespace
} // namespace wb::test
