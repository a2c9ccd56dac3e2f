#include "cli/temporary.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <string>

#include "cli/cli_error.h"
#include "support/temporary_folder.h"

namespace wb::cli {
namespace {

namespace fs = std::filesystem;

unsigned permissionsOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

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

TEST(TemporaryFile, IsForItsUserAloneUnlessItIsForAll) {
    const test::TemporaryFolder folder;
    const mode_t mask = umask(S_IWGRP | S_IWOTH);
    const TemporaryFile own(folder.file("."));
    const TemporaryFile usual(folder.file("."), Readers::Usual);
    umask(mask);
    EXPECT_EQ(permissionsOf(own.path().string()), 0600U);
    EXPECT_EQ(permissionsOf(usual.path().string()), 0644U);
}

TEST(TemporaryFile, TakesPermissionsWithoutThoseOfAProgramThatRunsAsItsOwner) {
    const test::TemporaryFolder folder;
    const std::string other = folder.write("other", "");
    ASSERT_EQ(chmod(other.c_str(), 07751), 0);
    TemporaryFile file(folder.file("."));
    file.takeAccessOf(other);
    EXPECT_EQ(permissionsOf(file.path().string()), 0751U);
    file.takeAccessOf(folder.file("missing"));
    EXPECT_EQ(permissionsOf(file.path().string()), 0751U);
}

/// What a user other than root may do is tried in a child.
class TemporaryFileOfRoot : public testing::Test {
protected:
    static constexpr uid_t user = 12345;
    static constexpr gid_t group = 23456;

    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can give files away";
        }
        ASSERT_EQ(chmod(folder.file(".").c_str(), 0777), 0);
    }

    /// Writes a file that takes the access of "other", as a user who is in one group besides that of their own.
    int writeAs(uid_t writer, gid_t otherGroup) const {
        const pid_t child = fork();
        if (child == 0) {
            const bool changed = setgroups(1, &otherGroup) == 0 && setgid(writer) == 0 && setuid(writer) == 0;
            TemporaryFile file(folder.file("."));
            file.takeAccessOf(folder.file("other"));
            file.moveTo(folder.file("new"));
            _exit(changed ? 0 : 1);
        }
        int status = -1;
        waitpid(child, &status, 0);
        return status;
    }

    struct stat statusOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(folder.file(name).c_str(), &status), 0);
        return status;
    }

    test::TemporaryFolder folder;
};

TEST_F(TemporaryFileOfRoot, KeepsOwnerAndGroup) {
    const std::string other = folder.write("other", "");
    ASSERT_EQ(chown(other.c_str(), user, group), 0);
    ASSERT_EQ(chmod(other.c_str(), 06640), 0);
    ASSERT_EQ(writeAs(0, 0), 0);
    EXPECT_EQ(statusOf("new").st_uid, user);
    EXPECT_EQ(statusOf("new").st_gid, group);
    EXPECT_EQ(permissionsOf(folder.file("new")), 0640U);
}

TEST_F(TemporaryFileOfRoot, KeepsTheGroupAloneWhereTheOwnerCannotBe) {
    const std::string other = folder.write("other", "");
    ASSERT_EQ(chown(other.c_str(), user, group), 0);
    ASSERT_EQ(chmod(other.c_str(), 06664), 0);
    ASSERT_EQ(writeAs(user + 1, group), 0);
    EXPECT_EQ(statusOf("new").st_uid, user + 1);
    EXPECT_EQ(statusOf("new").st_gid, group);
    EXPECT_EQ(permissionsOf(folder.file("new")), 0664U);
}

/// A group that could not read the old file is not to read the new one.
TEST_F(TemporaryFileOfRoot, GivesAnotherGroupNoMoreThanAll) {
    const std::string other = folder.write("other", "");
    ASSERT_EQ(chown(other.c_str(), user, group), 0);
    ASSERT_EQ(chmod(other.c_str(), 0664), 0);
    ASSERT_EQ(writeAs(user + 1, user + 1), 0);
    EXPECT_EQ(statusOf("new").st_gid, user + 1);
    EXPECT_EQ(permissionsOf(folder.file("new")), 0644U);
}

/// An access list as the kernel keeps it: the version 2, then entries of tag, permissions and user or group.
std::string accessListOf(std::uint16_t user, std::uint16_t group, std::uint16_t mask) {
    struct Entry {
        std::uint16_t tag;
        std::uint16_t permissions;
        std::uint32_t who;
    };
    constexpr std::uint32_t nobody = ~std::uint32_t{0};
    const std::array<Entry, 5> entries = {
        {{1, 6, nobody}, {2, user, 12345}, {4, group, nobody}, {16, mask, nobody}, {32, 0, nobody}}};
    return std::string("\2\0\0\0", 4) + std::string(reinterpret_cast<const char*>(entries.data()), sizeof entries);
}

class AccessList : public testing::Test {
protected:
    static constexpr const char* ofFile = "system.posix_acl_access";
    static constexpr const char* ofNewFiles = "system.posix_acl_default";

    static std::string listOf(const std::string& path) {
        std::string list(1024, '\0');
        const ssize_t size = getxattr(path.c_str(), ofFile, list.data(), list.size());
        list.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        return list;
    }
    static bool set(const std::string& path, const char* name, const std::string& list) {
        return setxattr(path.c_str(), name, list.data(), list.size(), 0) == 0;
    }

    const test::TemporaryFolder folder;
    const std::string other = folder.write("other", "");
};

TEST_F(AccessList, IsTaken) {
    const std::string list = accessListOf(6, 0, 6);
    if (!set(other, ofFile, list)) {
        GTEST_SKIP() << "there are no access lists here";
    }
    TemporaryFile file(folder.file("."));
    file.takeAccessOf(other);
    EXPECT_EQ(listOf(file.path().string()), list);
    EXPECT_EQ(permissionsOf(file.path().string()), 0660U) << "the mask; the group itself may nothing";
}

/// A folder can give new files a list, which an old one need not have.
TEST_F(AccessList, GoesWhereTheOtherHasNone) {
    ASSERT_EQ(chmod(other.c_str(), 0640), 0);
    const bool isSet = set(folder.file("."), ofNewFiles, accessListOf(6, 0, 6));
    TemporaryFile file(folder.file("."));
    if (!isSet || listOf(file.path().string()).empty()) {
        GTEST_SKIP() << "there are no access lists here";
    }
    file.takeAccessOf(other);
    EXPECT_EQ(listOf(file.path().string()), "");
    EXPECT_EQ(permissionsOf(file.path().string()), 0640U);
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
