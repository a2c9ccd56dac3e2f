#pragma once

#include "platform/services.h"

namespace wb::desktop {

/// The system's clock, with the day and month names of its language.
class SystemClock : public platform::Clock {
public:
    platform::DateTime now() const override;
    double secondsSinceMidnight() const override;
    void wait(double seconds) override;
    std::string dayName(const platform::DateTime& date) const override;
    std::string monthName(const platform::DateTime& date) const override;
};

} // namespace wb::desktop
