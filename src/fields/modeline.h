#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

/// Timings as display servers and their tools write them.
namespace wb::fields {

/// One direction of a timing, counted from the first pixel or line of the picture: the picture ends at `active`, then
/// come front porch, sync pulse and back porch.
struct ModelineAxis {
    int active = 0;
    int syncStart = 0;
    int syncEnd = 0;
    int total = 0;
    bool positiveSync = false;

    bool operator==(const ModelineAxis&) const = default;
};

struct Modeline {
    std::string name{}; ///< may be empty
    std::int64_t clockKilohertz = 0;
    ModelineAxis horizontal{}; ///< px
    ModelineAxis vertical{};   ///< lines of a whole picture, both fields of an interlaced one
    bool interlaced = false;

    bool operator==(const Modeline&) const = default;
};

/// Why there is no timing; one sentence without an end mark.
class ModelineError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The line as the tool `cvt` prints it and a configuration of the X server takes it:
///     Modeline "1920x1080R"  138.50  1920 1968 2000 2080  1080 1083 1088 1111 +hsync -vsync
/// Megahertz have two decimals, or three where they need them. There is no line end.
std::string modelineText(const Modeline& modeline);

/// The timing that a text spells: the line above, with or without the word and the name in front, lines of a comment
/// (#) around it; or the three lines of a mode in the output of `xrandr --verbose`. Letter case does not count. Its
/// numbers are whole and in their order, from 1 to 65535, and both polarities are told; anything else is a
/// ModelineError.
Modeline readModeline(std::string_view text);

} // namespace wb::fields
