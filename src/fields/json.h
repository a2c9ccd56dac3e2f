#pragma once

#include <optional>
#include <span>
#include <string>

#include "core/base/json_writer.h"
#include "fields/reading.h"

namespace wb::fields {

/// A reading as one JSON object on one line, in the schema of docs/edidwb.schema.json.
std::string toJson(const Reading& reading);

/// The blocks of a reading and those of its findings that are given, in the same members.
std::string findingsToJson(const Reading& reading, std::span<const Finding> findings);

/// The summary alone, with the findings counted by severity.
std::string summaryToJson(const Reading& reading);

/// The value of a field as its member "value" has it.
void writeValue(JsonWriter& json, const Value& value);

/// A mode as the summary has it; null where there is none.
void writeMode(JsonWriter& json, const std::optional<Mode>& mode);

/// Version of the schema: raised where a member is taken away or changes its meaning.
inline constexpr int jsonSchema = 1;

} // namespace wb::fields
