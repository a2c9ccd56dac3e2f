#pragma once

#include <string>
#include <string_view>

namespace wb::forms {

/// Why a content is no image: where it stops being one, and what it looks like instead. One line without an end mark.
std::string refusalOf(std::string_view content, std::string_view text);

} // namespace wb::forms
