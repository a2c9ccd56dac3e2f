#pragma once

#include <optional>
#include <string>

#include "platform/services.h"

namespace CLI {
class App;
}

namespace wb::cli {

/// --date, which sets the clock that the heading of a report shows.
void addClockOption(CLI::App& command, std::string& date);

/// The moment that was given; nothing where none was. A text that is none is a UsageError.
std::optional<platform::DateTime> clockOf(const std::string& date);

/// For options that the option library would take for absent where their value is empty.
std::string refuseEmpty(const std::string& value);

} // namespace wb::cli
