#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fields/reading.h"

/// Two images beside each other, field by field.
namespace wb::fields {

/// What one image has of a field.
struct Side {
    const Reading* reading;
    const Field* field; ///< null where the image has no such field

    /// The text of the field for people: "(none)" where there is no field, two quotation marks for an empty one.
    std::string text() const;
    /// Its bits; there must be a field.
    std::string raw() const { return rawText(reading->image, *field); }
};

/// The fields of one path. At least one of both is there.
struct FieldPair {
    Side first;
    Side second;

    const Field& any() const { return first.field != nullptr ? *first.field : *second.field; }
    /// Whether they have other bits, or only one of them is there.
    bool differ() const;
    /// Both texts as `shown` has them, which may be null; where these look the same though the bits do not, the bits
    /// stand behind them.
    std::pair<std::string, std::string> texts(std::string (*shown)(std::string_view) = nullptr) const;
};

/// All fields of two readings, which must outlive the pairs: in the order of the first, then what only the second has.
std::vector<FieldPair> pairsOf(const Reading& first, const Reading& second);
/// Those that differ.
std::vector<FieldPair> differencesOf(const Reading& first, const Reading& second);

} // namespace wb::fields
