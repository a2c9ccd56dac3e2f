#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/rewrite.h"
#include "fields/modeline.h"

/// What the command "set" puts into an image.
namespace wb::cli {

/// A timing for one of the four slots of block 0, counted from 1.
struct SlotTiming {
    int slot = 1;
    fields::Modeline modeline; ///< one that fits
};

/// What is not told stays.
struct ImageSettings {
    std::optional<std::string> maker{};
    std::optional<std::uint16_t> product{};
    std::optional<std::uint32_t> serial{};
    std::optional<std::uint8_t> week{};
    std::optional<std::uint16_t> year{};
    std::optional<std::string> name{};
    std::vector<SlotTiming> timings{}; ///< of different slots
};

/// The image with the settings, entered as a user does. What a box refuses, what has no room, and what the image does
/// not tell afterwards as it was asked for is a CliError.
Change withSettings(const Image& image, const ImageSettings& settings);

/// The same for an image of one block that begins with what the command New gives. The settings have a maker and a
/// timing for slot 1. What they leave out becomes that of a digital sRGB monitor of this year by EDID 1.4, whose name
/// is made up of maker and product code.
Change newImage(const ImageSettings& settings);

} // namespace wb::cli
