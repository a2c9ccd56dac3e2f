#pragma once

#include <string>
#include <system_error>

#include "core/base/image.h"
#include "platform/ddc_bus.h"

/// Asking a monitor itself for its EDID.
namespace wb::cli {

/// The bus of that number, a whole one; another text is a UsageError.
std::string busDevice(const std::string& number);

/// The image that the monitor on a bus hands out. Why there is none is a CliError; blocks that it announces and that
/// cannot be reached are told under the name of the device.
Image imageFromBus(platform::DdcBus& bus, const std::string& device);

/// What a failure of a bus means, in plain words.
std::string busTrouble(const std::error_code& error);

} // namespace wb::cli
