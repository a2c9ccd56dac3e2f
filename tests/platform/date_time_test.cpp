#include "platform/date_time.h"

#include <gtest/gtest.h>

namespace wb::platform {
namespace {

TEST(DateTime, ReadsTheOneForm) {
    const auto moment = parseDateTime("2004-02-29 23:59:58");
    ASSERT_TRUE(moment);
    EXPECT_EQ(moment->year, 2004);
    EXPECT_EQ(moment->month, 2);
    EXPECT_EQ(moment->day, 29);
    EXPECT_EQ(moment->hour, 23);
    EXPECT_EQ(moment->minute, 59);
    EXPECT_EQ(moment->second, 58);
}

TEST(DateTime, RefusesWhatIsNoDateAndTime) {
    for (const char* text : {"", "2004-02-29", "2003-02-29 00:00:00", "2004-00-01 00:00:00", "2004-13-01 00:00:00",
                             "2004-04-31 00:00:00", "2004-04-00 00:00:00", "2004-04-01 24:00:00", "2004-04-01 00:60:00",
                             "2004-04-01 00:00:60", "2004-04-01T00:00:00", "2004-04-01 00:00:00 ",
                             "2004-4-01 00:00:000", "+004-04-01 00:00:00", "2004-04-01 -1:00:00"}) {
        EXPECT_FALSE(parseDateTime(text)) << text;
    }
}

} // namespace
} // namespace wb::platform
