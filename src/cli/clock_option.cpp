#include "cli/clock_option.h"

#include <CLI/CLI.hpp>

#include "cli/cli_error.h"
#include "platform/date_time.h"

namespace wb::cli {

void addClockOption(CLI::App& command, std::string& date) {
    command.add_option("--date", date, "Set the clock that the heading shows")
        ->type_name("\"YYYY-MM-DD HH:MM:SS\"")
        ->check(refuseEmpty)
        ->take_last();
}

std::optional<platform::DateTime> clockOf(const std::string& date) {
    if (date.empty()) {
        return std::nullopt;
    }
    const auto moment = platform::parseDateTime(date);
    if (!moment) {
        throw UsageError("'" + date + "' is no date and time like \"2000-01-31 23:59:59\"");
    }
    return moment;
}

std::string refuseEmpty(const std::string& value) {
    return value.empty() ? "the value is empty" : "";
}

} // namespace wb::cli
