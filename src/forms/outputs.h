#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wb::forms {

/// Tells the output of each image in a text, such as "HDMI-1": the one that the text in front of it names last, as the
/// tools that list monitors, the kernel's log and X servers do.
class Outputs {
public:
    explicit Outputs(std::string_view text) : text_(text) {}

    /// That of the image at a place, which is not in front of the one asked for before. Empty where none is named.
    std::string before(std::size_t place);

private:
    std::string_view text_;
    std::size_t line_ = 0;  ///< the place of the line in which the last image stands
    std::string_view last_; ///< what the lines in front of it name last
};

} // namespace wb::forms
