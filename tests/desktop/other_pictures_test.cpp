#include <algorithm>
#include <cmath>

#include "desktop/picture_images.h"

namespace wb::test {
namespace {

const QSizeF size(500, 300);

/// The first descriptor of range limits without offsets, or 0.
std::size_t rangeOf(const Bytes& bytes) {
    for (std::size_t base = 54; base <= 108; base += 18) {
        if (bytes[base] + bytes[base + 1] + bytes[base + 2] == 0 && bytes[base + 3] == 0xFD) {
            return base;
        }
    }
    return 0;
}

QRectF boxOf(const desktop::Picture& picture, const std::string& name) {
    const desktop::Shape* shape = find(picture, name);
    EXPECT_NE(shape, nullptr) << name;
    return shape != nullptr ? shape->points.boundingRect() : QRectF();
}

std::vector<double> marksOf(const desktop::Picture& picture, const std::string& name) {
    std::vector<double> marks;
    for (const desktop::Shape& shape : picture.shapes) {
        if (shape.name == name) {
            marks.push_back(shape.points.front().x());
        }
    }
    return marks;
}

TEST(RangePicture, HasBarsFromLowestToHighest) {
    int ranges = 0;
    forEachImage([&](const Bytes& bytes) {
        const std::size_t base = rangeOf(bytes);
        if (base == 0 || bytes[base + 4] != 0) {
            return;
        }
        ++ranges;
        const desktop::Picture picture = pictureAt(bytes, base + 3, size);
        expectInside(picture, size);
        const std::pair<const char*, std::size_t> bars[] = {{"vertical", 5}, {"horizontal", 7}};
        for (const auto& [name, at] : bars) {
            SCOPED_TRACE(name);
            const int low = bytes[base + at];
            const int high = bytes[base + at + 1];
            const QRectF bar = boxOf(picture, std::string(name) + " bar");
            const QRectF scale = boxOf(picture, std::string(name) + " scale");
            if (high <= low) {
                continue;
            }
            const double unit = bar.width() / (high - low);
            EXPECT_NEAR(bar.left() - scale.left(), low * unit, 1e-6) << "the scale begins at 0";
            EXPECT_EQ(wordsOf(picture, std::string(name) + " low"), std::to_string(low));
            for (const double mark : marksOf(picture, std::string(name) + " inside")) {
                EXPECT_GT((mark - scale.left()) / unit, low - 1);
                EXPECT_LT((mark - scale.left()) / unit, high + 1);
            }
            for (const double mark : marksOf(picture, std::string(name) + " outside")) {
                const double rate = (mark - scale.left()) / unit;
                EXPECT_TRUE(rate < low - 0.99 || rate > high + 0.99) << rate;
            }
        }
        if (bytes[base + 9] > 0 && bytes[base + 10] != 4) {
            EXPECT_EQ(wordsOf(picture, "clock high"), "to " + std::to_string(bytes[base + 9] * 10) + " MHz");
        }
    });
    EXPECT_GE(ranges, 3);
}

TEST(RangePicture, HasAMarkForEachRateOfTheTimings) {
    // 24 to 76 Hz, 15 to 81 kHz, 150 MHz. Rates of the modes: 60, 50, 59.94 and 24 Hz; those of which the clock is told
    // have 67.5, 45, 56.25, 37.5, 33.75, 28.125, 31.469, 31.25 and 27 kHz, and 148.5, 74.25 and 27 MHz.
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 113, size);
    EXPECT_EQ(marksOf(picture, "vertical inside").size(), 4U);
    EXPECT_EQ(marksOf(picture, "horizontal inside").size(), 9U);
    EXPECT_EQ(marksOf(picture, "clock inside").size(), 3U);
    EXPECT_EQ(marksOf(picture, "vertical outside").size() + marksOf(picture, "horizontal outside").size(), 0U);
    EXPECT_EQ(
        picture.description.toStdString(),
        "Vertical: 24 to 76 Hz, 4 of 4 rates of timings inside. Horizontal: 15 to 81 kHz, 9 of 9 rates of timings "
        "inside. Pixel clock: 0 to 150 MHz, 3 of 3 rates of timings inside.");
}

TEST(RangePicture, TellsMarksOutside) {
    Bytes bytes = sample("zarqo-z40.bin");
    bytes.set(108 + 6, 55); // the highest vertical rate: 60 and 59.94 Hz are outside
    bytes.set(108 + 9, 7);  // 70 MHz: 74.25 and 148.5 are outside
    const desktop::Picture picture = pictureAt(bytes, 108 + 6, size);
    EXPECT_EQ(marksOf(picture, "vertical outside").size(), 2U);
    EXPECT_EQ(marksOf(picture, "clock outside").size(), 2U);
    EXPECT_NE(picture.description.indexOf("24 to 55 Hz, 2 of 4 rates of timings inside, outside: 60, 59.94."), -1);
}

TEST(RangePicture, PicksTheOptionsOfTheLimits) {
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 111);
    int option = 0;
    for (const char* name : {"vertical low", "vertical high", "horizontal low", "horizontal high", "clock high"}) {
        EXPECT_EQ(find(picture, name)->pick->control, "DtaOpt");
        EXPECT_EQ(find(picture, name)->pick->index, option++) << name;
    }
}

