#pragma once

#include <optional>
#include <string>

#include "platform/services.h"

namespace wb::cli {

class Syntax;

/// --date, which sets the clock that the heading of a report shows.
void addClockOption(Syntax& syntax, std::string& date);

/// The moment that was given; nothing where none was. A text that is none is a UsageError.
std::optional<platform::DateTime> clockOf(const std::string& date);

} // namespace wb::cli
