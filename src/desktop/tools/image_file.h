#pragma once

#include <QString>
#include <string>
#include <vector>

#include "core/base/image.h"

namespace wb::desktop {

/// The images of a file, in whatever form it has them.
struct ImageFile {
    std::vector<Image> images{};
    QString refusal{}; ///< a sentence that says why there is no image; empty where there is one
};

/// Reads a file of that name, in the bytes of the system, and recognises what it holds.
ImageFile readImageFile(const std::string& name);

} // namespace wb::desktop