TEST(ScreenPicture, HasSidesAndDiagonalOfBytes21And22) {
    forEachImage([](const Bytes& bytes) {
        const double width = bytes[21];
        const double height = bytes[22];
        const desktop::Picture picture = pictureAt(bytes, 21, size);
        expectInside(picture, size);
        if (width == 0 || height == 0) {
            EXPECT_EQ(find(picture, "diagonal"), nullptr);
            return;
        }
        const QRectF screen = boxOf(picture, "screen");
        EXPECT_NEAR(screen.width() / screen.height(), width / height, 1e-6);
        const QString diagonal = QString("%1 cm (%2 in)")
                                     .arg(std::hypot(width, height), 0, 'f', 1)
                                     .arg(std::hypot(width, height) / 2.54, 0, 'f', 1);
        EXPECT_EQ(wordsOf(picture, "diagonal words"), diagonal.toStdString());
        EXPECT_EQ(wordsOf(picture, "width"), std::to_string(bytes[21]) + " cm");
        EXPECT_EQ(wordsOf(picture, "height"), std::to_string(bytes[22]) + " cm");
    });
}

TEST(ScreenPicture, HasARulerToScale) {
    // 89 by 50 cm: the ruler is 20 cm long.
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 22, size);
    EXPECT_NEAR(boxOf(picture, "ruler").width() / boxOf(picture, "screen").width(), 20.0 / 89, 1e-6);
    EXPECT_EQ(picture.description.toStdString(), "89 cm wide, 50 cm high, diagonal 102.1 cm (40.2 in).");
    EXPECT_EQ(find(picture, "width")->pick->index, 0);
    EXPECT_EQ(find(picture, "height")->pick->index, 1);
}

TEST(ScreenPicture, IsAShapeWhereOnlyTheRatioIsTold) {
    Bytes bytes = sample("zarqo-z40.bin");
    bytes.set(19, 4);
    bytes.set(21, 79); // (79 + 99) / 100
    bytes.set(22, 0);
    QRectF screen = boxOf(pictureAt(bytes, 21, size), "screen");
    EXPECT_NEAR(screen.width() / screen.height(), 1.78, 1e-6);
    bytes.set(21, 0);
    bytes.set(22, 61); // 1.6 times as high as wide
    screen = boxOf(pictureAt(bytes, 22, size), "screen");
    EXPECT_NEAR(screen.height() / screen.width(), 1.6, 1e-6);
    bytes.set(22, 0);
    EXPECT_TRUE(pictureAt(bytes, 21, size).shapes.empty());
}

TEST(GammaPicture, IsTheCurveOfByte23) {
    forEachImage([](const Bytes& bytes) {
        const desktop::Picture picture = pictureAt(bytes, 23, size);
        expectInside(picture, size);
        if (bytes[23] == 0xFF && bytes[19] >= 4) { // not told; 3.55 before
            EXPECT_TRUE(picture.shapes.empty());
            return;
        }
        const double gamma = (bytes[23] + 100) / 100.0;
        const QPolygonF& curve = find(picture, "gamma")->points;
        const QRectF box = find(picture, "straight")->points.boundingRect();
        EXPECT_NEAR(box.width(), box.height(), 1e-6);
        for (const QPointF& point : curve) {
            const double signal = (point.x() - box.left()) / box.width();
            EXPECT_NEAR((box.bottom() - point.y()) / box.height(), std::pow(signal, gamma), 1e-6);
        }
        EXPECT_NEAR(curve.front().x(), box.left(), 1e-6);
        EXPECT_NEAR(curve.back().y(), box.top(), 1e-6);
    });
}

