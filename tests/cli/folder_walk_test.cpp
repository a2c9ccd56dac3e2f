#include "cli/folder_walk.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace wb::cli {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> walk(const test::TemporaryFolder& folder, std::size_t part) {
    FolderWalk files(folder.file("."), part);
    std::vector<std::string> names;
    while (const auto file = files.next()) {
        names.push_back(file->generic_string());
    }
    EXPECT_TRUE(files.complete());
    return names;
}

TEST(FolderWalk, GivesTheFilesInTheOrderOfTheirPathsHoweverFewNamesAreKept) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder.file("b/deep"));
    fs::create_directories(folder.file("a.d"));
    fs::create_directories(folder.file("empty"));
    for (const char* name : {"b/deep/2", "b/z", "b/1", "a", "a.d/x", "c", "0", "b.txt"}) {
        folder.write(name, "");
    }
    fs::create_symlink("c", folder.file("link"));
    fs::create_directory_symlink("..", folder.file("b/up")); // a walk into it would have no end
    // A folder stands where its name does: "b" before "b.txt", "a" before "a.d".
    const std::vector<std::string> expected = {"0", "a", "a.d/x", "b/1", "b/deep/2", "b/z", "b.txt", "c", "link"};
    for (const std::size_t part : {1, 2, 3, 4, 1000}) {
        EXPECT_EQ(walk(folder, part), expected) << part;
    }
}

TEST(FolderWalk, TellsAFolderThatCannotBeRead) {
    const test::TemporaryFolder folder;
    FolderWalk files(folder.file("missing"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(files.next(), std::nullopt);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("missing: No such file or directory\n"), std::string::npos);
    EXPECT_FALSE(files.complete());
}

} // namespace
} // namespace wb::cli
