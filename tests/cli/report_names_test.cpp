#include "cli/report_names.h"

#include <gtest/gtest.h>

namespace wb::cli {
namespace {

std::vector<std::string> namesOf(const std::vector<std::string>& files) {
    const ReportNames names(files, ".txt");
    std::vector<std::string> results;
    for (const std::string& file : files) {
        results.push_back(names.nameOf(file, ""));
    }
    return results;
}

using Names = std::vector<std::string>;

TEST(ReportNames, KeepAnExtensionOnlyWhereItTellsFilesApart) {
    EXPECT_EQ(namesOf({"a.bin", "b.bin", "b.hex", "c"}), (Names{"a.txt", "b.bin.txt", "b.hex.txt", "c.txt"}));
}

TEST(ReportNames, TakeAsManyFoldersForEachNameAsItsFilesNeed) {
    EXPECT_EQ(namesOf({"/m/1/x/edid", "/m/2/x/edid", "/m/1/y", "/n/1/y", "/z"}),
              (Names{"1_x_edid.txt", "2_x_edid.txt", "m_1_y.txt", "n_1_y.txt", "z.txt"}));
    // One folder is "b" for both; the first has no second one.
    EXPECT_EQ(namesOf({"/b/f", "/a/b/f"}), (Names{"b_f.txt", "a_b_f.txt"}));
}

TEST(ReportNames, TakeAllFoldersWhereNothingTellsFilesApart) {
    EXPECT_EQ(namesOf({"/a/f", "/./a/f", "/a/f"}), (Names{"a_f.txt", "a_f.txt", "a_f.txt"}));
    EXPECT_EQ(namesOf({"/f", "/./f"}), (Names{"f.txt", "f.txt"}));
    EXPECT_EQ(namesOf({"/a/f", "/a/f"}), (Names{"f.txt", "f.txt"})) << "one file";
}

TEST(ReportNames, StandardInputHasNoFolders) {
    EXPECT_EQ(namesOf({"-", "/a/stdin"}), (Names{"stdin.txt", "a_stdin.txt"}));
}

TEST(ReportNames, NameTheOutputOfOneOfSeveralImages) {
    EXPECT_EQ(ReportNames({"/a/x.log"}, ".json").nameOf("/a/x.log", "DP-1"), "x-DP-1.json");
}

} // namespace
} // namespace wb::cli
