#include <gtest/gtest.h>

#include "support/model_session.h"

namespace wb::test {
namespace {

class Scenarios : public testing::TestWithParam<Scenario> {};

TEST_P(Scenarios, LeaveTheirTrace) {
    ModelSession session;
    EXPECT_TRUE(leavesItsTrace(GetParam(), session.driver, session.trace));
}

INSTANTIATE_TEST_SUITE_P(All, Scenarios, testing::ValuesIn(scenarios()), scenarioTestName);

} // namespace
} // namespace wb::test
