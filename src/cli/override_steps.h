#pragma once

#include <string>

namespace wb::cli {

/// What is to be overridden, in words that stand in shell commands as they are.
struct OverridePlan {
    std::string connector;  ///< as the kernel's parameters have it, "HDMI-A-1"
    std::string adapter;    ///< number of the graphics adapter; empty where it is not known
    std::string fileName;   ///< of the firmware file, without its folder
    std::string copying;    ///< the commands that put the image there, each on a line of its own
    bool installed = false; ///< the firmware file is in its place
};

/// The folder of the kernel's EDID files, below the root of the system.
inline constexpr const char* edidFirmwareFolder = "lib/firmware/edid";

/// The numbered steps that a user does to have the Linux kernel take an image for that of a connector.
std::string overrideSteps(const OverridePlan& plan);

/// A name as one word of a shell command, which is no option either.
std::string shellWord(const std::string& name);

} // namespace wb::cli
