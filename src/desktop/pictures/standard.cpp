#include <QStringList>
#include <cmath>

#include "desktop/pictures/frames.h"
#include "desktop/pictures/painters.h"

namespace wb::desktop {

namespace {

/// The frame of a standard timing, or nothing where it is not used. Its field tells the ratio as "16:9".
std::optional<Frame> frameOf(const Values& timing, const Pick& pick) {
    const auto width = timing.number("width");
    const QStringList ratio = timing.text("aspect_ratio").split(':');
    if (!width || ratio.size() != 2) {
        return {};
    }
    const int pixels = static_cast<int>(*width);
    const int lines = pixels * ratio[1].toInt() / ratio[0].toInt();
    const QString words =
        QString("%1 x %2, %3 Hz").arg(pixels).arg(lines).arg(shortNumber(timing.numberOr0("refresh"), 0));
    return Frame{.width = pixels, .height = lines, .words = words, .pick = pick};
}

Picture drawTimings(const Values& values, const Canvas& canvas, int count, std::string_view options) {
    std::vector<Frame> frames;
    QStringList told;
    for (int i = 0; i < count; ++i) {
        const std::string part = "standard[" + std::to_string(i + 1) + "].";
        if (const auto frame = frameOf(values.inner(part), {options, i})) {
            frames.push_back(*frame);
            told += frame->words;
        }
    }
    if (frames.empty()) {
        return {};
    }
    return {.name = "Standard timings",
            .description = told.join("; ") + '.',
            .shapes = drawFrames(frames, canvas.size, canvas.font)};
}

} // namespace

Picture drawStandard(const Values& values, const Canvas& canvas) {
    constexpr int count = 8;
    return drawTimings(values, canvas, count, "STOpt");
}

Picture drawMoreStandard(const Values& values, const Canvas& canvas) {
    constexpr int count = 6;
    return drawTimings(values, canvas, count, "ExtSTOpt");
}

} // namespace wb::desktop