TEST(GammaPicture, TellsItsNumber) {
    // 78h are 120 hundredths above 1; a half to the power of 2.2 is 0.2176.
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 23);
    EXPECT_EQ(picture.description.toStdString(), "Gamma 2.20: half of the signal gives 22 % of the light.");
    EXPECT_EQ(find(picture, "gamma words")->pick->control, "Basic");
    EXPECT_EQ(find(picture, "gamma words")->pick->index, 2);
}

/// The byte of the first speaker allocation block in the extension, or 0.
std::size_t speakersOf(const Bytes& bytes) {
    if (bytes.size() < 256 || bytes[128] != 2 || bytes[129] < 3 || bytes[130] < 4) {
        return 0;
    }
    for (std::size_t at = 132; at < 128 + static_cast<std::size_t>(bytes[130]);
         at += 1 + static_cast<std::size_t>(bytes.bits(at, 4, 0))) {
        if (bytes.bits(at, 7, 5) == 4) {
            return bytes.bits(at, 4, 0) == 3 ? at + 1 : 0;
        }
    }
    return 0;
}

TEST(SpeakersPicture, HasTheSpeakersOfTheFirstByte) {
    constexpr const char* names[] = {"FL", "LFE", "FC", "RL", "RC", "FLC", "RLC"}; // by bit
    int rooms = 0;
    forEachImage([&](const Bytes& bytes) {
        const std::size_t at = speakersOf(bytes);
        if (at == 0) {
            return;
        }
        ++rooms;
        const desktop::Picture picture = pictureAt(bytes, at, size);
        expectInside(picture, size);
        for (int bit = 0; bit < 7; ++bit) {
            const desktop::Shape* speaker = find(picture, names[bit]);
            ASSERT_NE(speaker, nullptr) << names[bit];
            EXPECT_EQ(speaker->fill != desktop::Ink::None, bytes.bits(at, bit, bit) == 1) << names[bit];
            EXPECT_EQ(speaker->pick->control, "speaker");
            EXPECT_EQ(speaker->pick->index, bit);
        }
    });
    EXPECT_GE(rooms, 1);
}

TEST(SpeakersPicture, StandLeftAndRightOfTheListenerAndInFrontOfHim) {
    Bytes bytes = sample("zarqo-z40.bin");
    const std::size_t at = speakersOf(bytes);
    bytes.set(at, 0x7F);
    bytes.set(at + 1, 0x08); // surround
    const desktop::Picture picture = pictureAt(bytes, at, size);
    const QPointF listener = boxOf(picture, "room").center();
    const auto place = [&](const char* name) { return find(picture, name)->points.front() - listener; };
    EXPECT_LT(place("FL").x(), 0);
    EXPECT_NEAR(place("FL").x(), -place("FR").x(), 1e-6);
    EXPECT_LT(place("FC").y(), 0) << "the display is at the top";
    EXPECT_NEAR(place("RC").x(), 0, 1e-6);
    EXPECT_GT(place("RC").y(), 0);
    EXPECT_GT(place("RS").x(), 0);
    EXPECT_EQ(picture.description.toStdString(),
              "Front left/right, Low frequency effects 1, Front center, Back left/right, Back center, Front left/right "
              "of center, Rear left/right of center, Left/right surround.");
}

TEST(Pictures, StayInsideOfAnySize) {
    forEachImage([](const Bytes& bytes) {
        for (const std::size_t byte : {21, 23, 27, 35, 36, 37, 38, 54, 72, 90, 108}) {
            SCOPED_TRACE(byte);
            for (const QSizeF& room : {QSizeF(420, 180), QSizeF(250, 400), QSizeF(2000, 900)}) {
                expectInside(pictureAt(bytes, byte, room), room);
            }
        }
    });
}

} // namespace
} // namespace wb::test
