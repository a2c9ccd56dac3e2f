#pragma once

#include "platform/ddc_bus.h"

namespace wb::platform::linux_system {

/// A bus of the kernel, such as /dev/i2c-3.
class I2cBus : public DdcBus {
public:
    /// Opens the device; a failure is a std::system_error.
    explicit I2cBus(const std::string& device);
    I2cBus(const I2cBus&) = delete;
    I2cBus& operator=(const I2cBus&) = delete;
    ~I2cBus() override;

    std::string read(int offset, int length) override;

private:
    int file_;
};

} // namespace wb::platform::linux_system
