#pragma once

#include <string>

#include "shell/image_state.h"

namespace wb::shell {

/// What of the image has changed, in words for a user: the field of the first changed byte, as the standards name it,
/// and how many more there are, such as "Width of the screen" or "Pixel clock and 3 more". The states differ beyond
/// their check sums, and both have block 0.
std::string changeName(const ImageState& before, const ImageState& after);

} // namespace wb::shell
