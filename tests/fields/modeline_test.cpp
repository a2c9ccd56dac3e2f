#include "fields/modeline.h"

#include <gtest/gtest.h>

namespace wb::fields {
namespace {

/// 1920x1080 at 60 Hz with reduced blanking.
Modeline reduced() {
    return {.name = "1920x1080R",
            .clockKilohertz = 138500,
            .horizontal = {.active = 1920, .syncStart = 1968, .syncEnd = 2000, .total = 2080, .positiveSync = true},
            .vertical = {.active = 1080, .syncStart = 1083, .syncEnd = 1088, .total = 1111}};
}

TEST(ModelineText, IsThatOfTheTools) {
    EXPECT_EQ(modelineText(reduced()),
              R"(Modeline "1920x1080R"  138.50  1920 1968 2000 2080  1080 1083 1088 1111 +hsync -vsync)");
}

TEST(ModelineText, TellsInterlaceAndEachPolarity) {
    Modeline modeline = reduced();
    modeline.interlaced = true;
    modeline.horizontal.positiveSync = false;
    modeline.vertical.positiveSync = true;
    EXPECT_EQ(modelineText(modeline),
              R"(Modeline "1920x1080R"  138.50  1920 1968 2000 2080  1080 1083 1088 1111 interlace -hsync +vsync)");
}

TEST(ModelineText, TellsTheClockToTheKilohertz) {
    Modeline modeline = reduced();
    modeline.clockKilohertz = 25175;
    EXPECT_NE(modelineText(modeline).find("\"  25.175  "), std::string::npos);
    modeline.clockKilohertz = 1040;
    EXPECT_NE(modelineText(modeline).find("\"  1.04  "), std::string::npos);
}

} // namespace
} // namespace wb::fields
