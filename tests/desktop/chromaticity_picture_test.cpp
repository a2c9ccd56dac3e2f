#include <cmath>
#include <cstdio>

#include "desktop/picture_images.h"

namespace wb::test {
namespace {

/// Coordinates of the diagram, worked out from where the corners of sRGB stand: red 0.64, 0.33, green 0.30, 0.60, blue
/// 0.15, 0.06 (IEC 61966-2-1).
class Scale {
public:
    explicit Scale(const desktop::Picture& picture) {
        const QPolygonF& corners = find(picture, "sRGB")->points;
        unit_ = (corners[0].x() - corners[2].x()) / (0.64 - 0.15);
        origin_ = corners[2] + QPointF(-0.15, 0.06) * unit_;
        EXPECT_NEAR(corners[2].y() - corners[1].y(), (0.60 - 0.06) * unit_, 1e-6) << "as high as wide";
    }
    QPointF at(double x, double y) const { return origin_ + QPointF(x, -y) * unit_; }

private:
    double unit_ = 1;
    QPointF origin_;
};

void expectAt(const QPointF& point, const QPointF& wanted) {
    EXPECT_NEAR(point.x(), wanted.x(), 1e-6);
    EXPECT_NEAR(point.y(), wanted.y(), 1e-6);
}

struct Coordinate {
    const char* name;
    const char* words;
    double x;
    double y;
};

/// Eight bits of each in bytes 27 to 34, the two low bits of red and green in byte 25 and of blue and white in 26.
std::vector<Coordinate> coordinatesOf(const Bytes& b) {
    const auto value = [&](std::size_t high, std::size_t low, int bit) {
        return (b[high] * 4 + b.bits(low, bit + 1, bit)) / 1024.0;
    };
    return {{"red", "Red", value(27, 25, 6), value(28, 25, 4)},
            {"green", "Green", value(29, 25, 2), value(30, 25, 0)},
            {"blue", "Blue", value(31, 26, 6), value(32, 26, 4)},
            {"white", "White", value(33, 26, 2), value(34, 26, 0)}};
}

std::string legend(const Coordinate& point) {
    const auto rounded = [](double value) { return std::floor(value * 1000 + 0.5) / 1000; }; // halves up
    char text[64];
    std::snprintf(text, sizeof text, "%s %.3f, %.3f", point.words, rounded(point.x), rounded(point.y));
    return text;
}

TEST(ChromaticityPicture, HasEachPointWhereItsBytesSay) {
    forEachImage([](const Bytes& bytes) {
        const desktop::Picture picture = pictureAt(bytes, 27);
        const std::vector<Coordinate> points = coordinatesOf(bytes);
        if (points[0].x + points[1].x + points[2].x + points[3].x == 0) {
            EXPECT_EQ(find(picture, "red"), nullptr);
            return;
        }
        expectInside(picture, {500, 300});
        const Scale scale(picture);
        for (std::size_t i = 0; i < points.size(); ++i) {
            SCOPED_TRACE(points[i].name);
            const desktop::Shape* dot = find(picture, points[i].name);
            ASSERT_NE(dot, nullptr);
            expectAt(dot->points.front(), scale.at(points[i].x, points[i].y));
            EXPECT_EQ(dot->pick->control, "chkChroma");
            EXPECT_EQ(dot->pick->index, static_cast<int>(2 * i)); // Red X, Red Y, Green X and so on
            const std::string name = std::string(points[i].name) + " words";
            EXPECT_EQ(wordsOf(picture, name), legend(points[i]));
            if (i < 3) {
                expectAt(find(picture, "triangle")->points[static_cast<qsizetype>(i)], dot->points.front());
            }
        }
    });
}

TEST(ChromaticityPicture, HasTheSpectralLocus) {
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 25);
    const Scale scale(picture);
    const QPolygonF& locus = find(picture, "locus")->points;
    expectAt(locus.front(), scale.at(0.1741, 0.0050)); // 380 nm
    expectAt(locus.back(), scale.at(0.7347, 0.2653));  // 700 nm
    EXPECT_EQ(std::count(locus.begin(), locus.end(), scale.at(0.0743, 0.8338)), 1) << "520 nm, the greenest";
    // Equal energy lies inside, as do all monitors' colours; purple beyond the straight end does not.
    EXPECT_TRUE(locus.containsPoint(scale.at(1.0 / 3, 1.0 / 3), Qt::OddEvenFill));
    EXPECT_FALSE(locus.containsPoint(scale.at(0.5, 0.1), Qt::OddEvenFill));
}

TEST(ChromaticityPicture, TellsItsNumbers) {
    // 640 and 330 of 1024 steps are A3h and 54h with the low bits 11 and 10, and so on; the area follows from the
    // corners.
    const desktop::Picture picture = pictureAt(sample("zarqo-z40.bin"), 34);
    EXPECT_EQ(picture.name.toStdString(), "Chromaticity diagram");
    EXPECT_EQ(picture.description.toStdString(),
              "Red: 0.640, 0.330. Green: 0.300, 0.600. Blue: 0.150, 0.060. White: 0.313, 0.329. Area 100 % of sRGB.");
}

TEST(ChromaticityPicture, GrowsForCoordinatesThatNoColourHas) {
    Bytes bytes = sample("zarqo-z40.bin");
    bytes.set(27, 0xFF); // red x, with the low bits 1023 of 1024
    const desktop::Picture picture = pictureAt(bytes, 27);
    expectInside(picture, {500, 300});
    expectAt(find(picture, "red")->points.front(), Scale(picture).at(1023 / 1024.0, 338 / 1024.0));
}

TEST(ChromaticityPicture, IsNoneWithoutCoordinates) {
    Bytes bytes = sample("zarqo-z40.bin");
    for (std::size_t i = 25; i <= 34; ++i) {
        bytes.set(i, 0);
    }
    EXPECT_TRUE(pictureAt(bytes, 27).shapes.empty());
}

} // namespace
} // namespace wb::test
