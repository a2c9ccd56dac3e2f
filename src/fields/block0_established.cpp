#include <array>

#include "fields/block0_parts.h"
#include "fields/mode_flags.h"

namespace wb::fields {

namespace {

/// VESA E-EDID Standard, Release A, section 3.8: bytes 35, 36 and the highest bit of 37.
constexpr std::array<ModeFlag, 17> modes = {{
    {"720x400_70", "720 x 400 at 70 Hz", 720, 400, 70},
    {"720x400_88", "720 x 400 at 88 Hz", 720, 400, 88},
    {"640x480_60", "640 x 480 at 60 Hz", 640, 480, 60},
    {"640x480_67", "640 x 480 at 67 Hz", 640, 480, 67},
    {"640x480_72", "640 x 480 at 72 Hz", 640, 480, 72},
    {"640x480_75", "640 x 480 at 75 Hz", 640, 480, 75},
    {"800x600_56", "800 x 600 at 56 Hz", 800, 600, 56},
    {"800x600_60", "800 x 600 at 60 Hz", 800, 600, 60},
    {"800x600_72", "800 x 600 at 72 Hz", 800, 600, 72},
    {"800x600_75", "800 x 600 at 75 Hz", 800, 600, 75},
    {"832x624_75", "832 x 624 at 75 Hz", 832, 624, 75},
    {"1024x768i_87", "1024 x 768 at 87 Hz, interlaced", 1024, 768, 87, true},
    {"1024x768_60", "1024 x 768 at 60 Hz", 1024, 768, 60},
    {"1024x768_70", "1024 x 768 at 70 Hz", 1024, 768, 70},
    {"1024x768_75", "1024 x 768 at 75 Hz", 1024, 768, 75},
    {"1280x1024_75", "1280 x 1024 at 75 Hz", 1280, 1024, 75},
    {"1152x870_75", "1152 x 870 at 75 Hz", 1152, 870, 75},
}};

struct ManufacturersFlag {
    std::string_view name;
    std::string_view label;
};

/// The other bits of byte 37, from bit 6 down.
constexpr std::array<ManufacturersFlag, 7> manufacturersFlags = {{{"manufacturer_6", "Manufacturer's timing, bit 6"},
                                                                  {"manufacturer_5", "Manufacturer's timing, bit 5"},
                                                                  {"manufacturer_4", "Manufacturer's timing, bit 4"},
                                                                  {"manufacturer_3", "Manufacturer's timing, bit 3"},
                                                                  {"manufacturer_2", "Manufacturer's timing, bit 2"},
                                                                  {"manufacturer_1", "Manufacturer's timing, bit 1"},
                                                                  {"manufacturer_0", "Manufacturer's timing, bit 0"}}};

} // namespace

void readEstablishedTimings(const Scope& base) {
    const Scope scope = base.inner(cells::establishedTimings1, "established", "E-EDID 1.4, 3.8");
    readModeFlags(scope, modes);
    for (std::size_t i = 0; i < manufacturersFlags.size(); ++i) {
        const auto& [name, label] = manufacturersFlags[i];
        const auto bit = static_cast<std::uint8_t>(6 - i);
        scope.add({.name = name, .label = label, .parts = {{2, bit, bit}}, .kind = Kind::Flag});
    }
}

} // namespace wb::fields
