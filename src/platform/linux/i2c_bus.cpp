#include "platform/linux/i2c_bus.h"

#include <fcntl.h>
#include <linux/i2c-dev.h>
#include <linux/i2c.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

namespace wb::platform::linux_system {

namespace {

constexpr std::uint16_t edidAddress = 0x50;

} // namespace

I2cBus::I2cBus(const std::string& device) : file_(open(device.c_str(), O_RDWR | O_CLOEXEC)) {
    if (file_ < 0) {
        throw std::system_error(errno, std::generic_category());
    }
}

I2cBus::~I2cBus() {
    close(file_);
}

std::string I2cBus::read(int offset, int length) {
    std::string data(static_cast<std::size_t>(length), '\0');
    auto place = static_cast<std::uint8_t>(offset);
    // One transfer with a repeated start, so that no other program's comes between offset and data.
    std::array<i2c_msg, 2> messages = {i2c_msg{.addr = edidAddress, .flags = 0, .len = 1, .buf = &place},
                                       i2c_msg{.addr = edidAddress,
                                               .flags = I2C_M_RD,
                                               .len = static_cast<std::uint16_t>(length),
                                               .buf = reinterpret_cast<std::uint8_t*>(data.data())}};
    i2c_rdwr_ioctl_data transfer{.msgs = messages.data(), .nmsgs = messages.size()};
    if (ioctl(file_, I2C_RDWR, &transfer) < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return data;
}

} // namespace wb::platform::linux_system
