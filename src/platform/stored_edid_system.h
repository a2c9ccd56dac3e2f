#pragma once

#include "platform/services.h"

namespace wb::platform {

/// The registry tree holds the stored EDIDs, which is what the program takes from the major version.
class StoredEdidSystem : public OperatingSystem {
public:
    int majorVersion() const override { return registryMajorVersion; }
};

/// There is no direct access to a monitor; as the major version is 5, nothing asks for it.
class NoDirectReader : public DirectEdidReader {
public:
    std::string read(const std::string&) override { return {}; }
};

} // namespace wb::platform
