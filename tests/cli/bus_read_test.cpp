#include "cli/bus_read.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"
#include "cli/samples.h"

namespace wb::cli {
namespace {

class MemoryBus : public platform::DdcBus {
public:
    std::string read(int offset, int length) override {
        if (error) {
            throw std::system_error(error);
        }
        return memory.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
    }

    std::string memory = test::sample("zarqo-z40.bin");
    std::error_code error{};
};

std::string refusal(MemoryBus& bus) {
    try {
        return imageFromBus(bus, "/dev/i2c-3").content();
    } catch (const CliError& error) {
        return error.what();
    }
}

TEST(BusRead, GivesTheImageOfTheMonitor) {
    MemoryBus bus;
    EXPECT_EQ(imageFromBus(bus, "/dev/i2c-3").content(), bus.memory);
}

TEST(BusRead, BlocksOutOfReachAreTold) {
    MemoryBus bus;
    bus.memory[126] = 3;
    testing::internal::CaptureStderr();
    const std::string content = imageFromBus(bus, "/dev/i2c-3").content();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "edidwb: /dev/i2c-3: announces 4 blocks; this way reaches two of them, and what the system stored may "
              "have all\n");
    EXPECT_EQ(content, bus.memory);
}

TEST(BusRead, WhatIsNoEdidIsRefused) {
    MemoryBus bus;
    bus.memory.replace(0, 4, "\x92\x13\x0B\x0C");
    EXPECT_EQ(refusal(bus), "what answers at address 50h is no EDID: it begins with 92 13 0B 0C FF FF FF 00");
}

TEST(BusRead, FailuresAreToldInPlainWords) {
    MemoryBus bus;
    bus.error = {121, std::generic_category()};
    EXPECT_EQ(refusal(bus), "nothing answers at address 50h");
    EXPECT_EQ(busTrouble(std::make_error_code(std::errc::no_such_device_or_address)), "nothing answers at address 50h");
    EXPECT_EQ(busTrouble(std::make_error_code(std::errc::permission_denied)),
              "not permitted; root may read it, and mostly the group i2c");
    EXPECT_EQ(busTrouble(std::make_error_code(std::errc::no_such_file_or_directory)),
              "there is no such bus; the kernel's module i2c-dev makes them");
    EXPECT_EQ(busTrouble(std::make_error_code(std::errc::not_enough_memory)), "Cannot allocate memory");
}

TEST(BusRead, ANumberNamesTheDevice) {
    EXPECT_EQ(busDevice("3"), "/dev/i2c-3");
    EXPECT_EQ(busDevice("003"), "/dev/i2c-3");
    for (const char* text : {"", "-1", "x", "3x", "/dev/i2c-3"}) {
        EXPECT_THROW(busDevice(text), UsageError) << text;
    }
}

} // namespace
} // namespace wb::cli
