#include "fields/modeline.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

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

/// The high definition timing of 1080 lines with two fields.
Modeline interlaced() {
    return {.name = "1920x1080i",
            .clockKilohertz = 74250,
            .horizontal = {.active = 1920, .syncStart = 2008, .syncEnd = 2052, .total = 2200, .positiveSync = true},
            .vertical = {.active = 1080, .syncStart = 1084, .syncEnd = 1094, .total = 1125, .positiveSync = true},
            .interlaced = true};
}

TEST(ModelineReading, ReadsWhatItWrites) {
    EXPECT_EQ(readModeline(modelineText(reduced())), reduced());
    EXPECT_EQ(readModeline(modelineText(interlaced())), interlaced());
}

TEST(ModelineReading, ReadsTheOutputOfCvt) {
    const Modeline modeline = readModeline(
        "# 1920x1080 59.93 Hz (CVT 2.07M9-R) hsync: 66.59 kHz; pclk: 138.50 MHz\n"
        "Modeline \"1920x1080R\"  138.50  1920 1968 2000 2080  1080 1083 1088 1111 +hsync -vsync\n");
    EXPECT_EQ(modeline, reduced());
}

TEST(ModelineReading, WordAndNameMayBeLeftOut) {
    Modeline nameless = reduced();
    nameless.name = "";
    EXPECT_EQ(readModeline("modeline 138.50 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync"), nameless);
    EXPECT_EQ(readModeline("138.5\t1920 1968 2000 2080 1080 1083 1088 1111 -VSync +HSync\r\n"), nameless);
    EXPECT_EQ(readModeline("1920x1080R 138.5 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync"), reduced());
    Modeline named = reduced();
    named.name = "full # 1";
    EXPECT_EQ(readModeline(R"("full # 1" 138.5 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync)"), named);
}

TEST(ModelineReading, ReadsAModeOfXrandr) {
    Modeline modeline = reduced();
    modeline.name = "1920x1080";
    EXPECT_EQ(readModeline("  1920x1080 (0x1c5) 138.500MHz +HSync -VSync *current +preferred\n"
                           "        h: width  1920 start 1968 end 2000 total 2080 skew    0 clock  66.59KHz\n"
                           "        v: height 1080 start 1083 end 1088 total 1111           clock  59.93Hz\n"),
              modeline);
    EXPECT_EQ(readModeline("  1920x1080i (0x1d0) 74.250MHz +HSync +VSync Interlace\n"
                           "        h: width  1920 start 2008 end 2052 total 2200 skew    0 clock  33.75KHz\n"
                           "        v: height 1080 start 1084 end 1094 total 1125           clock  60.00Hz\n"),
              interlaced());
}

TEST(ModelineReading, RoundsTheClockToTheKilohertz) {
    EXPECT_EQ(readModeline("74.1758 1920 2008 2052 2200 1080 1084 1089 1125 +hsync +vsync").clockKilohertz, 74176);
}

TEST(ModelineReading, TakesPicturesWithoutPorches) {
    const Modeline modeline = readModeline("1 1 1 2 2 65534 65534 65535 65535 +hsync +vsync");
    EXPECT_EQ(modeline.horizontal.total, 2);
    EXPECT_EQ(modeline.vertical.syncEnd, 65535);
}

struct Refusal {
    std::string text;
    std::string reason;
};

TEST(ModelineReading, RefusesWhatItCannotRead) {
    const std::string numbers = "138.50 1920 1968 2000 2080 1080 1083 1088 1111 ";
    const std::string start = "a 138.5MHz +hsync +vsync\n";
    const std::string h = "h: width 1920 start 1968 end 2000 total 2080\n";
    const std::string v = "v: height 1080 start 1083 end 1088 total 1111\n";
    const std::array<Refusal, 24> refusals = {{
        {"", "there is no modeline"},
        {" \n# 1920x1080\n", "there is no modeline"},
        {"Modeline", "a modeline has a pixel clock, four horizontal and four vertical numbers"},
        {"1920x1080", "a modeline has a pixel clock, four horizontal and four vertical numbers"},
        {"138.50 1920 1968 2000 2080 1080 1083 1088",
         "a modeline has a pixel clock, four horizontal and four vertical numbers"},
        {"\"name " + numbers, "the name has no closing quotation mark"},
        {"\"a\" fast 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "the pixel clock 'fast' is no number of MHz from 0.001 to 100000"},
        {"\"a\" -1 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "the pixel clock '-1' is no number of MHz from 0.001 to 100000"},
        {"0.0004 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "the pixel clock '0.0004' is no number of MHz from 0.001 to 100000"},
        {"138500000 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "the pixel clock '138500000' is no number of MHz from 0.001 to 100000"},
        {"\"a\" inf 1920 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "the pixel clock 'inf' is no number of MHz from 0.001 to 100000"},
        {"138.50 1920 1968.5 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "'1968.5' is no whole number from 1 to 65535"},
        {"138.50 0 1968 2000 2080 1080 1083 1088 1111 +hsync -vsync", "'0' is no whole number from 1 to 65535"},
        {"138.50 1920 1968 2000 65536 1080 1083 1088 1111 +hsync -vsync", "'65536' is no whole number from 1 to 65535"},
        {"138.50 1920 1919 2000 2080 1080 1083 1088 1111 +hsync -vsync",
         "the horizontal numbers do not rise from the picture over start and end of sync to the total"},
        {"138.50 1920 1968 1968 2080 1080 1083 1088 1111 +hsync -vsync",
         "the horizontal numbers do not rise from the picture over start and end of sync to the total"},
        {"138.50 1920 1968 2000 2080 1080 1083 1112 1111 +hsync -vsync",
         "the vertical numbers do not rise from the picture over start and end of sync to the total"},
        {numbers + "+hsync -vsync doublescan",
         "'doublescan' is none of the flags +hsync, -hsync, +vsync, -vsync and interlace"},
        {numbers + "+hsync", "the polarity of vsync is not told; add +vsync or -vsync"},
        {numbers + "-hsync +vsync +hsync", "the polarity of hsync is told twice"},
        {numbers + "+hsync -vsync\n" + numbers + "+hsync -vsync",
         "there is more than one line, and they are no mode of xrandr --verbose"},
        {"a +hsync +vsync\n" + h + v, "the first line tells no pixel clock in MHz"},
        {start + "h: width 1920 start 1968 end 2000\n" + v, "the line 'h:' has no number behind 'TOTAL'"},
        {start + h + "v: height 1080 start many end 1088 total 1111", "'many' is no whole number from 1 to 65535"},
    }};
    for (const Refusal& refusal : refusals) {
        try {
            const Modeline modeline = readModeline(refusal.text);
            ADD_FAILURE() << "'" << refusal.text << "' was read as " << modelineText(modeline);
        } catch (const ModelineError& error) {
            EXPECT_EQ(error.what(), refusal.reason) << refusal.text;
        }
    }
}

} // namespace
} // namespace wb::fields
