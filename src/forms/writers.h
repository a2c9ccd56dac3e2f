#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/base/image.h"

namespace wb::forms {

/// A form of bytes that an image can be written in. Each is read back to the same bytes where the image begins with the
/// header and no block behind those that it announces holds one, which rows would show as another image. Without the
/// header "bin" and "hex" alone are read back, and where any header is taken only.
struct WrittenForm {
    std::string_view name; ///< as in formNames() where the recogniser has it as a form of its own
    std::string_view words;
    std::string (*write)(const Image& image);
};

/// "bin", "hex" (as the hexadecimal export writes it), "c" (an array), "base64", "reg" (a registry export that
/// overrides the EDID of one monitor), "inf" (lines of a driver's file that do the same), "xxd" (a dump with offsets
/// and text column).
const std::vector<WrittenForm>& writtenForms();

/// The form of that name, or null.
const WrittenForm* writtenForm(std::string_view name);

} // namespace wb::forms
