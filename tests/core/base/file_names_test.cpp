#include "core/base/file_names.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace wb {
namespace {

TEST(FileNames, ComeBackAsTheyWere) {
    for (const std::string name :
         {"", "a.bin", "Ausgabe \xC3\xBC/A \xE2\x80\x93 B.dat", "\xD0\x96.bin", "/a//b/../c"}) {
        EXPECT_EQ(nameOf(pathOf(name)), name);
    }
}

TEST(FileNames, MayBeAnyBytesWhereTheSystemHasThem) {
    EXPECT_EQ(nameOf(pathOf("Pr\xFC"
                            "fung")),
              "Pr\xFC"
              "fung");
}

TEST(FileNames, OpenTheFile) {
    const test::TemporaryFolder folder;
    const std::filesystem::path path = pathOf(folder.file("\xD0\x96 1"));
    EXPECT_EQ(openStream(path, "rb"), nullptr);
    EXPECT_EQ(errno, ENOENT);
    std::FILE* const file = openStream(path, "wb");
    ASSERT_NE(file, nullptr);
    std::fputs("text", file);
    std::fclose(file);
    EXPECT_EQ(test::TemporaryFolder::read(folder.file("\xD0\x96 1")), "text");
}

TEST(FileNames, TellAReasonInTheWordsOfTheCLibrary) {
    EXPECT_EQ(reasonOf({ENOENT, std::system_category()}), "No such file or directory");
    EXPECT_EQ(reasonOf(std::make_error_code(std::errc::permission_denied)), "Permission denied");
}

} // namespace
} // namespace wb
