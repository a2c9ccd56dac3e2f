// Every bit that stands for a timing: the tables of the standard, each timing tried alone.

#include <gtest/gtest.h>

#include <array>

#include "good_image.h"

namespace wb::fields {
namespace {

enum class Form { Plain, Reduced, Interlaced };

struct Timing {
    int width;
    int height;
    int hertz;
    Form form = Form::Plain;

    std::string name() const {
        return std::to_string(width) + 'x' + std::to_string(height) + (form == Form::Interlaced ? "i_" : "_") +
               std::to_string(hertz) + (form == Form::Reduced ? "_rb" : "");
    }
    std::string label() const {
        return std::to_string(width) + " x " + std::to_string(height) + " at " + std::to_string(hertz) + " Hz" +
               (form == Form::Reduced      ? ", reduced blanking"
                : form == Form::Interlaced ? ", interlaced"
                                           : "");
    }
    std::string mode() const {
        return std::to_string(width) + 'x' + std::to_string(height) + (form == Form::Interlaced ? "i@" : "@") +
               std::to_string(hertz * 1000);
    }
};

/// VESA E-EDID Standard, Release A, section 3.8: bytes 35 to 37, from the highest bit of a byte down.
constexpr std::array established = {
    Timing{720, 400, 70}, // byte 35
    Timing{720, 400, 88},   Timing{640, 480, 60},  Timing{640, 480, 67},
    Timing{640, 480, 72},   Timing{640, 480, 75},  Timing{800, 600, 56},
    Timing{800, 600, 60},   Timing{800, 600, 72}, // byte 36
    Timing{800, 600, 75},   Timing{832, 624, 75},  Timing{1024, 768, 87, Form::Interlaced},
    Timing{1024, 768, 60},  Timing{1024, 768, 70}, Timing{1024, 768, 75},
    Timing{1280, 1024, 75}, Timing{1152, 870, 75}, // byte 37
};

/// Section 3.10.3.9: bytes 6 to 11 of the descriptor of established timings III.
constexpr std::array moreEstablished = {
    Timing{640, 350, 85}, // byte 6
    Timing{640, 400, 85},
    Timing{720, 400, 85},
    Timing{640, 480, 85},
    Timing{848, 480, 60},
    Timing{800, 600, 85},
    Timing{1024, 768, 85},
    Timing{1152, 864, 75},
    Timing{1280, 768, 60, Form::Reduced}, // byte 7
    Timing{1280, 768, 60},
    Timing{1280, 768, 75},
    Timing{1280, 768, 85},
    Timing{1280, 960, 60},
    Timing{1280, 960, 85},
    Timing{1280, 1024, 60},
    Timing{1280, 1024, 85},
    Timing{1360, 768, 60}, // byte 8
    Timing{1440, 900, 60, Form::Reduced},
    Timing{1440, 900, 60},
    Timing{1440, 900, 75},
    Timing{1440, 900, 85},
    Timing{1400, 1050, 60, Form::Reduced},
    Timing{1400, 1050, 60},
    Timing{1400, 1050, 75},
    Timing{1400, 1050, 85}, // byte 9
    Timing{1680, 1050, 60, Form::Reduced},
    Timing{1680, 1050, 60},
    Timing{1680, 1050, 75},
    Timing{1680, 1050, 85},
    Timing{1600, 1200, 60},
    Timing{1600, 1200, 65},
    Timing{1600, 1200, 70},
    Timing{1600, 1200, 75}, // byte 10
    Timing{1600, 1200, 85},
    Timing{1792, 1344, 60},
    Timing{1792, 1344, 75},
    Timing{1856, 1392, 60},
    Timing{1856, 1392, 75},
    Timing{1920, 1200, 60, Form::Reduced},
    Timing{1920, 1200, 60},
    Timing{1920, 1200, 75}, // byte 11
    Timing{1920, 1200, 85},
    Timing{1920, 1440, 60},
    Timing{1920, 1440, 75},
};

/// The labels of the flags below the path that are set.
std::vector<std::string> labelsSet(const Reading& reading, const std::string& path) {
    std::vector<std::string> labels;
    for (const Field& field : reading.fields) {
        if (field.path.starts_with(path) && field.value == Value(true)) {
            labels.emplace_back(field.label);
        }
    }
    return labels;
}

/// An image whose flags begin at the byte `place`, without any of them and without other modes.
void expectAFlagATiming(const ImageOf& image, std::size_t place, const std::string& path,
                        std::span<const Timing> timings) {
    EXPECT_EQ(modesOf(image.reading()), Modes{});
    for (std::size_t i = 0; i < timings.size(); ++i) {
        const Timing& timing = timings[i];
        SCOPED_TRACE(timing.label());
        const Reading reading = ImageOf(image).set(place + i / 8, {0x80 >> i % 8}).reading();
        EXPECT_EQ(fieldOf(reading, path + timing.name()).value, Value(true));
        EXPECT_EQ(labelsSet(reading, path), std::vector{timing.label()});
        EXPECT_EQ(modesOf(reading), Modes{timing.mode()});
    }
}

/// goodImage without a standard and a detailed timing.
ImageOf withoutTimings() {
    return goodImage().set(38, {1, 1}).set(54, {0, 0, 0, 0x10});
}

TEST(ModeFlags, AreTheEstablishedTimingsOfTheStandard) {
    expectAFlagATiming(withoutTimings(), 35, "base.established.", established);
}

TEST(ModeFlags, AreTheFurtherEstablishedTimingsOfTheStandard) {
    expectAFlagATiming(withoutTimings().set(108, {0, 0, 0, 0xF7, 0, 10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}), 114,
                       "base.descriptor[4].established.", moreEstablished);
}

TEST(ModeFlags, LeaveTheOtherBitsToTheManufacturer) {
    for (int bit = 0; bit < 7; ++bit) {
        SCOPED_TRACE(bit);
        const Reading reading = withoutTimings().set(37, {1 << bit}).reading();
        EXPECT_EQ(labelsSet(reading, "base.established."),
                  std::vector{"Manufacturer's timing, bit " + std::to_string(bit)});
        EXPECT_EQ(fieldOf(reading, "base.established.manufacturer_" + std::to_string(bit)).value, Value(true));
        EXPECT_EQ(modesOf(reading), Modes{});
    }
}

} // namespace
} // namespace wb::fields
