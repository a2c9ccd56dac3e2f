#include "report/report_lines.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb::report {

namespace {

constexpr int columns = 10;
constexpr std::size_t cellWidth = 4;
constexpr int dumpIndent = 6; ///< of the columns

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

std::string line(std::string text) {
    text += crLf;
    return text;
}

std::string columnHead() {
    std::string head(dumpIndent, ' ');
    for (int column = 0; column < columns; ++column) {
        head += PadRight(std::to_string(column), int{cellWidth});
    }
    return line(std::move(head));
}

/// Writes the text over what stands there; a call for the two characters of a cell would cost more.
void put(std::string& entry, std::size_t place, std::string_view text) {
    for (const char c : text) {
        entry[place++] = c;
    }
}

void putDumpRow(std::string& entry, BlockScreen& screen, int row) {
    const int first = row * columns;
    const int end = std::min(first + columns, BlockScreen::cellCount);
    entry.assign(dumpIndent + static_cast<std::size_t>(end - first) * cellWidth, ' ');
    put(entry, 0, std::to_string(first));
    entry[dumpIndent - 1] = '|';
    std::size_t place = dumpIndent;
    for (int cell = first; cell < end; ++cell) {
        const std::string& text = screen.txtEdit(cell).text();
        if (text.size() > cellWidth) {
            entry.insert(place, text.size() - cellWidth, ' ');
        }
        put(entry, place, text);
        place += std::max(text.size(), cellWidth);
    }
    entry += crLf;
}

} // namespace

void putLine(std::string& entry, Texts texts) {
    entry.clear();
    addLine(entry, texts);
}

void addLine(std::string& lines, Texts texts) {
    append(lines, texts);
    lines += crLf;
}

int centredIndent(std::size_t length) {
    if (length == 0 || length >= reportWidth) {
        return noIndent;
    }
    return static_cast<int>(roundHalfEven(reportWidth / 2.0 - static_cast<double>(length) / 2.0));
}

void putCentred(std::string& entry, std::string_view text) {
    const int indent = centredIndent(text.size());
    entry.clear();
    if (indent != noIndent) {
        addLine(entry, {blanks(indent), text});
    }
}

const std::string& ruleLine() {
    static const std::string rule = line(std::string(reportWidth, '_'));
    return rule;
}

std::string placeTag(int cell) {
    return PadLeft("(" + std::to_string(cell) + ")", placeWidth);
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
    static const std::string rule = line(IndentText(RepeatText("_", int{cellWidth} * columns), dumpIndent));
    lines(first) = head;
    lines(first + 1) = rule;
    for (int row = 0; row < rows; ++row) {
        putDumpRow(lines(first + 2 + row), screen, row);
    }
}

void addEntries(std::string& text, const TextArray& lines) {
    std::array<std::string_view, reportEntries> texts;
    const int end = std::min(lines.size(), reportEntries);
    std::size_t count = 0;
    for (int entry = 0; entry < end && lines(entry) != endOfReport; ++entry) {
        texts[count++] = lines(entry);
    }
    append(text, std::span(texts).first(count));
}

} // namespace wb::report
