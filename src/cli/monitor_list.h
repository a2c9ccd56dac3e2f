#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/system.h"

/// What is told of the monitors of the running system.
namespace wb::cli {

/// Those to which a monitor is attached.
std::vector<Monitor> attachedMonitors(const SystemOptions& options);

/// The first that has a whole block of an EDID and is no virtual one, which is what "read" takes; null where none has.
const Monitor* takenByRead(const std::vector<Monitor>& attached);

/// What is stored of a monitor: "256 bytes", "no EDID", "not permitted" or "cannot be read: REASON".
std::string storedWords(const Monitor& monitor);

/// The maker, model and preferred mode that an EDID tells, such as "ABC Desk 3, 1920x1080 at 60 Hz"; why it is none
/// where it tells nothing. Empty for an empty one.
std::string edidWords(const std::string& edid);

/// A line for people, without its end: name, source, what is stored and what that tells.
std::string monitorLine(const Monitor& monitor, bool taken);

/// One JSON object, in the schema of docs/edidwb.schema.json. `event` is what happened to the monitor; empty: nothing.
std::string monitorJson(const Monitor& monitor, bool taken, std::string_view event = {});

} // namespace wb::cli
