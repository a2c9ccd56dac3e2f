// The kernel's part is played by a function of the C library that stands here in the place of its own: no machine that
// builds has a monitor whose bus it may ask.

#include "platform/linux/i2c_bus.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/i2c-dev.h>
#include <linux/i2c.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <numeric>
#include <system_error>

namespace wb::platform::linux_system {
namespace {

/// A monitor, and what was asked of it last.
struct Monitor {
    std::string memory = std::string(256, '\0');
    int error = 0; ///< of the next transfer

    int file = -1;
    std::size_t messages = 0;
    std::size_t offsetBytes = 0;
    int offset = -1;
    std::size_t length = 0;

    int transfer(const i2c_rdwr_ioctl_data& asked) {
        if (error != 0) {
            errno = error;
            return -1;
        }
        messages = asked.nmsgs;
        for (std::size_t i = 0; i < messages; ++i) {
            take(asked.msgs[i]);
        }
        return static_cast<int>(messages);
    }

    void take(const i2c_msg& message) {
        EXPECT_EQ(message.addr, 0x50);
        if (message.flags == 0) {
            offsetBytes = message.len;
            offset = message.buf[0];
        } else {
            EXPECT_EQ(message.flags, I2C_M_RD);
            length = message.len;
            std::memcpy(message.buf, memory.data() + offset, length);
        }
    }
};

Monitor* monitor = nullptr; ///< while it is attached

class I2cBusTest : public testing::Test {
protected:
    I2cBusTest() {
        std::iota(attached.memory.begin(), attached.memory.end(), '\0');
        monitor = &attached;
    }
    ~I2cBusTest() override { monitor = nullptr; }

    Monitor attached;
};

/// The error number of a std::system_error; 0 where there is none.
template <class Body>
int errorOf(Body&& body) {
    try {
        body();
    } catch (const std::system_error& error) {
        return error.code().value();
    }
    return 0;
}

TEST_F(I2cBusTest, WritesTheOffsetAndReadsInOneTransfer) {
    I2cBus bus("/dev/null");
    for (const int offset : {0, 128}) {
        for (const int length : {1, 128}) {
            EXPECT_EQ(bus.read(offset, length),
                      attached.memory.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(length)));
            EXPECT_EQ(attached.messages, 2U);
            EXPECT_EQ(attached.offsetBytes, 1U) << "nothing else is written";
            EXPECT_EQ(attached.offset, offset);
            EXPECT_EQ(attached.length, static_cast<std::size_t>(length));
        }
    }
}

TEST_F(I2cBusTest, FailuresAreThoseOfTheSystem) {
    EXPECT_EQ(errorOf([] { I2cBus("/dev/there is none"); }), ENOENT);
    I2cBus bus("/dev/null");
    attached.error = ENXIO;
    EXPECT_EQ(errorOf([&] { bus.read(0, 128); }), ENXIO);
    attached.error = 0;
    EXPECT_EQ(bus.read(0, 128).size(), 128U) << "it can be tried again";
}

TEST_F(I2cBusTest, ClosesItsDevice) {
    { I2cBus("/dev/null").read(0, 1); }
    EXPECT_EQ(fcntl(attached.file, F_GETFD), -1);
}

} // namespace
} // namespace wb::platform::linux_system

extern "C" int ioctl(int file, unsigned long request, ...) noexcept {
    using wb::platform::linux_system::monitor;
    std::va_list rest;
    va_start(rest, request);
    void* const argument = va_arg(rest, void*);
    va_end(rest);
    if (request != I2C_RDWR || monitor == nullptr) {
        return static_cast<int>(syscall(SYS_ioctl, file, request, argument));
    }
    monitor->file = file;
    return monitor->transfer(*static_cast<const i2c_rdwr_ioctl_data*>(argument));
}
