#pragma once

#include "platform/services.h"

namespace wb::platform::linux_system {

/// The local date and time; day and month names are those of the user's locale.
class SystemClock : public Clock {
public:
    DateTime now() const override;
    double secondsSinceMidnight() const override;
    void wait(double seconds) override;
    std::string dayName(const DateTime& date) const override;
    std::string monthName(const DateTime& date) const override;
};

} // namespace wb::platform::linux_system
