#include "cli/stored_edid.h"

#include <functional>

#include "cli/cli_error.h"
#include "cli/monitor_list.h"
#include "cli/output.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

using Places = std::vector<const Monitor*>;

Places placesThat(const std::vector<Monitor>& places, const std::function<bool(const std::string& name)>& match) {
    Places found;
    for (const Monitor& place : places) {
        if (match(place.name)) {
            found.push_back(&place);
        }
    }
    return found;
}

std::string namesOf(const Places& places) {
    std::string names;
    for (const Monitor* const place : places) {
        names += names.empty() ? "" : ", ";
        names += place->name;
    }
    return names;
}

/// From the strictest to the loosest way of meaning a name.
Places meantBy(const std::vector<Monitor>& places, std::string_view name) {
    const std::string upper = upperCase(name);
    Places found = placesThat(places, [&](const std::string& known) { return known == name; });
    if (found.empty()) {
        found = placesThat(places, [&](const std::string& known) { return upperCase(known) == upper; });
    }
    if (found.empty()) {
        found = placesThat(places, [&](const std::string& known) { return upperCase(withoutAdapter(known)) == upper; });
    }
    return found;
}

} // namespace

std::string_view withoutAdapter(std::string_view connector) {
    constexpr std::string_view adapter = "card";
    const std::size_t end = connector.find_first_not_of("0123456789", adapter.size());
    const bool has = connector.starts_with(adapter) && end != adapter.size() && end != std::string_view::npos &&
                     connector[end] == '-';
    return has ? connector.substr(end + 1) : connector;
}

const Monitor* findMonitor(const std::vector<Monitor>& places, std::string_view name) {
    const Places found = meantBy(places, name);
    if (found.size() > 1) {
        throw CliError("may be any of " + namesOf(found));
    }
    return found.empty() ? nullptr : found.front();
}

const Monitor& monitorNamed(const std::vector<Monitor>& places, std::string_view name) {
    const Monitor* const found = findMonitor(places, name);
    if (found == nullptr) {
        const std::string names = namesOf(placesThat(places, [](const std::string&) { return true; }));
        throw CliError("no connector has this name" + (names.empty() ? ", and no other" : "; there are " + names));
    }
    return *found;
}

Image storedImageOf(const Monitor& monitor) {
    if (monitor.error) {
        throw CliError(storedWords(monitor));
    }
    if (monitor.edid.empty()) {
        throw CliError(monitor.attached ? "no EDID is stored" : "no monitor is attached, and no EDID is stored");
    }
    if (std::optional<Image> image = Image::fromBytes(monitor.edid)) {
        return *std::move(image);
    }
    throw CliError("the stored EDID is no image: it has " + std::to_string(monitor.edid.size()) + " bytes");
}

bool complainOfObstacles(const SystemOptions& options) {
    const std::vector<std::string> obstacles = obstaclesOf(options);
    for (const std::string& obstacle : obstacles) {
        complain(obstacle);
    }
    return obstacles.empty();
}

} // namespace wb::cli
