#pragma once

namespace wb {

// Codes of the keys that do something by themselves; as characters and as keys they are the same.
inline constexpr int backspaceKey = 8;
inline constexpr int enterKey = 13;

} // namespace wb
