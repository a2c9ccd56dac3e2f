#include "platform/date_time.h"

#include <chrono>

#include "core/base/digits.h"

namespace wb::platform {

namespace {

constexpr std::string_view shape = "0000-00-00 00:00:00";

bool hasShape(std::string_view text) {
    if (text.size() != shape.size()) {
        return false;
    }
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (shape[i] == '0' ? !digit : text[i] != shape[i]) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<DateTime> parseDateTime(std::string_view text) {
    if (!hasShape(text)) {
        return std::nullopt;
    }
    const auto part = [&](std::size_t start, std::size_t length) {
        return *wholeNumber<int>(text.substr(start, length));
    };
    const DateTime result{.year = part(0, 4),
                          .month = part(5, 2),
                          .day = part(8, 2),
                          .hour = part(11, 2),
                          .minute = part(14, 2),
                          .second = part(17, 2)};
    const std::chrono::year_month_day date{std::chrono::year(result.year),
                                           std::chrono::month(static_cast<unsigned>(result.month)),
                                           std::chrono::day(static_cast<unsigned>(result.day))};
    const bool valid = date.ok() && result.hour < 24 && result.minute < 60 && result.second < 60;
    return valid ? std::optional(result) : std::nullopt;
}

} // namespace wb::platform
