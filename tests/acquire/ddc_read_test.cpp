#include "acquire/ddc_read.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>
#include <vector>

namespace wb::acquire {
namespace {

/// A memory of 256 bytes that notes what is read of it, and gives damaged bytes at first.
class FakeBus : public platform::DdcBus {
public:
    std::string read(int offset, int length) override {
        reads.emplace_back(offset, length);
        if (failing) {
            throw std::runtime_error("no answer");
        }
        std::string data = memory.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
        if (damagedReads > 0) {
            --damagedReads;
            data[20] = static_cast<char>(data[20] ^ 0x10);
        }
        return data;
    }

    std::string memory = std::string(256, '\0');
    std::vector<std::pair<int, int>> reads;
    int damagedReads = 0;
    bool failing = false;
};

using Reads = std::vector<std::pair<int, int>>;

class DdcRead : public testing::Test {
protected:
    /// A header, the count of extensions, and what makes the sum 0: the header's six FF are -6.
    void announce(int extensions) {
        bus.memory.replace(0, 8, std::string("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8));
        bus.memory[126] = static_cast<char>(extensions);
        bus.memory[127] = static_cast<char>(6 - extensions);
    }

    FakeBus bus;
};

TEST_F(DdcRead, ReadsOneBlockWhereNoneIsAnnounced) {
    announce(0);
    const DdcEdid edid = readByDdc(bus);
    EXPECT_EQ(edid.bytes, bus.memory.substr(0, 128));
    EXPECT_TRUE(edid.headed);
    EXPECT_EQ(edid.beyond, 0);
    EXPECT_EQ(bus.reads, (Reads{{0, 128}}));
}

TEST_F(DdcRead, ReadsTheExtensionThatIsAnnounced) {
    announce(1);
    bus.memory[128] = 2;
    bus.memory[255] = static_cast<char>(254);
    const DdcEdid edid = readByDdc(bus);
    EXPECT_EQ(edid.bytes, bus.memory);
    EXPECT_EQ(edid.beyond, 0);
    EXPECT_EQ(bus.reads, (Reads{{0, 128}, {128, 128}}));
}

TEST_F(DdcRead, TellsHowManyBlocksAreOutOfReach) {
    announce(3);
    const DdcEdid edid = readByDdc(bus);
    EXPECT_EQ(edid.bytes, bus.memory);
    EXPECT_EQ(edid.beyond, 2);
    announce(255);
    EXPECT_EQ(readByDdc(bus).beyond, 254);
}

TEST_F(DdcRead, WhatHasNoHeaderEndsTheReading) {
    announce(1);
    bus.memory[1] = '\0';
    const DdcEdid edid = readByDdc(bus);
    EXPECT_FALSE(edid.headed);
    EXPECT_EQ(edid.bytes, bus.memory.substr(0, 128));
    for (const auto& [offset, length] : bus.reads) {
        EXPECT_EQ(offset, 0);
    }
}

TEST_F(DdcRead, ADamagedBlockIsReadUpToThreeTimes) {
    announce(0);
    bus.damagedReads = 2;
    EXPECT_EQ(readByDdc(bus).bytes, bus.memory.substr(0, 128));
    EXPECT_EQ(bus.reads.size(), 3U);
    bus.reads.clear();
    bus.damagedReads = 9;
    EXPECT_EQ(readByDdc(bus).bytes[20], '\x10') << "as it came";
    EXPECT_EQ(bus.reads.size(), 3U);
}

TEST_F(DdcRead, AFailureOfTheBusComesThrough) {
    bus.failing = true;
    EXPECT_THROW(readByDdc(bus), std::runtime_error);
    EXPECT_EQ(bus.reads.size(), 1U);
}

} // namespace
} // namespace wb::acquire
