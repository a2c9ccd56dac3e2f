#pragma once

#include <string>

#include "fields/reading.h"

namespace wb::fields {

/// A reading as one JSON object on one line, in the schema of docs/edidwb-inspect.schema.json.
std::string toJson(const Reading& reading);

/// The summary alone, with the findings counted by severity.
std::string summaryToJson(const Reading& reading);

/// Version of the schema: raised where a member is taken away or changes its meaning.
inline constexpr int jsonSchema = 1;

} // namespace wb::fields
