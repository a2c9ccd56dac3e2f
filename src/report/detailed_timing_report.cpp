#include "report/detailed_timing_report.h"

#include "core/base/text.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

constexpr int leftColumn = 34;
constexpr int imageColumn = 23; ///< of the horizontal size

void addBlanksUpTo(std::string& lines, std::size_t start, int width) {
    lines += blanks(width - static_cast<int>(lines.size() - start));
}

void add(std::string& lines, std::string_view text) {
    lines += text;
}

void add(std::string& lines, const TimingFieldText& field) {
    if (field.words.empty()) {
        return;
    }
    lines += field.words;
    lines += ": ";
    lines += field.number;
    lines += field.unit;
}

template <class Left, class Right>
void addColumns(std::string& lines, const Left& left, const Right& right) {
    lines += blanks(reportIndent);
    const std::size_t start = lines.size();
    add(lines, left);
    addBlanksUpTo(lines, start, leftColumn);
    add(lines, right);
    lines += crLf;
}

void addTitle(std::string& lines, const TimingTexts& texts) {
    std::string title = joined({texts.width, "x", texts.height, texts.scan, "  "});
    add(title, texts.fields[PixelClock]);
    lines += centredLine(title);
    lines += ruleLine();
    lines += blanks(reportIndent);
    lines += "Horizontal ";
    const std::size_t start = lines.size();
    add(lines, texts.fields[HImageSize]);
    addBlanksUpTo(lines, start, imageColumn);
    lines += "Vertical ";
    add(lines, texts.fields[VImageSize]);
    lines += crLf;
    addColumns(lines, texts.refresh, texts.stereo);
    lines += crLf;
}

struct Direction {
    std::string_view heading;
    TimingField active, blanking, syncOffset, syncWidth, border;
    std::string TimingTexts::*rate;
};

constexpr Direction horizontal = {
    "Horizontal:", HActive, HBlanking, HSyncOffset, HSyncWidth, HBorder, &TimingTexts::horizontalRate};
constexpr Direction vertical = {
    "Vertical:", VActive, VBlanking, VSyncOffset, VSyncWidth, VBorder, &TimingTexts::verticalRate};

void addDirection(std::string& lines, const TimingTexts& texts, const Direction& direction) {
    addLine(lines, {direction.heading});
    addColumns(lines, texts.fields[direction.active], texts.fields[direction.blanking]);
    addColumns(lines, texts.fields[direction.syncOffset], texts.fields[direction.syncWidth]);
    addColumns(lines, texts.fields[direction.border], texts.*direction.rate);
    lines += crLf;
}

} // namespace

void putTimingReport(std::string& report, const TimingTexts& texts) {
    constexpr std::size_t usualSize = 800;
    report.clear();
    report.reserve(usualSize);
    addTitle(report, texts);
    addDirection(report, texts, horizontal);
    addDirection(report, texts, vertical);
    addLine(report, {texts.sync});
    report += crLf;
}

} // namespace wb::report
