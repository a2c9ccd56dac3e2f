#include "adapters/gzip.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace wb::adapters {
namespace {

/// The word "image" 40 times as gzip wrote it.
std::string compressed() {
    std::string bytes;
    for (const int byte : {0x1f, 0x8b, 0x08, 0x00, 0x00, 0x00, 0x00, 0x00, 0x02, 0x03, 0xcb, 0xcc, 0x4d, 0x4c,
                           0x4f, 0xcd, 0x1c, 0xfa, 0x04, 0x00, 0x72, 0x66, 0xf8, 0x6f, 0xc8, 0x00, 0x00, 0x00}) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string content() {
    std::string text;
    for (int i = 0; i < 40; ++i) {
        text += "image";
    }
    return text;
}

TEST(Gzip, GivesTheContent) {
    EXPECT_EQ(uncompressGzip(compressed()), content());
}

TEST(Gzip, RefusesWhatIsDamagedCutOrNone) {
    std::string damaged = compressed();
    damaged[20] = static_cast<char>(damaged[20] + 1); // its check sum
    EXPECT_EQ(uncompressGzip(damaged), std::nullopt);
    EXPECT_EQ(uncompressGzip(compressed().substr(0, 20)), std::nullopt);
    EXPECT_EQ(uncompressGzip(""), std::nullopt);
    EXPECT_EQ(uncompressGzip("image"), std::nullopt);
}

TEST(Gzip, RefusesMoreThanIsAskedFor) {
    EXPECT_EQ(uncompressGzip(compressed(), 200), content());
    EXPECT_EQ(uncompressGzip(compressed(), 199), std::nullopt);
}

} // namespace
} // namespace wb::adapters
