#pragma once

#include <optional>
#include <string_view>

#include "platform/services.h"

namespace wb::platform {

/// The moment of a text "YYYY-MM-DD HH:MM:SS" exactly, or nothing where that is no date and time of the calendar.
std::optional<DateTime> parseDateTime(std::string_view text);

} // namespace wb::platform
