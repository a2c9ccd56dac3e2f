#include "invariants.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace wb::fields {

namespace {

void expectEachBitOnce(const Reading& reading) {
    std::vector<int> covered(reading.image.bytes().size() * 8, 0);
    for (const Field& field : reading.fields) {
        for (const BitRange& range : field.where) {
            ASSERT_LE(range.byte + range.count, reading.image.bytes().size()) << field.path;
            ASSERT_LE(range.low, range.high) << field.path;
            for (std::size_t byte = range.byte; byte < range.byte + range.count; ++byte) {
                for (unsigned bit = range.low; bit <= range.high; ++bit) {
                    EXPECT_EQ(++covered[byte * 8 + bit], 1) << field.path << " byte " << byte << " bit " << bit;
                }
            }
        }
    }
    for (std::size_t i = 0; i < covered.size(); ++i) {
        EXPECT_EQ(covered[i], 1) << "byte " << i / 8 << " bit " << i % 8;
    }
}

std::size_t firstByte(const Field& field) {
    std::size_t first = field.where.front().byte;
    for (const BitRange& range : field.where) {
        first = std::min(first, range.byte);
    }
    return first;
}

} // namespace

void expectInvariants(const Reading& reading) {
    expectEachBitOnce(reading);
    std::set<std::string> paths;
    std::size_t last = 0;
    for (const Field& field : reading.fields) {
        EXPECT_TRUE(paths.insert(field.path).second) << "twice: " << field.path;
        EXPECT_GE(firstByte(field), last) << field.path;
        last = firstByte(field);
        EXPECT_FALSE(field.label.empty()) << field.path;
        EXPECT_FALSE(field.clause.empty()) << field.path;
        EXPECT_EQ(field.text.find_first_of("\r\n"), std::string::npos) << field.path;
    }
    for (const Finding& finding : reading.findings) {
        EXPECT_LT(finding.byte, reading.image.bytes().size()) << finding.code;
        EXPECT_EQ(finding.block, finding.byte / Image::blockSize) << finding.code;
        EXPECT_FALSE(finding.text.empty()) << finding.code;
        EXPECT_FALSE(finding.clause.empty()) << finding.code;
        EXPECT_TRUE(finding.path.empty() || paths.count(finding.path) != 0) << finding.code << ' ' << finding.path;
    }
}

} // namespace wb::fields
