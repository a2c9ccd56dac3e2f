#include "cli/output.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"
#include "support/temporary_folder.h"

namespace wb::cli {
namespace {

using test::TemporaryFolder;

TEST(Output, BringsTextsIntoOneLine) {
    EXPECT_EQ(inOneLine("Unable. \r\n\r\nUsing it"), "Unable. Using it");
    EXPECT_EQ(inOneLine("a\r\nb\nc\r\n"), "a b c");
    EXPECT_EQ(inOneLine("\r\na"), "a");
    EXPECT_EQ(inOneLine("a\x1B[1m\x7F\t\xE4"), "a\\x1B[1m\\x7F\\x09\xE4");
}

/// U+0080 to U+009F are control characters too, such as U+009B, which does what ESC [ does; "ä" is none.
TEST(Output, EscapesTheControlCharactersOfUtf8) {
    EXPECT_EQ(withoutControls("a\xC2\x9B"
                              "31m\xC3\xA4"),
              "a\\xC2\\x9B"
              "31m\xC3\xA4");
    EXPECT_EQ(withoutControls("\xC2\x80\xC2\x9F\xC2\xA0"), "\\xC2\\x80\\xC2\\x9F\xC2\xA0");
    EXPECT_EQ(withoutControls("\xC2"), "\xC2");
    EXPECT_EQ(withoutControls("\xC3\x80"), "\xC3\x80");
    EXPECT_EQ(withoutControls("a\tb\n\x1B", "\t\n"), "a\tb\n\\x1B");
    EXPECT_EQ(inOneLine("\xC2\x85"), "\\xC2\\x85");
}

TEST(Output, WritesANewFile) {
    const TemporaryFolder folder;
    writeFile(folder.file("a"), "content", Existing::Refuse);
    EXPECT_EQ(TemporaryFolder::read(folder.file("a")), "content");
}

TEST(Output, RefusesAnExistingFileUnlessItIsToBeReplaced) {
    const TemporaryFolder folder;
    folder.write("a", "old");
    EXPECT_THROW(writeFile(folder.file("a"), "new", Existing::Refuse), CliError);
    EXPECT_EQ(TemporaryFolder::read(folder.file("a")), "old");
    writeFile(folder.file("a"), "new", Existing::Replace);
    EXPECT_EQ(TemporaryFolder::read(folder.file("a")), "new");
}

TEST(Output, BeginsNoNewFileWhereOneIsToBeReplaced) {
    const TemporaryFolder folder;
    EXPECT_THROW(writeFile(folder.file("a"), "new", Existing::Require), CliError);
    EXPECT_TRUE(std::filesystem::is_empty(folder.file(".")));
    folder.write("a", "old");
    writeFile(folder.file("a"), "new", Existing::Require);
    EXPECT_EQ(TemporaryFolder::read(folder.file("a")), "new");
}

TEST(Output, KeepsLinksAndPermissionsOfAReplacedFile) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    folder.write("a", "old");
    fs::permissions(folder.file("a"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read);
    fs::create_symlink("a", folder.file("link"));
    writeFile(folder.file("link"), "new", Existing::Replace);
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(TemporaryFolder::read(folder.file("a")), "new");
    EXPECT_EQ(fs::status(folder.file("a")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read);
}

TEST(Output, LeavesNothingBehind) {
    const TemporaryFolder folder;
    EXPECT_THROW(writeFile(folder.file("missing/a"), "new", Existing::Replace), CliError);
    EXPECT_THROW(writeFile(folder.file("."), "new", Existing::Replace), CliError);
    EXPECT_TRUE(std::filesystem::is_empty(folder.file(".")));
    writeFile(folder.file("a"), "new", Existing::Replace);
    const std::filesystem::directory_iterator entries(folder.file("."));
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

} // namespace
} // namespace wb::cli
