#include "cli/monitor_list.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "core/base/image.h"
#include "fields/json.h"
#include "fields/reading.h"
#include "fields/words.h"

namespace wb::cli {

namespace {

bool isNotPermitted(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted;
}

std::string_view stateName(const Monitor& monitor) {
    if (!monitor.error) {
        return monitor.edid.empty() ? "none" : "stored";
    }
    return isNotPermitted(monitor.error) ? "not permitted" : "unreadable";
}

/// The summary of what has the header of an EDID; nothing of anything else.
std::optional<fields::Summary> summaryOf(const std::string& edid) {
    const std::optional<Image> image = Image::fromBytes(edid);
    return image && image->hasHeader() ? std::optional(fields::read(*image).summary) : std::nullopt;
}

std::string rateText(std::int64_t milliHertz) {
    const int decimals = milliHertz % 1000 == 0 ? 0 : 2;
    return fields::withUnit(fields::decimalText(static_cast<double>(milliHertz) / 1000, decimals), "Hz");
}

std::string modeText(const fields::Mode& mode) {
    std::string text = std::to_string(mode.width);
    text += 'x';
    text += std::to_string(mode.height);
    text += mode.interlaced.value_or(false) ? " interlaced" : "";
    return mode.refreshMilliHertz ? text + " at " + rateText(*mode.refreshMilliHertz) : text;
}

std::string modelText(const fields::Summary& summary) {
    if (summary.name && !summary.name->empty()) {
        return *summary.name;
    }
    return summary.productCode ? "product " + std::to_string(*summary.productCode) : "";
}

} // namespace

std::vector<Monitor> attachedMonitors(const SystemOptions& options) {
    std::vector<Monitor> monitors = monitorPlaces(options);
    std::erase_if(monitors, [](const Monitor& monitor) { return !monitor.attached; });
    return monitors;
}

const Monitor* takenByRead(const std::vector<Monitor>& attached) {
    const auto found = std::find_if(attached.begin(), attached.end(), [](const Monitor& monitor) {
        return !monitor.isVirtual && monitor.edid.size() >= Image::blockSize;
    });
    return found == attached.end() ? nullptr : &*found;
}

std::string storedWords(const Monitor& monitor) {
    if (isNotPermitted(monitor.error)) {
        return "not permitted";
    }
    if (monitor.error) {
        return "cannot be read: " + monitor.error.message();
    }
    return monitor.edid.empty() ? "no EDID" : std::to_string(monitor.edid.size()) + " bytes";
}

std::string edidWords(const std::string& edid) {
    if (edid.empty()) {
        return "";
    }
    if (edid.size() < Image::blockSize) {
        return "less than a block";
    }
    const std::optional<fields::Summary> summary = summaryOf(edid);
    if (!summary) {
        return "without the header of an EDID";
    }
    std::string words = summary->maker;
    words += words.empty() ? "" : " ";
    words += modelText(*summary);
    if (summary->preferredMode) {
        words += words.empty() ? "" : ", ";
        words += modeText(*summary->preferredMode);
    }
    return words;
}

std::string monitorLine(const Monitor& monitor, bool taken) {
    std::string line = monitor.name + ": " + monitor.source + ", " + storedWords(monitor);
    if (const std::string words = edidWords(monitor.edid); !words.empty()) {
        line += ", " + words;
    }
    return line + (taken ? ", taken by read" : "");
}

std::string monitorJson(const Monitor& monitor, bool taken, std::string_view event) {
    const fields::Summary summary = summaryOf(monitor.edid).value_or(fields::Summary{});
    JsonWriter json;
    json.beginObject().member("schema", fields::jsonSchema);
    if (!event.empty()) {
        json.member("event", event);
    }
    json.member("connector", monitor.name).member("source", monitor.source);
    json.member("state", stateName(monitor)).member("bytes", monitor.edid.size());
    json.key("maker");
    summary.maker.empty() ? json.null() : json.value(summary.maker);
    json.member("product_code", summary.productCode).member("name", summary.name);
    fields::writeMode(json.key("preferred_mode"), summary.preferredMode);
    return json.member("taken_by_read", taken).endObject().text();
}

} // namespace wb::cli
