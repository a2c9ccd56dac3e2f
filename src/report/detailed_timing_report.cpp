#include "report/detailed_timing_report.h"

#include "core/base/text.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

std::string twoColumns(const std::string& left, const std::string& right) {
    return line(IndentText(PadRight(left, 34) + right, reportIndent));
}

std::string titlePart(const TimingTexts& texts) {
    const std::string size = texts.width + "x" + texts.height + texts.scan;
    const std::string image =
        "Horizontal " + PadRight(texts.fields[HImageSize], 23) + "Vertical " + texts.fields[VImageSize];
    return centredLine(size + "  " + texts.fields[PixelClock]) + ruleLine() + line(IndentText(image, reportIndent)) +
           twoColumns(texts.refresh, texts.stereo) + line();
}

std::string horizontalPart(const TimingTexts& texts) {
    return line("Horizontal:") + twoColumns(texts.fields[HActive], texts.fields[HBlanking]) +
           twoColumns(texts.fields[HSyncOffset], texts.fields[HSyncWidth]) +
           twoColumns(texts.fields[HBorder], texts.horizontalRate) + line();
}

std::string verticalPart(const TimingTexts& texts) {
    return line("Vertical:") + twoColumns(texts.fields[VActive], texts.fields[VBlanking]) +
           twoColumns(texts.fields[VSyncOffset], texts.fields[VSyncWidth]) +
           twoColumns(texts.fields[VBorder], texts.verticalRate) + line();
}

} // namespace

std::string timingReport(const TimingTexts& texts) {
    return titlePart(texts) + horizontalPart(texts) + verticalPart(texts) + line(texts.sync) + line();
}

} // namespace wb::report
