#include "cli/usage_sentences.h"

#include <gtest/gtest.h>

namespace wb::cli {
namespace {

TEST(NearestName, AllowsAMistakeForEveryThreeLetters) {
    const std::vector<std::string> names = {"check", "convert", "set", "scrub"};
    EXPECT_EQ(nearestName("chekc", names), "check") << "swapped";
    EXPECT_EQ(nearestName("cehkc", names), "") << "swapped twice";
    EXPECT_EQ(nearestName("chck", names), "check") << "left out";
    EXPECT_EQ(nearestName("covnetr", names), "convert") << "two of seven letters";
    EXPECT_EQ(nearestName("con", names), "convert") << "the end is missing";
    EXPECT_EQ(nearestName("co", names), "") << "too short for that";
    EXPECT_EQ(nearestName("st", names), "set");
    EXPECT_EQ(nearestName("s", names), "");
    EXPECT_EQ(nearestName("", names), "");
    EXPECT_EQ(nearestName(std::string(1000000, 'c'), names), "");
}

TEST(NearestName, DashesCountForNothing) {
    EXPECT_EQ(nearestName("-jobs", {"--jobs", "--null"}), "--jobs");
    EXPECT_EQ(nearestName("--", {"--jobs", "--null"}), "");
}

} // namespace
} // namespace wb::cli
