#include "report/report_lines.h"

#include <algorithm>
#include <utility>

#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb::report {

namespace {

constexpr int columns = 10;
constexpr int cellWidth = 4;

std::string twoDigits(int number) {
    return formatNumber(number, "00");
}

std::string timeText(const platform::DateTime& now) {
    return twoDigits(now.hour) + ":" + twoDigits(now.minute) + ":" + twoDigits(now.second);
}

std::string dateText(const platform::Clock& clock, const platform::DateTime& now) {
    return clock.dayName(now) + " " + clock.monthName(now) + " " + twoDigits(now.day) + ", " +
           formatNumber(now.year, "0000");
}

std::string columnHead() {
    std::string head(6, ' ');
    for (int column = 0; column < columns; ++column) {
        head += PadRight(std::to_string(column), cellWidth);
    }
    return line(std::move(head));
}

void appendPadded(std::string& text, std::string_view part, int width) {
    text += part;
    const int missing = width - static_cast<int>(part.size());
    text.append(static_cast<std::size_t>(std::max(missing, 0)), ' ');
}

std::string dumpRow(BlockScreen& screen, int row) {
    const int first = row * columns;
    const int end = std::min(first + columns, BlockScreen::cellCount);
    std::string text;
    text.reserve(6 + columns * cellWidth + crLf.size());
    appendPadded(text, std::to_string(first), 3);
    text += "  |";
    for (int cell = first; cell < end; ++cell) {
        appendPadded(text, screen.txtEdit(cell).text(), cellWidth);
    }
    text += crLf;
    return text;
}

} // namespace

std::string line(std::string text) {
    text += crLf;
    return text;
}

std::string ruleLine() {
    static const std::string rule = line(std::string(reportWidth, '_'));
    return rule;
}

std::string centredLine(std::string_view text) {
    return CenterText(line(std::string(text)), reportWidth);
}

std::string placeTag(std::string_view place) {
    return PadLeft(place, 7);
}

std::string placeTag(int cell) {
    return placeTag("(" + std::to_string(cell) + ")");
}

std::string placeRange(int first, int last) {
    return std::to_string(first) + "-" + std::to_string(last);
}

void putHead(Workbench& workbench, TextArray& lines, int first) {
    const platform::Clock& clock = workbench.platform.clock;
    const platform::DateTime now = clock.now();
    lines(first) = line();
    lines(first + 1) = line();
    lines(first + 2) = line();
    lines(first + 3) = centredLine("Time:  " + timeText(now));
    lines(first + 4) = centredLine("Date:  " + dateText(clock, now));
    lines(first + 5) = ruleLine();
    lines(first + 6) = ruleLine();
    lines(first + 7) = line();
    lines(first + 8) = centredLine("HALVORINE CORPORATION");
}

void putDump(BlockScreen& screen, TextArray& lines, int first) {
    constexpr int rows = (BlockScreen::cellCount + columns - 1) / columns;
    static const std::string head = columnHead();
    static const std::string rule = line(IndentText(RepeatText("_", cellWidth * columns), 6));
    lines(first) = head;
    lines(first + 1) = rule;
    for (int row = 0; row < rows; ++row) {
        lines(first + 2 + row) = dumpRow(screen, row);
    }
}

std::string joinedEntries(const TextArray& lines) {
    int end = 0;
    std::size_t size = 0;
    for (; end < lines.size() && lines(end) != endOfReport; ++end) {
        size += lines(end).size();
    }
    std::string text;
    text.reserve(size);
    for (int entry = 0; entry < end; ++entry) {
        text += lines(entry);
    }
    return text;
}

} // namespace wb::report
