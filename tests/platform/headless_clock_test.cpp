#include <gtest/gtest.h>

#include <array>

#include "platform/headless/headless_platform.h"

namespace wb::platform::headless {
namespace {

class HeadlessClock : public testing::Test {
protected:
    /// The moment so many seconds after another one.
    std::string after(const DateTime& moment, double seconds) {
        headless.setClock(moment);
        clock.wait(seconds);
        return now();
    }
    std::string now() const {
        const DateTime moment = clock.now();
        return std::to_string(moment.year) + '-' + std::to_string(moment.month) + '-' + std::to_string(moment.day) +
               ' ' + std::to_string(moment.hour) + ':' + std::to_string(moment.minute) + ':' +
               std::to_string(moment.second);
    }

    HeadlessPlatform headless;
    Clock& clock = headless.services().clock;
};

DateTime secondBeforeMidnight(int year, int month, int day) {
    return {.year = year, .month = month, .day = day, .hour = 23, .minute = 59, .second = 59};
}

TEST_F(HeadlessClock, GoesOnWithTheNextDayAtMidnight) {
    EXPECT_EQ(after(secondBeforeMidnight(2024, 5, 6), 0.5), "2024-5-6 23:59:59");
    EXPECT_EQ(clock.secondsSinceMidnight(), 86399.5);
    clock.wait(0.5);
    EXPECT_EQ(now(), "2024-5-7 0:0:0");
    EXPECT_EQ(clock.secondsSinceMidnight(), 0);
    EXPECT_EQ(after(secondBeforeMidnight(2024, 5, 6), 2 + 3600 + 60), "2024-5-7 1:1:1");
}

TEST_F(HeadlessClock, GoesOnWithTheNextMonthAndYear) {
    EXPECT_EQ(after(secondBeforeMidnight(2023, 2, 28), 1), "2023-3-1 0:0:0");
    EXPECT_EQ(after(secondBeforeMidnight(2024, 2, 28), 1), "2024-2-29 0:0:0");
    EXPECT_EQ(after(secondBeforeMidnight(2024, 4, 30), 1), "2024-5-1 0:0:0");
    EXPECT_EQ(after(secondBeforeMidnight(2024, 12, 31), 1), "2025-1-1 0:0:0");
    EXPECT_EQ(after(secondBeforeMidnight(2024, 12, 31), 1 + 2 * 86400), "2025-1-3 0:0:0");
}

TEST_F(HeadlessClock, NamesDaysAndMonths) {
    const std::array days = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (int i = 0; i < 14; ++i) { // the fifth of May 2024 was a Sunday
        EXPECT_EQ(clock.dayName({.year = 2024, .month = 5, .day = 5 + i}), days[static_cast<std::size_t>(i % 7)]);
    }
    const std::array months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(clock.monthName({.year = 2024, .month = 1 + i, .day = 1}), months[static_cast<std::size_t>(i)]);
    }
}

} // namespace
} // namespace wb::platform::headless
