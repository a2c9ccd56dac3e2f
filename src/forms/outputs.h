#pragma once

#include <string>
#include <string_view>

namespace wb::forms {

/// The name of the output, such as "HDMI-1", that the text in front of an image names last, as the tools that list
/// monitors, the kernel's log and X servers do. Empty where it names none.
std::string outputBefore(std::string_view text);

} // namespace wb::forms
