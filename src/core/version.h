#pragma once

namespace wb {

/// The version of the program as "major.minor.revision", each in decimal.
const char* programVersion() noexcept;

} // namespace wb
