#pragma once

#include "fields/reading.h"

namespace wb::fields {

/// What holds of every reading, whatever the image: each bit in exactly one field, fields in order, paths without
/// doubles, numbers that can be turned back into their bits, findings with a place, which is in their field. Fails the
/// running test where it does not.
void expectInvariants(const Reading& reading);

} // namespace wb::fields
