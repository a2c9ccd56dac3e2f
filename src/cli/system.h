#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/services.h"

namespace CLI {
class App;
}

/// The running system and its monitors; each kind of system has a file of its own.
namespace wb::cli {

struct SystemOptions {
    std::string sysfs = "/sys"; ///< only where there is such a folder
};

/// The options that tell where the system keeps its monitors, where a user can say so.
void addSystemOptions(CLI::App& command, SystemOptions& options);

/// The registry tree that holds the stored EDIDs. A folder that is not there is a CliError, as below.
std::unique_ptr<platform::Registry> systemRegistry(const SystemOptions& options);

struct Monitor {
    std::string name;
    std::string source;    ///< where its EDID comes from
    std::size_t bytes = 0; ///< length of the EDID, 0 where there is none
};

/// The attached monitors, in the order in which the search for a stored EDID meets them.
std::vector<Monitor> attachedMonitors(const SystemOptions& options);

} // namespace wb::cli
