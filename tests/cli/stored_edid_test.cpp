#include "cli/stored_edid.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"

namespace wb::cli {
namespace {

TEST(StoredEdid, NamesWithoutTheAdapter) {
    EXPECT_EQ(withoutAdapter("card0-DP-1"), "DP-1");
    EXPECT_EQ(withoutAdapter("card12-HDMI-A-1"), "HDMI-A-1");
    for (const char* name : {"DP-1", "card", "card0", "card-DP-1", "cardinal-1", "xcard0-DP-1", ""}) {
        EXPECT_EQ(withoutAdapter(name), name);
    }
}

class Named : public testing::Test {
protected:
    /// The name of the place that is meant, or the message.
    std::string find(const std::string& name) const {
        try {
            return monitorNamed(places, name).name;
        } catch (const CliError& error) {
            return error.what();
        }
    }

    std::vector<Monitor> places = {{.name = "card0-DP-1", .source = ""},
                                   {.name = "card1-dp-1", .source = ""},
                                   {.name = "card1-DP-1", .source = ""},
                                   {.name = "DP-1", .source = ""},
                                   {.name = "card1-VGA-1", .source = ""}};
};

TEST_F(Named, TheStricterWayOfMeaningANameWins) {
    EXPECT_EQ(find("card1-dp-1"), "card1-dp-1");
    EXPECT_EQ(find("card1-DP-1"), "card1-DP-1");
    EXPECT_EQ(find("dp-1"), "DP-1") << "the whole name before those with an adapter";
    EXPECT_EQ(find("vga-1"), "card1-VGA-1");
    EXPECT_EQ(find("CARD0-dp-1"), "card0-DP-1");
}

TEST_F(Named, SeveralAndNoneAreRefused) {
    EXPECT_EQ(find("CARD1-DP-1"), "may be any of card1-dp-1, card1-DP-1");
    EXPECT_EQ(find("VGA-2"),
              "no connector has this name; there are card0-DP-1, card1-dp-1, card1-DP-1, DP-1, card1-VGA-1");
    places.clear();
    EXPECT_EQ(find("DP-1"), "no connector has this name, and no other");
}

TEST(StoredEdid, TellsWhyThereIsNone) {
    const auto why = [](const Monitor& monitor) {
        try {
            return storedImageOf(monitor).content();
        } catch (const CliError& error) {
            return std::string(error.what());
        }
    };
    Monitor monitor{.name = "a", .source = ""};
    EXPECT_EQ(why(monitor), "no EDID is stored");
    monitor.attached = false;
    EXPECT_EQ(why(monitor), "no monitor is attached, and no EDID is stored");
    monitor.error = std::make_error_code(std::errc::permission_denied);
    EXPECT_EQ(why(monitor), "not permitted");
    monitor.error.clear();
    monitor.edid = "12345";
    EXPECT_EQ(why(monitor), "the stored EDID is no image: it has 5 bytes");
    monitor.edid = std::string(128, 'x');
    EXPECT_EQ(why(monitor), monitor.edid);
}

} // namespace
} // namespace wb::cli
