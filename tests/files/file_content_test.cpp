#include "files/file_content.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.h"

namespace wb::files {
namespace {

std::string refusalOf(const std::string& path) {
    try {
        readFile(path);
    } catch (const InputError& error) {
        return error.what();
    }
    return "none";
}

TEST(FileContent, TakesAFileUpToTheLargestInput) {
    const test::TemporaryFolder folder;
    const std::string path = folder.write("a", "");
    std::filesystem::resize_file(path, 33554432);
    EXPECT_EQ(readFile(path).size(), 33554432U);
}

TEST(FileContent, TellsTheSizeOfALargerOne) {
    const test::TemporaryFolder folder;
    const std::string path = folder.write("a", "");
    std::filesystem::resize_file(path, 33554433);
    EXPECT_EQ(refusalOf(path), "has 33554433 bytes, more than 33554432 bytes, which is the most that is read");
    std::filesystem::resize_file(path, 5000000000);
    EXPECT_EQ(refusalOf(path), "has 5000000000 bytes, more than 33554432 bytes, which is the most that is read");
}

TEST(FileContent, GivesUpADeviceWithoutAnEnd) {
    EXPECT_EQ(refusalOf("/dev/zero"), "has more than 33554432 bytes, which is the most that is read");
}

TEST(FileContent, TellsWhatTheSystemRefuses) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(refusalOf(folder.file("missing")), "No such file or directory");
    EXPECT_EQ(refusalOf(folder.file(".")), "Is a directory");
}

} // namespace
} // namespace wb::files
