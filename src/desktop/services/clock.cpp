#include "desktop/services/clock.h"

#include <QDateTime>
#include <QLocale>
#include <QThread>
#include <cmath>

#include "desktop/base/text_codec.h"

namespace wb::desktop {

platform::DateTime SystemClock::now() const {
    const QDateTime now = QDateTime::currentDateTime();
    return {now.date().year(), now.date().month(),  now.date().day(),
            now.time().hour(), now.time().minute(), now.time().second()};
}

double SystemClock::secondsSinceMidnight() const {
    constexpr double millisecondsPerSecond = 1000;
    return QTime::currentTime().msecsSinceStartOfDay() / millisecondsPerSecond;
}

void SystemClock::wait(double seconds) {
    constexpr double microsecondsPerSecond = 1e6;
    if (seconds > 0) {
        QThread::usleep(static_cast<unsigned long>(std::ceil(seconds * microsecondsPerSecond)));
    }
}

std::string SystemClock::dayName(const platform::DateTime& date) const {
    const int day = QDate(date.year, date.month, date.day).dayOfWeek();
    return fromUnicode(QLocale::system().dayName(day, QLocale::ShortFormat));
}

std::string SystemClock::monthName(const platform::DateTime& date) const {
    return fromUnicode(QLocale::system().monthName(date.month, QLocale::ShortFormat));
}

} // namespace wb::desktop
