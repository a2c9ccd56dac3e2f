#pragma once

#include <string>

namespace wb::platform {

/// The wires to one monitor, by which it hands out its EDID (VESA E-DDC Standard, DDC2B).
class DdcBus {
public:
    virtual ~DdcBus() = default;
    /// `length` bytes (1 to 128) from `offset` (0 to 255) on of what stands at address 50h. Nothing but the offset is
    /// ever written, and that to this address. A failure is a std::system_error.
    virtual std::string read(int offset, int length) = 0;
};

} // namespace wb::platform
