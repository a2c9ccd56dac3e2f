#pragma once

#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "platform/ddc_bus.h"
#include "platform/services.h"

/// The running system and its monitors; each kind of system has a file of its own.
namespace wb::cli {

class Syntax;

struct SystemOptions {
    std::string sysfs = "/sys"; ///< only where there is such a folder
};

/// The options that tell where the system keeps its monitors, where a user can say so.
void addSystemOptions(Syntax& syntax, SystemOptions& options);

/// The registry tree that holds the stored EDIDs. A folder that is not there is a CliError, as below.
std::unique_ptr<platform::Registry> systemRegistry(const SystemOptions& options);

/// A place where a monitor is or can be attached.
struct Monitor {
    std::string name;
    std::string source; ///< where its EDID comes from
    bool attached = true;
    bool isVirtual = false;  ///< one that the search for a stored EDID never takes
    std::string edid{};      ///< empty where none is stored, and where it cannot be read
    std::error_code error{}; ///< why it cannot be read
};

/// All places, in the order in which the search for a stored EDID meets them.
std::vector<Monitor> monitorPlaces(const SystemOptions& options);

/// What keeps the system's monitors from being known, a sentence each; none where all is told.
std::vector<std::string> obstaclesOf(const SystemOptions& options);

/// A line that helps further where no attached monitor has an EDID, or where none is attached; empty where the
/// program's own box does.
std::string helpWithoutEdid(const SystemOptions& options, bool anyAttached);

/// The wires to a monitor, by the name of their device. A failure is a std::system_error; where the system has no such
/// devices it is a CliError.
std::unique_ptr<platform::DdcBus> openBus(const std::string& device);

} // namespace wb::cli
