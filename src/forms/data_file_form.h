#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wb::forms {

/// The bytes of the dump rows of a data file, or why they are none.
struct DataFileBytes {
    std::string bytes;   ///< as many as there are pairs
    std::string refusal; ///< such as "cell 2 is no byte: \"ZZ\""; empty where every pair is a byte
};

/// Nothing where the text has no marker of a data file.
std::optional<DataFileBytes> readDataFile(std::string_view text);

} // namespace wb::forms
