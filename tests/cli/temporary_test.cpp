#include "cli/temporary.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"
#include "support/temporary_folder.h"

namespace wb::cli {
namespace {

namespace fs = std::filesystem;

TEST(TemporaryFile, GoesUnlessItWasMoved) {
    const test::TemporaryFolder folder;
    fs::path path;
    {
        TemporaryFile file(folder.file("."));
        path = file.path();
        file.write("content");
        EXPECT_EQ(test::TemporaryFolder::read(path.string()), "content");
    }
    EXPECT_FALSE(fs::exists(path));
    TemporaryFile(folder.file(".")).moveTo(folder.file("a"));
    EXPECT_TRUE(fs::exists(folder.file("a")));
}

TEST(TemporaryFile, MovesToANewPlaceOnly) {
    const test::TemporaryFolder folder;
    folder.write("old", "old");
    {
        TemporaryFile file(folder.file("."));
        file.write("content");
        EXPECT_THROW(file.moveToNew(folder.file("old")), CliError);
        EXPECT_THROW(file.moveToNew(folder.file("missing/new")), CliError);
        file.moveToNew(folder.file("new"));
    }
    EXPECT_EQ(test::TemporaryFolder::read(folder.file("old")), "old");
    EXPECT_EQ(test::TemporaryFolder::read(folder.file("new")), "content");
    const fs::directory_iterator entries(folder.file("."));
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);
}

TEST(TemporaryFile, NeedsItsFolder) {
    const test::TemporaryFolder folder;
    EXPECT_THROW(TemporaryFile(folder.file("missing")), CliError);
}

TEST(TemporaryFolder, IsForItsUserAloneAndGoesWithAllItHolds) {
    fs::path path;
    {
        const TemporaryFolder folder("a");
        path = fs::path(folder.file()).parent_path();
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
        TemporaryFile(path).moveTo(folder.file());
        EXPECT_TRUE(fs::exists(folder.file()));
    }
    EXPECT_FALSE(fs::exists(path));
}

} // namespace
} // namespace wb::cli
