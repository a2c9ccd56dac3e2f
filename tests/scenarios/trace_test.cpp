// What a scenario that leaves another trace tells.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/model_session.h"

namespace wb::test {
namespace {

using testing::StartsWith;

class ScenarioTrace : public testing::Test {
protected:
    /// The message of a scenario of this script and this expectation; empty if it passes.
    std::string messageOf(const std::string& script, const std::string& expected) {
        scenario.script = folder.write("it.script", script);
        scenario.expected = folder.write("it.expected", expected);
        ModelSession session;
        return leavesItsTrace(scenario, session.driver, session.trace).message();
    }
    std::string at(int line) const { return scenario.script.string() + ':' + std::to_string(line) + ": "; }

    TemporaryFolder folder;
    // The tests run side by side, and the name is that of a file.
    Scenario scenario{
        .name = testing::UnitTest::GetInstance()->current_test_info()->name(), .script = {}, .expected = {}};
};

TEST_F(ScenarioTrace, AsExpectedTellsNothing) {
    EXPECT_EQ(messageOf("# nothing\nwindows\nfocused\n", "windows = none\nfocus = none\n"), "");
}

TEST_F(ScenarioTrace, AnotherLineIsToldWithItsCommandAndTheWayToAllOfThem) {
    const std::string message =
        messageOf("# one line of the three\nwindows\nvar EDIDLoaded\nfocused\n", "windows = none\nEDIDLoaded = -1\n");
    const std::string start = at(3) + "var EDIDLoaded\n  expected: EDIDLoaded = -1\n    actual: EDIDLoaded = 0\n" +
                              "diff -u --text '" + scenario.expected.string() + "' '";
    ASSERT_THAT(message, StartsWith(start));
    const std::string actual = message.substr(start.size(), message.size() - start.size() - 2);
    EXPECT_EQ(TemporaryFolder::read(actual), "windows = none\nEDIDLoaded = 0\nfocus = none\n");
}

TEST_F(ScenarioTrace, ALineTooManyIsToldWithItsCommand) {
    const std::string message = messageOf("windows\nfocused\n", "windows = none\n");
    EXPECT_THAT(message, StartsWith(at(2) + "focused\n  expected: (the end)\n    actual: focus = none\n"));
}

TEST_F(ScenarioTrace, ALineTooFewIsMissedBehindTheScript) {
    const std::string message = messageOf("windows\n", "windows = none\nfocus = none\n");
    EXPECT_THAT(message, StartsWith(scenario.script.string() +
                                    ": behind the last line\n  expected: focus = none\n    actual: (the end)\n"));
}

TEST_F(ScenarioTrace, AMistakeInTheScriptIsToldWithItsLine) {
    const std::string message = messageOf("windows\nwalk\n", "");
    EXPECT_EQ(message, at(2) + "unknown command 'walk'");
}

TEST_F(ScenarioTrace, WithoutAnExpectationTheWayToOneIsTold) {
    scenario.script = folder.write("it.script", "windows\n");
    scenario.expected = folder.file("no.expected");
    ModelSession session;
    EXPECT_STREQ(leavesItsTrace(scenario, session.driver, session.trace).message(),
                 ("run scripts/regenerate-expected " + scenario.name + " and review").c_str());
}

} // namespace
} // namespace wb::test
