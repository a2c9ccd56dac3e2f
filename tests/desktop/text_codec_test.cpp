#include "desktop/base/text_codec.h"

#include <gtest/gtest.h>

#include <set>

#include "desktop/base/report_text.h"
#include "desktop/base/titles.h"

namespace wb::desktop {
namespace {

std::string allCodes() {
    std::string text;
    for (int code = 0; code < 256; ++code) {
        text += static_cast<char>(code);
    }
    return text;
}

TEST(TextCodec, IsOneToOneOverAllCodes) {
    const QString shown = toUnicode(allCodes());
    ASSERT_EQ(shown.size(), 256);
    EXPECT_EQ(std::set<QChar>(shown.begin(), shown.end()).size(), 256U);
    EXPECT_EQ(fromUnicode(shown), allCodes());
}

TEST(TextCodec, FollowsTheCodePage) {
    struct Row {
        int code;
        char16_t unicode;
    };
    // 81, 8D, 8F, 90 and 9D are the holes of the page.
    for (const Row& row :
         {Row{0x00, 0x0000}, Row{0x41, u'A'}, Row{0x7F, 0x007F}, Row{0x80, 0x20AC}, Row{0x81, 0x0081},
          Row{0x8D, 0x008D}, Row{0x8F, 0x008F}, Row{0x90, 0x0090}, Row{0x93, 0x201C}, Row{0x99, 0x2122},
          Row{0x9D, 0x009D}, Row{0x9F, 0x0178}, Row{0xA0, 0x00A0}, Row{0xAE, 0x00AE}, Row{0xFF, 0x00FF}}) {
        const char character = static_cast<char>(row.code);
        EXPECT_EQ(toUnicode(std::string_view(&character, 1)), QString(QChar(row.unicode))) << row.code;
        EXPECT_EQ(toCharacter(QChar(row.unicode)), character) << row.code;
    }
}

TEST(TextCodec, TellsCharactersThatThePageDoesNotHave) {
    EXPECT_EQ(toCharacter(QChar(0x0142)), std::nullopt);
    // Codes 80 to 9F stand for other characters, so that these have no code.
    EXPECT_EQ(toCharacter(QChar(0x0080)), std::nullopt);
    EXPECT_EQ(fromUnicode(QString::fromUtf8("a\xC5\x82z")), "a?z");
}

TEST(TextCodec, ReadsUtf8ToTheEndOfTheView) {
    EXPECT_EQ(fromUtf8(std::string_view("a\xC3\xA9z!").substr(0, 4)), QString::fromUtf16(u"a\u00E9z"));
    EXPECT_EQ(fromUtf8({}), QString());
}

TEST(TextCodec, ShowsFileNamesInTitlesAsTheyAre) {
    EXPECT_EQ(titleText("caf\xC3\xA9.DAT"), QString::fromUtf8("caf\xC3\xA9.DAT"));
    EXPECT_EQ(titleText("caf\xE9"), QString::fromUtf8("caf\xC3\xA9"));
    EXPECT_EQ(titleText("cut\xC3"), QString::fromUtf8("cut\xC3\x83"));
    EXPECT_EQ(fileNameBytes(fromFileNameBytes("caf\xC3\xA9.DAT")), "caf\xC3\xA9.DAT");
}

TEST(Titles, TakeAStarInBracketsForText) {
    QWidget window;
    setTitle(window, "a[*]b");
    window.setWindowModified(true);
    EXPECT_EQ(window.windowTitle(), "a[*][*]b"); // Qt's way to write one that is no mark
}

TEST(ReportLines, KeepTheirPlaces) {
    const std::string text = std::string("a\r\nb\rc\n") + '\0' + "d";
    EXPECT_EQ(reportLines(text), QString::fromUtf16(u"a\nb\u240Dc\u240A\u2400d"));
    EXPECT_EQ(placeInText(text, 0), 0);
    EXPECT_EQ(placeInText(text, 2), 3); // behind the line end, which is one character on the screen
    EXPECT_EQ(placeInText(text, 8), 9);
    EXPECT_EQ(placeInText(text, 99), 9);
}

} // namespace
} // namespace wb::desktop
