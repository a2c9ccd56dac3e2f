#include "cli/file_list.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"
#include "support/temporary_folder.h"

namespace wb::cli {
namespace {

TEST(FileList, LooksAheadWithoutLosingAFile) {
    for (const std::size_t count : {1, 2, 3}) {
        const FileOptions options{.names = std::vector<std::string>(count, "dir/x"), .listFile = ""};
        FileList files(options);
        EXPECT_EQ(files.several(), count > 1);
        for (std::size_t i = 0; i < count; ++i) {
            const auto file = files.next();
            ASSERT_TRUE(file);
            EXPECT_EQ(file->name, "dir/x");
            EXPECT_EQ(file->below, "x");
        }
        EXPECT_FALSE(files.next());
        EXPECT_TRUE(files.complete());
    }
}

TEST(FileList, TakesTheListAfterTheNamesAndStandardInputOnce) {
    const test::TemporaryFolder folder;
    const FileOptions options{.names = {"a"}, .listFile = folder.write("list", "\r\nb\r\n-\n\n-")};
    FileList files(options);
    EXPECT_EQ(files.next()->name, "a");
    EXPECT_EQ(files.next()->name, "b");
    EXPECT_EQ(files.next()->name, "-");
    EXPECT_THROW(files.next(), UsageError);
    EXPECT_THROW(FileList(FileOptions{}), UsageError);
    EXPECT_THROW(FileList(FileOptions{.names = {"-"}, .listFile = "-"}), UsageError);
}

TEST(FileList, GivesTheFilesBelowAFolderWithTheirPathsBelowIt) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directories(folder.file("in/a"));
    folder.write("in/a/x", "");
    const FileOptions options{.names = {folder.file("in"), "in"}, .listFile = "", .recursive = true};
    FileList files(options);
    const auto file = files.next();
    ASSERT_TRUE(file);
    EXPECT_EQ(file->name, folder.file("in/a/x"));
    EXPECT_EQ(file->below, "a/x");
    EXPECT_EQ(files.next()->name, "in") << "no folder here";
}

} // namespace
} // namespace wb::cli
