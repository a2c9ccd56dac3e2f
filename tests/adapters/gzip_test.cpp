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
    EXPECT_THROW(uncompressGzip(compressed(), 199), files::InputError);
}

TEST(Gzip, GivesTheContentOfAllMembers) {
    EXPECT_EQ(uncompressGzip(compressed() + compressed()), content() + content());
    std::string members;
    std::string contents;
    for (int i = 0; i < 300; ++i) {
        members += compressed();
        contents += content();
    }
    EXPECT_EQ(uncompressGzip(members), contents);
}

TEST(Gzip, RefusesWhatIsDamagedOrCutInALaterMember) {
    std::string damaged = compressed() + compressed();
    damaged[48] = static_cast<char>(damaged[48] + 1); // the check sum of the second member
    EXPECT_EQ(uncompressGzip(damaged), std::nullopt);
    for (std::size_t length = 1; length < compressed().size(); ++length) {
        EXPECT_EQ(uncompressGzip(compressed() + compressed().substr(0, length)), std::nullopt) << length;
    }
}

TEST(Gzip, CountsTheBytesOfAllMembers) {
    EXPECT_EQ(uncompressGzip(compressed() + compressed(), 400), content() + content());
    EXPECT_THROW(uncompressGzip(compressed() + compressed(), 399), files::InputError);
}

TEST(Gzip, PassesOverZerosBehindTheLastMemberAndRefusesAllElse) {
    for (const std::size_t zeros : {1U, 20U, 5000U}) {
        EXPECT_EQ(uncompressGzip(compressed() + std::string(zeros, '\0')), content()) << zeros;
        EXPECT_EQ(uncompressGzip(compressed() + std::string(zeros, '\0') + compressed()), std::nullopt) << zeros;
    }
    EXPECT_EQ(uncompressGzip(compressed() + "image"), std::nullopt);
    EXPECT_EQ(uncompressGzip(compressed() + '\n'), std::nullopt);
}

} // namespace
} // namespace wb::adapters
