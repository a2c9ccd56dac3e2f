#pragma once

#include <string>
#include <string_view>

#include "platform/headless/registry_tree.h"

namespace wb::test {

inline const std::string displayKey = "SYSTEM\\CurrentControlSet\\Enum\\Display";

/// An instance of a monitor as the operating system keeps it, with the stored EDID; in use where it has a control key.
inline std::string addMonitor(platform::headless::RegistryTree& registry, const std::string& model,
                              const std::string& edid, bool inUse = true) {
    const std::string instance = displayKey + "\\" + model + "\\4&1";
    if (inUse) {
        registry.addKey(instance + "\\Control");
    }
    registry.setValue(instance + "\\Device Parameters",
                      {.name = "EDID", .type = platform::RegistryType::Binary, .data = edid});
    return instance;
}

/// Block 0 with the header, byte 8 (the first of the manufacturer) as marker, the extension count, and a check sum.
inline std::string block0(char marker = '\x04', char extensions = '\0') {
    std::string block(128, '\0');
    block.replace(1, 6, 6, '\xFF');
    block[8] = marker;
    block[126] = extensions;
    unsigned sum = 0;
    for (const char c : block) {
        sum += static_cast<unsigned char>(c);
    }
    block[127] = static_cast<char>(256 - sum % 256);
    return block;
}

} // namespace wb::test
