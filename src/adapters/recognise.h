#pragma once

#include <string_view>

#include "forms/recogniser.h"

namespace wb::adapters {

/// forms::recognise, which takes content compressed by gzip too.
forms::Recognition recognise(std::string_view content, forms::RecognitionOptions options = {});

} // namespace wb::adapters
