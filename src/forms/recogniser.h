#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/image.h"

/// The forms in which people have images: what a file holds is told by its content, never by its name.
namespace wb::forms {

/// Uncompresses the content of a gzip file; nothing where it is none or damaged. What is too large is a
/// files::InputError.
using Inflate = std::function<std::optional<std::string>(std::string_view)>;

struct RecognitionOptions {
    /// Takes images without the eight bytes of the header too, where nothing else speaks against them.
    bool anyHeader = false;
    /// The one form to be taken, of formNames(); empty: the strictest that gives an image.
    std::string form;
    /// Without it compressed content is refused.
    Inflate inflate;
};

struct Recognition {
    /// In the order of the text. Each tells its form and, where the text names one, its output.
    std::vector<Image> images;
    /// The content is a data file, whose cells need not be an image.
    bool isDataFile = false;
    /// What was in compressed content.
    std::optional<std::string> uncompressed{};
    /// Where there is no image: what was seen instead, such as "line 3: 'EDID:' is no hexadecimal pair".
    std::string refusal{};
};

/// The names of the forms that are recognised, from the strictest to the loosest: "gzip", "bin", "dat" (data file),
/// "base64", "decimal" (lists of decimal numbers, as in JSON), "string" (literals with escapes, as in C and Python),
/// "dump" (lines with offsets, with or without a text column), "hex" (hexadecimal bytes in any dress, alone or inside
/// longer texts).
std::vector<std::string> formNames();

/// The images that a content holds. Tries the forms from the strictest to the loosest and takes the first that gives
/// whole blocks with a header. Takes time in proportion to the length.
Recognition recognise(std::string_view content, const RecognitionOptions& options = {});

} // namespace wb::forms
