#include "cli/kept_files.h"

#include <gtest/gtest.h>

namespace wb::cli {
namespace {

TEST(KeptFiles, GivesBackWhatWasAddedFromMemoryAndFromItsFile) {
    const std::vector<BatchFile> files = {
        {.name = "in/a.bin", .below = "a.bin"},
        {.name = std::string("odd\n\0name", 9), .below = ""},
        {.name = "-", .below = "-"},
        {.name = std::string(300, 'x'), .below = "x/y"},
    };
    for (const std::size_t limit : {0, 20, 100000}) {
        KeptFiles kept(limit);
        for (const BatchFile& file : files) {
            kept.add(file);
        }
        EXPECT_EQ(kept.count(), 4U);
        std::vector<std::uint64_t> places;
        for (const BatchFile& file : files) {
            const auto next = kept.next();
            ASSERT_TRUE(next) << limit;
            EXPECT_EQ(next->name, file.name) << limit;
            EXPECT_EQ(next->below, file.below) << limit;
            places.push_back(next->place);
        }
        EXPECT_FALSE(kept.next());
        EXPECT_EQ(kept.at(places[1]).name, files[1].name) << limit;
        std::size_t i = 0;
        kept.forEach([&](const BatchFile& file) { EXPECT_EQ(file.place, places.at(i++)); });
        EXPECT_EQ(i, 4U);
    }
}

} // namespace
} // namespace wb::cli
