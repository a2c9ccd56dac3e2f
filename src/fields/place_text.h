#pragma once

#include <string>

#include "fields/field.h"

namespace wb::fields {

/// Where a field stands: bytes in hexadecimal, "08", "5F-6B", with the bits where they are not all of a byte,
/// "17[4:3]", and a plus between the parts, the highest of the value first.
std::string placeText(const Where& where);

} // namespace wb::fields
