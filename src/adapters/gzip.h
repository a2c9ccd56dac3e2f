#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "files/file_content.h"

/// What the programs ask of libraries that the logic does without.
namespace wb::adapters {

/// The content of a gzip file (RFC 1952) by zlib, of all its members one after the other. Nothing where it is none, is
/// damaged or ends early, or where something but zeros stands behind the last member. More than `most` bytes are a
/// files::InputError.
std::optional<std::string> uncompressGzip(std::string_view bytes, std::size_t most = files::largestInput);

} // namespace wb::adapters
