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
    return joined({"Time:  ", twoDigits(now.hour), ":", twoDigits(now.minute), ":", twoDigits(now.second)});
}

std::string dateText(const platform::Clock& clock, const platform::DateTime& now) {
    return joined({"Date:  ", clock.dayName(now), " ", clock.monthName(now), " ", twoDigits(now.day), ", ",
                   formatNumber(now.year, "0000")});
}

std::string columnHead() {
    std::string head(6, ' ');
    for (int column = 0; column < columns; ++column) {
        head += PadRight(std::to_string(column), cellWidth);
    }
    return line(std::move(head));
}

void putDumpRow(std::string& entry, BlockScreen& screen, int row) {
    const int first = row * columns;
    const int end = std::min(first + columns, BlockScreen::cellCount);
    const std::string place = std::to_string(first);
    join(entry, {place, padding(place, 3), "  |"});
    for (int cell = first; cell < end; ++cell) {
        const std::string& text = screen.txtEdit(cell).text();
        entry += text;
        entry += padding(text, cellWidth);
    }
    entry += crLf;
}

} // namespace

std::string line(std::string text) {
    text += crLf;
    return text;
}

void putLine(std::string& entry, Texts texts) {
    entry.clear();
    addLine(entry, texts);
}

void addLine(std::string& lines, Texts texts) {
    for (const std::string_view text : texts) {
        lines += text;
    }
    lines += crLf;
}

void putCentred(std::string& entry, std::string_view text) {
    const int length = static_cast<int>(text.size());
    if (length == 0 || length >= reportWidth) {
        entry.clear();
        return;
    }
    putLine(entry, {blanks(static_cast<int>(roundHalfEven(reportWidth / 2.0 - length / 2.0))), text});
}

const std::string& ruleLine() {
    static const std::string rule = line(std::string(reportWidth, '_'));
    return rule;
}

std::string centredLine(std::string_view text) {
    std::string entry;
    putCentred(entry, text);
    return entry;
}

std::string placeTag(std::string_view place) {
    return PadLeft(place, placeWidth);
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
    lines(first) = crLf;
    lines(first + 1) = crLf;
    lines(first + 2) = crLf;
    putCentred(lines(first + 3), timeText(now));
    putCentred(lines(first + 4), dateText(clock, now));
    lines(first + 5) = ruleLine();
    lines(first + 6) = ruleLine();
    lines(first + 7) = crLf;
    putCentred(lines(first + 8), "HALVORINE CORPORATION");
}

void putDump(BlockScreen& screen, TextArray& lines, int first) {
    constexpr int rows = (BlockScreen::cellCount + columns - 1) / columns;
    static const std::string head = columnHead();
    static const std::string rule = line(IndentText(RepeatText("_", cellWidth * columns), 6));
    lines(first) = head;
    lines(first + 1) = rule;
    for (int row = 0; row < rows; ++row) {
        putDumpRow(lines(first + 2 + row), screen, row);
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
