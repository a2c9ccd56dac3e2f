#include "invariants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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

/// Turns a number back into the bits that it was read from.
void expectRoundTrip(const Reading& reading, const Field& field) {
    double number = 0;
    if (const auto* whole = std::get_if<std::int64_t>(&field.value)) {
        number = static_cast<double>(*whole);
    } else if (const auto* real = std::get_if<double>(&field.value)) {
        number = *real;
    } else {
        return;
    }
    const std::string raw = rawText(reading.image, field);
    unsigned bits = 0;
    for (const BitRange& range : field.where) {
        bits += (range.high - range.low + 1U) * static_cast<unsigned>(range.count);
    }
    ASSERT_LE(bits, 32U) << field.path;
    const auto back = static_cast<std::int64_t>(std::llround((number - field.bias) / field.scale));
    const std::int64_t mask = (std::int64_t{1} << bits) - 1;
    EXPECT_EQ(back & mask, std::stoll(raw, nullptr, 16)) << field.path;
    EXPECT_NEAR(static_cast<double>(back) * field.scale + field.bias, number, 1e-9) << field.path;
}

bool hasControlCharacter(const std::string& text) {
    return std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

/// Some begin before their field: with the front porch of the pulse, and with the length of the data block.
void expectInItsField(const Reading& reading, const Finding& finding) {
    const std::set<std::string_view> early = {"timing.h_sync_beyond_blanking", "timing.no_sync", "cta.hdmi_short"};
    if (early.count(finding.code) != 0) {
        return;
    }
    const auto field = std::find_if(reading.fields.begin(), reading.fields.end(),
                                    [&](const Field& each) { return each.path == finding.path; });
    EXPECT_TRUE(field == reading.fields.end() || field->where.covers(finding.byte))
        << finding.code << ": " << finding.path << " is not at byte " << finding.byte;
}

} // namespace

void expectInvariants(const Reading& reading) {
    const std::size_t textValue = Value(std::string()).index();
    expectEachBitOnce(reading);
    std::set<std::string> paths;
    std::size_t last = 0;
    for (const Field& field : reading.fields) {
        EXPECT_TRUE(paths.insert(field.path).second) << "twice: " << field.path;
        EXPECT_GE(field.where.firstByte(), last) << field.path;
        last = field.where.firstByte();
        EXPECT_FALSE(field.label.empty()) << field.path;
        EXPECT_FALSE(field.clause.empty()) << field.path;
        EXPECT_FALSE(field.text.empty() && field.value.index() != textValue) << field.path;
        EXPECT_FALSE(hasControlCharacter(field.text)) << field.path;
        expectRoundTrip(reading, field);
    }
    for (const Finding& finding : reading.findings) {
        expectInItsField(reading, finding);
        EXPECT_LT(finding.byte, reading.image.bytes().size()) << finding.code;
        EXPECT_EQ(finding.block, finding.byte / Image::blockSize) << finding.code;
        EXPECT_FALSE(finding.text.empty()) << finding.code;
        EXPECT_FALSE(hasControlCharacter(finding.text)) << finding.code;
        EXPECT_FALSE(finding.clause.empty()) << finding.code;
        EXPECT_TRUE(finding.path.empty() || paths.count(finding.path) != 0) << finding.code << ' ' << finding.path;
    }
}

} // namespace wb::fields
