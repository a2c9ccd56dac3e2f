#include "core/edid_image.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

TEST(EdidHeader, IsThatOfTheStandard) {
    const std::string header("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);
    EXPECT_TRUE(IsEDIDHeaderValid(header));
    EXPECT_TRUE(IsEDIDHeaderValid(header + "more"));
    for (std::size_t i = 0; i < header.size(); ++i) {
        std::string other = header;
        other[i] = '\x01';
        EXPECT_FALSE(IsEDIDHeaderValid(other)) << i;
    }
    EXPECT_FALSE(IsEDIDHeaderValid(header.substr(0, 7)));
    EXPECT_FALSE(IsEDIDHeaderValid(""));
    EXPECT_FALSE(IsEDIDHeaderValid(" " + header));
}

} // namespace
} // namespace wb
