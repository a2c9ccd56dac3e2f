#include <algorithm>

#include "desktop/picture_images.h"

namespace wb::test {
namespace {

const QSizeF size(500, 300);

QRectF boxOf(const desktop::Picture& picture, std::string_view name) {
    const desktop::Shape* shape = find(picture, name);
    EXPECT_NE(shape, nullptr) << name;
    return shape != nullptr ? shape->points.boundingRect() : QRectF();
}

/// The numbers of a detailed timing, whose first byte is `base`.
struct Timing {
    Timing(const Bytes& b, std::size_t base)
        : hActive(b[base + 2] + 256 * b.bits(base + 4, 7, 4)),
          hBlank(b[base + 3] + 256 * b.bits(base + 4, 3, 0)),
          vActive(b[base + 5] + 256 * b.bits(base + 7, 7, 4)),
          vBlank(b[base + 6] + 256 * b.bits(base + 7, 3, 0)),
          hFront(b[base + 8] + 256 * b.bits(base + 11, 7, 6)),
          hSync(b[base + 9] + 256 * b.bits(base + 11, 5, 4)),
          vFront(b.bits(base + 10, 7, 4) + 16 * b.bits(base + 11, 3, 2)),
          vSync(b.bits(base + 10, 3, 0) + 16 * b.bits(base + 11, 1, 0)),
          lineHeight(b.bits(base + 17, 7, 7) + 1) {}

    int hActive, hBlank, vActive, vBlank, hFront, hSync, vFront, vSync, lineHeight;
};

void expectTiming(const desktop::Picture& picture, const Timing& t) {
    expectInside(picture, size);
    const QRectF all = boxOf(picture, "blanking");
    const QRectF active = boxOf(picture, "active");
    const int hBack = std::max(0, t.hBlank - t.hFront - t.hSync);
    const int vBack = std::max(0, t.vBlank - t.vFront - t.vSync);
    const int hAll = t.hSync + hBack + t.hActive + t.hFront;
    const int vAll = t.vSync + vBack + t.vActive + t.vFront;
    const double pixel = all.width() / hAll;
    EXPECT_NEAR(all.height(), vAll * pixel * t.lineHeight, 1e-6) << "to scale";
    EXPECT_NEAR(active.width(), t.hActive * pixel, 1e-6);
    EXPECT_NEAR(active.height(), t.vActive * pixel * t.lineHeight, 1e-6);
    EXPECT_NEAR(active.left() - all.left(), (t.hSync + hBack) * pixel, 1e-6);
    EXPECT_NEAR(all.bottom() - active.bottom(), t.vFront * pixel * t.lineHeight, 1e-6);
    EXPECT_NEAR(boxOf(picture, "horizontal sync").width(), t.hSync * pixel, 1e-6);
    EXPECT_NEAR(boxOf(picture, "vertical sync").height(), t.vSync * pixel * t.lineHeight, 1e-6);
    EXPECT_EQ(wordsOf(picture, "h active"), std::to_string(t.hActive));
    EXPECT_EQ(wordsOf(picture, "v active"), std::to_string(t.vActive));
    EXPECT_EQ(wordsOf(picture, "h total"), std::to_string(t.hActive + t.hBlank));
    EXPECT_EQ(wordsOf(picture, "v total"), std::to_string(t.vActive + t.vBlank));
    EXPECT_EQ(wordsOf(picture, "h front porch"), std::to_string(t.hFront));
    EXPECT_EQ(wordsOf(picture, "v back porch"), std::to_string(vBack));
}

TEST(TimingPicture, HasEveryLengthOfItsBytes) {
    int timings = 0;
    forEachImage([&](const Bytes& bytes) {
        for (std::size_t base = 54; base <= 108; base += 18) {
            const Timing timing(bytes, base);
            if (bytes[base] + bytes[base + 1] > 0 && timing.hActive > 0 && timing.vActive > 0) {
                SCOPED_TRACE(base);
                expectTiming(pictureAt(bytes, base + 2, size), timing);
                ++timings;
            }
        }
    });
    EXPECT_GE(timings, 7);
}

TEST(TimingPicture, OfTheExtensionHasLinesOfTwiceTheHeightWhereInterlaced) {
    const Bytes bytes = sample("zarqo-z40.bin");
    const Timing timing(bytes, 128 + 29); // 1920 x 540 lines of a field
    ASSERT_EQ(timing.lineHeight, 2);
    expectTiming(pictureAt(bytes, 128 + 29 + 17, size), timing);
}

TEST(TimingPicture, HasABorderInsideTheBlanking) {
    Bytes bytes = sample("zarqo-z40.bin");
    bytes.set(54 + 15, 20);
    bytes.set(54 + 16, 2);
    const desktop::Picture picture = pictureAt(bytes, 60, size);
    const QRectF active = boxOf(picture, "active");
    const double pixel = active.width() / 1920;
    EXPECT_NEAR(boxOf(picture, "border").width(), (1920 + 2 * 20) * pixel, 1e-6);
    EXPECT_NEAR(boxOf(picture, "border").height(), (1080 + 2 * 2) * pixel, 1e-6);
    EXPECT_EQ(wordsOf(picture, "h border"), "20");
}

TEST(TimingPicture, TellsItsNumbers) {
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 54);
    EXPECT_EQ(picture.description.toStdString(),
              "Horizontal: active 1920, front porch 88, sync 44, back porch 148, border 0, total 2200 pixels. "
              "Vertical: active 1080, front porch 4, sync 5, back porch 36, border 0, total 1125 lines.");
}

TEST(TimingPicture, PicksTheOptionsOfItsNumbers) {
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 54);
    const std::pair<const char*, int> options[] = {{"h active", 1},      {"h blanking", 2},    {"v active", 3},
                                                   {"v blanking", 4},    {"h front porch", 5}, {"h sync", 6},
                                                   {"v front porch", 7}, {"v border", 10}};
    for (const auto& option : options) {
        const char* const name = option.first;
        const auto words = std::find_if(picture.shapes.begin(), picture.shapes.end(), [&](const desktop::Shape& shape) {
            return shape.name == name && shape.kind == desktop::Shape::Kind::Words;
        });
        ASSERT_NE(words, picture.shapes.end()) << name;
        EXPECT_EQ(words->pick->control, "DT");
        EXPECT_EQ(words->pick->index, option.second) << name;
    }
}

