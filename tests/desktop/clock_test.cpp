#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "desktop/services/clock.h"
#include "platform/headless/headless_platform.h"

/// What holds for every clock.
namespace wb::platform {
namespace {

constexpr double secondsPerDay = 24 * 60 * 60;

struct Implementation {
    const char* name;
    std::shared_ptr<Clock> (*make)();
};

std::shared_ptr<Clock> headlessClock() {
    const auto owner = std::make_shared<headless::HeadlessPlatform>();
    return {owner, &owner->services().clock};
}

std::shared_ptr<Clock> systemClock() {
    return std::make_shared<desktop::SystemClock>();
}

double secondsOf(const DateTime& time) {
    return time.hour * 3600.0 + time.minute * 60.0 + time.second;
}

class EveryClock : public testing::TestWithParam<Implementation> {
protected:
    std::shared_ptr<Clock> clock = GetParam().make();
};

TEST_P(EveryClock, ShowsADateAndATime) {
    const DateTime now = clock->now();
    EXPECT_GE(now.year, 2000);
    EXPECT_TRUE(now.month >= 1 && now.month <= 12);
    EXPECT_TRUE(now.day >= 1 && now.day <= 31);
    EXPECT_TRUE(now.hour >= 0 && now.hour <= 23);
    EXPECT_TRUE(now.minute >= 0 && now.minute <= 59);
    EXPECT_TRUE(now.second >= 0 && now.second <= 60);
}

TEST_P(EveryClock, CountsTheSecondsSinceMidnight) {
    const double before = secondsOf(clock->now());
    const double seconds = clock->secondsSinceMidnight();
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, secondsPerDay + 1);
    const double passed = std::fmod(seconds - before + secondsPerDay, secondsPerDay);
    EXPECT_LT(passed, 5) << "the two readings belong together";
}

TEST_P(EveryClock, HasMovedAfterAWait) {
    const double before = clock->secondsSinceMidnight();
    clock->wait(0.25);
    const double passed = std::fmod(clock->secondsSinceMidnight() - before + secondsPerDay, secondsPerDay);
    EXPECT_GE(passed, 0.24);
    EXPECT_LT(passed, 30);
}

TEST_P(EveryClock, AWaitOfNothingEndsAtOnce) {
    const double before = clock->secondsSinceMidnight();
    clock->wait(0);
    EXPECT_LT(std::fmod(clock->secondsSinceMidnight() - before + secondsPerDay, secondsPerDay), 30);
}

// The names of the system's clock are in its language, which another test looks at.
TEST(HeadlessClock, NamesDaysAndMonthsInEnglish) {
    const std::shared_ptr<Clock> clock = headlessClock();
    // 2000-01-01 was a Saturday, and the leap day of that year a Tuesday.
    EXPECT_EQ(clock->dayName({.year = 2000, .month = 1, .day = 1}), "Sat");
    EXPECT_EQ(clock->dayName({.year = 2000, .month = 2, .day = 29}), "Tue");
    EXPECT_EQ(clock->monthName({.year = 2000, .month = 1, .day = 1}), "Jan");
    EXPECT_EQ(clock->monthName({.year = 2000, .month = 12, .day = 1}), "Dec");
}

INSTANTIATE_TEST_SUITE_P(Implementations, EveryClock,
                         testing::Values(Implementation{"headless", &headlessClock},
                                         Implementation{"system", &systemClock}),
                         [](const auto& implementation) { return implementation.param.name; });

} // namespace
} // namespace wb::platform
