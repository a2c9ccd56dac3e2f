#include "platform/headless/headless_platform.h"

#include <array>
#include <chrono>
#include <cmath>

#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb::platform::headless {

namespace {

std::string_view answerName(Answer answer) {
    static constexpr std::array names = {"OK", "Yes", "No", "Cancel"};
    return names[static_cast<std::size_t>(answer)];
}

bool offers(Buttons buttons, Answer answer) {
    return buttons == Buttons::Ok ? answer == Answer::Ok : answer == Answer::Yes || answer == Answer::No;
}

std::chrono::sys_days dayOf(const DateTime& date) {
    return std::chrono::year(date.year) / date.month / date.day;
}

} // namespace

HeadlessPlatform::HeadlessPlatform()
    : services_{.messageBoxes = *this,
                .dialogs = *this,
                .printer = *this,
                .settings = *this,
                .registry = registry,
                .operatingSystem = *this,
                .edidReader = *this,
                .shell = *this,
                .clock = *this,
                .eventLoop = *this,
                .arranger = *this,
                .programFolder = ""} {}

void HeadlessPlatform::line(const std::string& text) const {
    if (onLine) {
        onLine(text);
    }
}

Answer HeadlessPlatform::show(const MessageBox& box) {
    Answer answer = box.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    bool answered = false;
    if (!answers_.empty()) {
        answered = offers(box.buttons, answers_.front());
        if (answered) {
            answer = answers_.front();
        }
        answers_.pop_front();
    }
    std::string shown = "[box] " + quoted(box.text);
    if (!box.title.empty()) {
        shown += " title=" + quoted(box.title);
    }
    shown += box.buttons == Buttons::Ok ? " OK -> " : " YesNo -> ";
    line(shown + std::string(answerName(answer)));
    if (onBox) {
        onBox(box.text);
    }
    if (onUnansweredBox && !answered) {
        onUnansweredBox(box.text);
    }
    return answer;
}

std::string HeadlessPlatform::fileDialog(const std::string& kind, const FileDialogRequest& request) {
    std::optional<std::string> name;
    if (!fileNames_.empty()) {
        name = fileNames_.front();
        fileNames_.pop_front();
    }
    line("[dialog] " + kind + " filter=" + quoted(request.filter) + " -> " + (name ? quoted(*name) : "cancel"));
    return name.value_or("");
}

std::string HeadlessPlatform::openFile(const FileDialogRequest& request) {
    return fileDialog("Open", request);
}

std::string HeadlessPlatform::saveFile(const FileDialogRequest& request) {
    return fileDialog("Save", request);
}

bool HeadlessPlatform::print(const std::string&, int) {
    bool confirmed = false;
    if (!printerOutcomes_.empty()) {
        confirmed = printerOutcomes_.front();
        printerOutcomes_.pop_front();
    }
    line(confirmed ? "[dialog] Print -> ok" : "[dialog] Print -> cancel");
    return confirmed;
}

bool HeadlessPlatform::pageSetup(const std::string&) {
    line("[dialog] PageSetup -> cancel");
    return false;
}

void HeadlessPlatform::print(const std::string& text) {
    line("[print] " + std::to_string(text.size()) + " characters");
    printed_.push_back(text);
}

std::optional<std::string> HeadlessPlatform::read(const std::string& name) const {
    const auto found = settings.find(name);
    return found == settings.end() ? std::nullopt : std::optional(found->second);
}

void HeadlessPlatform::write(const std::string& name, const std::string& value) {
    settings[name] = value;
}

std::string HeadlessPlatform::read(const std::string&) {
    return readerData_;
}

bool HeadlessPlatform::start(const ShellCommand& command) {
    line("[shell] " + quoted(command.program) + " " + quoted(command.arguments) + " folder=" + quoted(command.folder));
    return true;
}

void HeadlessPlatform::setClock(const DateTime& now) {
    now_ = now;
    secondFraction_ = 0;
}

double HeadlessPlatform::secondsSinceMidnight() const {
    return now_.hour * 3600.0 + now_.minute * 60.0 + now_.second + secondFraction_;
}

void HeadlessPlatform::wait(double seconds) {
    line("[wait] " + formatNumber(seconds, "0.0"));
    constexpr double secondsPerDay = 86400;
    double second = secondsSinceMidnight() + seconds;
    auto day = dayOf(now_);
    while (second >= secondsPerDay) {
        second -= secondsPerDay;
        day += std::chrono::days(1);
    }
    const std::chrono::year_month_day date(day);
    const int whole = static_cast<int>(std::floor(second));
    secondFraction_ = second - whole;
    now_ = {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = whole / 3600,
            .minute = whole / 60 % 60,
            .second = whole % 60};
}

std::string HeadlessPlatform::dayName(const DateTime& date) const {
    static constexpr std::array names = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    return names[std::chrono::weekday(dayOf(date)).c_encoding()];
}

std::string HeadlessPlatform::monthName(const DateTime& date) const {
    static constexpr std::array names = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return names[static_cast<std::size_t>(date.month - 1)];
}

void HeadlessPlatform::processPending() {
    // Without a user to wait for, every timer is due as soon as events may run.
    const auto due = std::move(timers_);
    timers_.clear();
    for (const auto& fire : due) {
        fire();
    }
}

void HeadlessPlatform::startTimer(int, std::function<void()> fire) {
    timers_.push_back(std::move(fire));
}

} // namespace wb::platform::headless
