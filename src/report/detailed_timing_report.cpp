#include "report/detailed_timing_report.h"

#include <span>

#include "core/base/text.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

constexpr int leftColumn = 34;
constexpr int imageColumn = 23; ///< of the horizontal size

/// The pieces of a text, in order.
class Pieces {
public:
    void add(std::string_view text) { texts_[count_++] = text; }
    /// Tells how long the text of the field is.
    std::size_t add(const TimingFieldText& field) {
        if (field.words.empty()) {
            return 0;
        }
        for (const std::string_view text : {field.words, mark, std::string_view(field.number), field.unit}) {
            add(text);
        }
        return sizeOf(field);
    }
    /// A text and blanks up to a column.
    void addColumn(std::string_view text, int width) {
        add(text);
        add(padding(text, width));
    }
    void addColumn(const TimingFieldText& field, int width) { add(blanks(width - static_cast<int>(add(field)))); }

    static std::size_t sizeOf(const TimingFieldText& field) {
        return field.words.empty() ? 0 : field.words.size() + mark.size() + field.number.size() + field.unit.size();
    }
    std::span<const std::string_view> texts() const { return std::span(texts_).first(count_); }

private:
    static constexpr std::string_view mark = ": ";
    static constexpr std::size_t most = 128; ///< the report has 110 at most

    std::array<std::string_view, most> texts_;
    std::size_t count_ = 0;
};

void addRow(Pieces& report, const TimingFieldText& left, const TimingFieldText& right) {
    report.add(blanks(reportIndent));
    report.addColumn(left, leftColumn);
    report.add(right);
    report.add(crLf);
}

void addTitle(Pieces& report, const TimingTexts& texts) {
    constexpr std::string_view times = "x";
    constexpr std::string_view gap = "  ";
    const TimingFieldText& clock = texts.fields[PixelClock];
    const int indent = centredIndent(texts.width.size() + times.size() + texts.height.size() + texts.scan.size() +
                                     gap.size() + Pieces::sizeOf(clock));
    if (indent == noIndent) {
        return;
    }
    report.add(blanks(indent));
    for (const std::string_view text :
         {std::string_view(texts.width), times, std::string_view(texts.height), texts.scan, gap}) {
        report.add(text);
    }
    report.add(clock);
    report.add(crLf);
}

void addHead(Pieces& report, const TimingTexts& texts) {
    addTitle(report, texts);
    report.add(ruleLine());
    report.add(blanks(reportIndent));
    report.add("Horizontal ");
    report.addColumn(texts.fields[HImageSize], imageColumn);
    report.add("Vertical ");
    report.add(texts.fields[VImageSize]);
    report.add(crLf);
    report.add(blanks(reportIndent));
    report.addColumn(texts.refresh, leftColumn);
    report.add(texts.stereo);
    report.add(crLf);
    report.add(crLf);
}

struct Direction {
    std::string_view heading;
    TimingField active, blanking, syncOffset, syncWidth, border;
    TimingFieldText TimingTexts::*rate;
};

constexpr Direction horizontal = {
    "Horizontal:", HActive, HBlanking, HSyncOffset, HSyncWidth, HBorder, &TimingTexts::horizontalRate};
constexpr Direction vertical = {
    "Vertical:", VActive, VBlanking, VSyncOffset, VSyncWidth, VBorder, &TimingTexts::verticalRate};

void addDirection(Pieces& report, const TimingTexts& texts, const Direction& direction) {
    report.add(direction.heading);
    report.add(crLf);
    addRow(report, texts.fields[direction.active], texts.fields[direction.blanking]);
    addRow(report, texts.fields[direction.syncOffset], texts.fields[direction.syncWidth]);
    addRow(report, texts.fields[direction.border], texts.*direction.rate);
    report.add(crLf);
}

} // namespace

void putTimingReport(std::string& report, const TimingTexts& texts) {
    Pieces pieces;
    addHead(pieces, texts);
    addDirection(pieces, texts, horizontal);
    addDirection(pieces, texts, vertical);
    for (const std::string_view text : {std::string_view(texts.sync), crLf, crLf}) {
        pieces.add(text);
    }
    report.clear();
    append(report, pieces.texts());
}

} // namespace wb::report
