#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wb::fields {

enum class ModeSource { Established, Standard, Detailed, Video };

/// A picture format that the image names. What its source does not tell is empty.
struct Mode {
    ModeSource source;
    int width = 0;  ///< px
    int height = 0; ///< lines of a whole picture, both fields of an interlaced one
    std::optional<bool> interlaced{};
    std::optional<std::int64_t> refreshMilliHertz{}; ///< pictures a second, of interlaced ones fields a second
    std::optional<std::int64_t> pixelClockKilohertz{};
    std::optional<int> horizontalTotal{};
    std::optional<int> verticalTotal{}; ///< lines of a whole picture
    bool native = false;
};

struct AudioFormat {
    std::string_view format;
    int channels = 0;
    std::vector<double> ratesKilohertz{};
};

struct RangeLimits {
    int minVerticalHertz = 0;
    int maxVerticalHertz = 0;
    int minHorizontalKilohertz = 0;
    int maxHorizontalKilohertz = 0;
    std::optional<double> maxClockMegahertz{};
};

struct HdmiSummary {
    std::string physicalAddress{}; ///< "1.0.0.0"
    std::optional<int> maxTmdsClockMegahertz{};
    bool forum = false; ///< has a block of the HDMI Forum (HDMI 2.0 and later)
};

struct Point {
    double x = 0;
    double y = 0;
};

/// What most readers want of an image, in one place. What the image does not tell is empty.
struct Summary {
    std::string version{}; ///< "1.4"
    std::string maker{};   ///< three letters
    std::optional<std::int64_t> productCode{};
    std::optional<std::int64_t> serialNumber{}; ///< empty where it is 0, which means "none"
    std::optional<std::string> serialText{};
    std::optional<std::string> name{};
    std::optional<int> week{};
    std::optional<int> year{};      ///< of manufacture
    std::optional<int> modelYear{}; ///< where the image tells that one instead
    bool digital = false;
    std::optional<std::string_view> videoInterface{};
    std::optional<int> bitsPerColor{};
    std::optional<int> widthMillimetres{};
    std::optional<int> heightMillimetres{};
    std::optional<double> diagonalInches{};
    std::optional<double> gamma{};
    std::optional<std::array<Point, 4>> primaries{}; ///< red, green, blue, white (CIE 1931 x, y)
    std::optional<RangeLimits> range{};
    std::optional<Mode> preferredMode{};
    std::vector<Mode> modes{};
    std::vector<AudioFormat> audio{};
    std::vector<std::string_view> speakers{};
    std::optional<HdmiSummary> hdmi{};
    std::vector<std::string_view> hdr{};         ///< transfer functions that the monitor takes
    std::vector<std::string_view> colorimetry{}; ///< spaces that it takes
    std::vector<std::string_view> extensions{};  ///< names of the blocks after block 0
    bool sumsOk = false;                         ///< every block that is there sums up to 0
};

} // namespace wb::fields
