#include <gtest/gtest.h>

#include "support/model_session.h"

namespace wb::test {
namespace {

class Scenarios : public testing::TestWithParam<Scenario> {};

TEST_P(Scenarios, LeaveTheirTrace) {
    ASSERT_TRUE(std::filesystem::exists(GetParam().expected)) << "run scripts/regenerate-expected and review";
    ModelSession session;
    play(GetParam(), session.driver);
    EXPECT_EQ(session.trace, TemporaryFolder::read(GetParam().expected.string()));
}

INSTANTIATE_TEST_SUITE_P(All, Scenarios, testing::ValuesIn(scenarios()), scenarioTestName);

} // namespace
} // namespace wb::test
