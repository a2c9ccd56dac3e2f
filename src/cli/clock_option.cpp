#include "cli/clock_option.h"

#include "cli/cli_error.h"
#include "cli/syntax.h"
#include "platform/date_time.h"

namespace wb::cli {

void addClockOption(Syntax& syntax, std::string& date) {
    syntax.option("--date", "\"YYYY-MM-DD HH:MM:SS\"", "Set the clock that the heading shows", &date).refuseEmpty();
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

} // namespace wb::cli
