#include <array>

#include "fields/cvt_code.h"
#include "fields/descriptors.h"
#include "fields/mode_flags.h"
#include "fields/standard_timing.h"

namespace wb::fields {

namespace {

/// VESA E-EDID Standard, Release A, section 3.10.3.9: bytes 6 to 11 of the descriptor.
constexpr std::array<ModeFlag, 44> moreModes = {{
    {"640x350_85", "640 x 350 at 85 Hz", 640, 350, 85},
    {"640x400_85", "640 x 400 at 85 Hz", 640, 400, 85},
    {"720x400_85", "720 x 400 at 85 Hz", 720, 400, 85},
    {"640x480_85", "640 x 480 at 85 Hz", 640, 480, 85},
    {"848x480_60", "848 x 480 at 60 Hz", 848, 480, 60},
    {"800x600_85", "800 x 600 at 85 Hz", 800, 600, 85},
    {"1024x768_85", "1024 x 768 at 85 Hz", 1024, 768, 85},
    {"1152x864_75", "1152 x 864 at 75 Hz", 1152, 864, 75},
    {"1280x768_60_rb", "1280 x 768 at 60 Hz, reduced blanking", 1280, 768, 60},
    {"1280x768_60", "1280 x 768 at 60 Hz", 1280, 768, 60},
    {"1280x768_75", "1280 x 768 at 75 Hz", 1280, 768, 75},
    {"1280x768_85", "1280 x 768 at 85 Hz", 1280, 768, 85},
    {"1280x960_60", "1280 x 960 at 60 Hz", 1280, 960, 60},
    {"1280x960_85", "1280 x 960 at 85 Hz", 1280, 960, 85},
    {"1280x1024_60", "1280 x 1024 at 60 Hz", 1280, 1024, 60},
    {"1280x1024_85", "1280 x 1024 at 85 Hz", 1280, 1024, 85},
    {"1360x768_60", "1360 x 768 at 60 Hz", 1360, 768, 60},
    {"1440x900_60_rb", "1440 x 900 at 60 Hz, reduced blanking", 1440, 900, 60},
    {"1440x900_60", "1440 x 900 at 60 Hz", 1440, 900, 60},
    {"1440x900_75", "1440 x 900 at 75 Hz", 1440, 900, 75},
    {"1440x900_85", "1440 x 900 at 85 Hz", 1440, 900, 85},
    {"1400x1050_60_rb", "1400 x 1050 at 60 Hz, reduced blanking", 1400, 1050, 60},
    {"1400x1050_60", "1400 x 1050 at 60 Hz", 1400, 1050, 60},
    {"1400x1050_75", "1400 x 1050 at 75 Hz", 1400, 1050, 75},
    {"1400x1050_85", "1400 x 1050 at 85 Hz", 1400, 1050, 85},
    {"1680x1050_60_rb", "1680 x 1050 at 60 Hz, reduced blanking", 1680, 1050, 60},
    {"1680x1050_60", "1680 x 1050 at 60 Hz", 1680, 1050, 60},
    {"1680x1050_75", "1680 x 1050 at 75 Hz", 1680, 1050, 75},
    {"1680x1050_85", "1680 x 1050 at 85 Hz", 1680, 1050, 85},
    {"1600x1200_60", "1600 x 1200 at 60 Hz", 1600, 1200, 60},
    {"1600x1200_65", "1600 x 1200 at 65 Hz", 1600, 1200, 65},
    {"1600x1200_70", "1600 x 1200 at 70 Hz", 1600, 1200, 70},
    {"1600x1200_75", "1600 x 1200 at 75 Hz", 1600, 1200, 75},
    {"1600x1200_85", "1600 x 1200 at 85 Hz", 1600, 1200, 85},
    {"1792x1344_60", "1792 x 1344 at 60 Hz", 1792, 1344, 60},
    {"1792x1344_75", "1792 x 1344 at 75 Hz", 1792, 1344, 75},
    {"1856x1392_60", "1856 x 1392 at 60 Hz", 1856, 1392, 60},
    {"1856x1392_75", "1856 x 1392 at 75 Hz", 1856, 1392, 75},
    {"1920x1200_60_rb", "1920 x 1200 at 60 Hz, reduced blanking", 1920, 1200, 60},
    {"1920x1200_60", "1920 x 1200 at 60 Hz", 1920, 1200, 60},
    {"1920x1200_75", "1920 x 1200 at 75 Hz", 1920, 1200, 75},
    {"1920x1200_85", "1920 x 1200 at 85 Hz", 1920, 1200, 85},
    {"1920x1440_60", "1920 x 1440 at 60 Hz", 1920, 1440, 60},
    {"1920x1440_75", "1920 x 1440 at 75 Hz", 1920, 1440, 75},
}};

} // namespace

void readMoreStandardTimings(const Scope& slot, int revision) {
    constexpr std::size_t timings = 6;
    for (std::size_t i = 0; i < timings; ++i) {
        readStandardTiming(slot.inner(5 + standardTimingSize * i, numbered("standard", i + 1)), revision);
    }
    readDescriptorPadding(slot, 17);
}

void readCvtCodes(const Scope& slot, int /*revision*/) {
    readDescriptorVersion(slot, 1);
    constexpr std::size_t codes = 4;
    for (std::size_t i = 0; i < codes; ++i) {
        readCvtCode(slot.inner(6 + cvtCodeSize * i, numbered("cvt", i + 1)));
    }
}

void readMoreEstablishedTimings(const Scope& slot, int /*revision*/) {
    readDescriptorVersion(slot, 10);
    readModeFlags(slot.inner(6, "established"), moreModes);
    slot.add(reservedAt(11, 3, 0, "reserved_11"));
    slot.addBytes(12, detailedBlockSize, "reserved_12", "Reserved", Kind::Reserved);
}

} // namespace wb::fields
