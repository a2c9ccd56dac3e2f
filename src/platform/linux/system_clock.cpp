#include "platform/linux/system_clock.h"

#include <iconv.h>
#include <langinfo.h>

#include <bit>
#include <chrono>
#include <clocale>
#include <cstdint>
#include <ctime>
#include <thread>

namespace wb::platform::linux_system {

namespace {

/// The user's locale for dates, without a change of the program's own.
class DateLocale {
public:
    DateLocale() : locale_(newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr)) {
        if (locale_ == nullptr) {
            locale_ = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "C", nullptr);
        }
    }
    DateLocale(const DateLocale&) = delete;
    DateLocale& operator=(const DateLocale&) = delete;
    ~DateLocale() { freelocale(locale_); }

    const char* text(nl_item item) const { return nl_langinfo_l(item, locale_); }

private:
    locale_t locale_;
};

/// The name in characters of Windows code page 1252; what that does not have is written in similar ones.
std::string inCodePage(const DateLocale& locale, std::string name) {
    iconv_t conversion = iconv_open("CP1252//TRANSLIT", locale.text(CODESET));
    if (std::bit_cast<std::intptr_t>(conversion) == -1) {
        return name;
    }
    std::string result(4 * name.size(), '\0');
    char* from = name.data();
    std::size_t fromLeft = name.size();
    char* to = result.data();
    std::size_t toLeft = result.size();
    const bool converted = iconv(conversion, &from, &fromLeft, &to, &toLeft) != static_cast<std::size_t>(-1);
    iconv_close(conversion);
    result.resize(result.size() - toLeft);
    return converted ? result : name;
}

std::string dateText(nl_item item) {
    const DateLocale locale;
    return inCodePage(locale, locale.text(item));
}

tm localTime(time_t time) {
    tm parts{};
    localtime_r(&time, &parts);
    return parts;
}

} // namespace

DateTime SystemClock::now() const {
    const tm parts = localTime(time(nullptr));
    return {.year = parts.tm_year + 1900,
            .month = parts.tm_mon + 1,
            .day = parts.tm_mday,
            .hour = parts.tm_hour,
            .minute = parts.tm_min,
            .second = parts.tm_sec};
}

double SystemClock::secondsSinceMidnight() const {
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    const tm parts = localTime(time.tv_sec);
    return parts.tm_hour * 3600.0 + parts.tm_min * 60.0 + parts.tm_sec + static_cast<double>(time.tv_nsec) / 1e9;
}

void SystemClock::wait(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

std::string SystemClock::dayName(const DateTime& date) const {
    const std::chrono::sys_days day = std::chrono::year(date.year) / date.month / date.day;
    return dateText(static_cast<nl_item>(ABDAY_1 + std::chrono::weekday(day).c_encoding()));
}

std::string SystemClock::monthName(const DateTime& date) const {
    return dateText(static_cast<nl_item>(ABMON_1 + date.month - 1));
}

} // namespace wb::platform::linux_system
