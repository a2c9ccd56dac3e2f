#pragma once

#include <string_view>
#include <vector>

namespace wb::platform {

/// The names of the keys along a path, whose separators are backslashes; empty names do not count.
std::vector<std::string_view> registryPathParts(std::string_view path);

} // namespace wb::platform