/// Width and height of a standard timing by its two bytes.
std::pair<int, int> standardSize(int first, int second) {
    const int width = (first + 31) * 8;
    constexpr std::pair<int, int> ratios[] = {{16, 10}, {4, 3}, {5, 4}, {16, 9}};
    const auto& [wide, high] = ratios[second >> 6];
    return {width, width * high / wide};
}

TEST(StandardPicture, HasAFrameOfEachTimingToScale) {
    forEachImage([](const Bytes& bytes) {
        const desktop::Picture picture = pictureAt(bytes, 38, size);
        expectInside(picture, size);
        double scale = 0;
        for (std::size_t at = 38; at < 54; at += 2) {
            if (bytes[at] == 0 || (bytes[at] == 1 && bytes[at + 1] == 1) || bytes[19] < 3) {
                continue;
            }
            const auto [width, height] = standardSize(bytes[at], bytes[at + 1]);
            const std::string name = std::to_string(width) + 'x' + std::to_string(height);
            SCOPED_TRACE(name);
            const QRectF frame = boxOf(picture, name);
            scale = scale == 0 ? frame.width() / width : scale;
            EXPECT_NEAR(frame.width(), width * scale, 1e-6);
            EXPECT_NEAR(frame.height(), height * scale, 1e-6);
            const auto words = std::count_if(picture.shapes.begin(), picture.shapes.end(), [&](const auto& shape) {
                return shape.name == name + " words" && shape.pick->control == "STOpt" &&
                       shape.pick->index == static_cast<int>((at - 38) / 2);
            });
            EXPECT_EQ(words, 1);
        }
    });
}

TEST(StandardPicture, TellsItsTimings) {
    EXPECT_EQ(pictureAt(sample("zarqo-z40.bin"), 40).description.toStdString(),
              "1280 x 720, 60 Hz; 1920 x 1080, 60 Hz.");
    Bytes none = sample("zarqo-z40.bin");
    for (std::size_t i = 38; i < 54; ++i) {
        none.set(i, 1);
    }
    EXPECT_TRUE(pictureAt(none, 38).shapes.empty());
}

TEST(StandardPicture, OfADescriptorPicksItsOwnOptions) {
    Bytes bytes = sample("zarqo-z40.bin");
    const int descriptor[18] = {0, 0, 0, 0xFA, 0, 0xD1, 0xC0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0x0A};
    for (std::size_t i = 0; i < 18; ++i) {
        bytes.set(108 + i, descriptor[i]);
    }
    const desktop::Picture picture = pictureAt(bytes, 108 + 5);
    ASSERT_NE(find(picture, "1920x1080"), nullptr);
    EXPECT_EQ(find(picture, "1920x1080")->pick->control, "ExtSTOpt");
}

TEST(EstablishedPicture, HasAFrameOfEachBit) {
    struct Row {
        std::size_t byte;
        int bit;
        const char* name;
        const char* words;
    };
    constexpr Row rows[] = {{35, 7, "720x400", "720 x 400, 70 Hz"},   {35, 5, "640x480", "640 x 480, 60 Hz"},
                            {35, 0, "800x600", "800 x 600, 60 Hz"},   {36, 5, "832x624", "832 x 624, 75 Hz"},
                            {36, 3, "1024x768", "1024 x 768, 60 Hz"}, {36, 0, "1280x1024", "1280 x 1024, 75 Hz"},
                            {37, 7, "1152x870", "1152 x 870, 75 Hz"}};
    forEachImage([&](const Bytes& bytes) {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.words);
            const desktop::Picture picture = pictureAt(bytes, row.byte, size);
            expectInside(picture, size);
            const std::string name = row.name;
            const QRectF frame = boxOf(picture, name);
            const double ratio = std::stod(name) / std::stod(name.substr(name.find('x') + 1));
            EXPECT_NEAR(frame.width() / frame.height(), ratio, 1e-6);
            const auto words =
                std::find_if(picture.shapes.begin(), picture.shapes.end(),
                             [&](const desktop::Shape& shape) { return shape.words.toStdString() == row.words; });
            ASSERT_NE(words, picture.shapes.end());
            EXPECT_EQ(words->line == desktop::Ink::Text, bytes.bits(row.byte, row.bit, row.bit) == 1);
            EXPECT_EQ(words->pick->index, 7 - row.bit + (row.byte == 37 ? 7 : 0));
            EXPECT_EQ(words->pick->control, "ET" + std::to_string(row.byte - 34));
        }
    });
}

TEST(EstablishedPicture, IsToScale) {
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 36, size);
    EXPECT_NEAR(boxOf(picture, "1280x1024").width() / boxOf(picture, "800x600").width(), 1280.0 / 800, 1e-6);
    EXPECT_NEAR(boxOf(picture, "1280x1024").height() / boxOf(picture, "832x624").height(), 1024.0 / 624, 1e-6);
    EXPECT_EQ(picture.description.toStdString(), "1024 x 768, 60 Hz.");
}

} // namespace
} // namespace wb::test
