#pragma once

#include <string>

#include "platform/ddc_bus.h"

namespace wb::acquire {

/// What a monitor itself hands out, as opposed to what a system stored of it.
struct DdcEdid {
    std::string bytes;   ///< one block or two
    bool headed = false; ///< begins with the header of an EDID; else only that block was read
    int beyond = 0;      ///< how many blocks it announces besides, which the bus does not reach
};

/// Reads block 0 and, where its byte 126 announces any, one extension. Blocks after these would need the segment
/// pointer of the E-DDC Standard, which is a write to another address. A block whose check sum is wrong is read up to
/// three times and then taken as it is. A failure of the bus comes through.
DdcEdid readByDdc(platform::DdcBus& bus);

} // namespace wb::acquire
