#include <QStringList>
#include <array>

#include "desktop/pictures/frames.h"
#include "desktop/pictures/painters.h"

namespace wb::desktop {

namespace {

/// An established timing: the last part of the path of its field, and the number of its check.
struct Established {
    std::string_view name;
    int width;
    int height;
    const char* rate;
    int check;
};

/// Those of bytes 35 to 37. The checks stand in the order of the panels, from the highest bit down.
constexpr std::array<Established, 8> first = {{{"720x400_70", 720, 400, "70 Hz", 0},
                                               {"720x400_88", 720, 400, "88 Hz", 1},
                                               {"640x480_60", 640, 480, "60 Hz", 2},
                                               {"640x480_67", 640, 480, "67 Hz", 3},
                                               {"640x480_72", 640, 480, "72 Hz", 4},
                                               {"640x480_75", 640, 480, "75 Hz", 5},
                                               {"800x600_56", 800, 600, "56 Hz", 6},
                                               {"800x600_60", 800, 600, "60 Hz", 7}}};
constexpr std::array<Established, 8> second = {{{"800x600_72", 800, 600, "72 Hz", 0},
                                                {"800x600_75", 800, 600, "75 Hz", 1},
                                                {"832x624_75", 832, 624, "75 Hz", 2},
                                                {"1024x768i_87", 1024, 768, "87 Hz, interlaced", 3},
                                                {"1024x768_60", 1024, 768, "60 Hz", 4},
                                                {"1024x768_70", 1024, 768, "70 Hz", 5},
                                                {"1024x768_75", 1024, 768, "75 Hz", 6},
                                                {"1280x1024_75", 1280, 1024, "75 Hz", 7}}};
constexpr std::array<Established, 1> third = {{{"1152x870_75", 1152, 870, "75 Hz", 7}}};

template <std::size_t count>
Picture drawBits(const Values& values, const Canvas& canvas, const std::array<Established, count>& timings,
                 std::string_view checks) {
    std::vector<Frame> frames;
    QStringList present;
    for (const Established& timing : timings) {
        const QString words = QString("%1 x %2, %3").arg(timing.width).arg(timing.height).arg(timing.rate);
        const bool isPresent = values.flag(timing.name);
        frames.push_back({timing.width, timing.height, words, Pick{checks, timing.check}, isPresent});
        if (isPresent) {
            present += words;
        }
    }
    return {.name = "Established timings",
            .description = present.isEmpty() ? "None of this byte." : present.join("; ") + '.',
            .shapes = drawFrames(frames, canvas.size, canvas.font)};
}

} // namespace

Picture drawEstablished1(const Values& values, const Canvas& canvas) {
    return drawBits(values, canvas, first, "ET1");
}

Picture drawEstablished2(const Values& values, const Canvas& canvas) {
    return drawBits(values, canvas, second, "ET2");
}

Picture drawEstablished3(const Values& values, const Canvas& canvas) {
    return drawBits(values, canvas, third, "ET3");
}

} // namespace wb::desktop
