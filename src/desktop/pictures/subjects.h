#pragma once

#include <string>

#include "desktop/pictures/painters.h"

namespace wb::desktop {

/// One kind of picture.
struct Painter {
    Picture (*draw)(const Values& values, const Canvas& canvas);
    double ratio; ///< of width to height in which it looks best
    double least; ///< height that it needs, in lines
};

/// What there is to draw about one byte of an image.
struct Subject {
    const Painter* painter;
    std::string scope; ///< of its fields

    bool operator==(const Subject& other) const = default;
};

/// The picture that goes with the field in a byte of the image; nothing where there is none. A byte of several fields
/// counts by its lowest bit.
std::optional<Subject> subjectAt(const fields::Reading& reading, std::size_t byte);

Picture draw(const Subject& subject, const fields::Reading& reading, const Canvas& canvas);

} // namespace wb::desktop
