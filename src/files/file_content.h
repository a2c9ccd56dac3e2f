#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

namespace wb::files {

/// The most bytes of an input that are read, 32 MiB: the largest image there can be, 256 blocks of 128 bytes, in the
/// longest form, each byte on a line of its own of 512 characters in UTF-16.
inline constexpr std::size_t largestInput = std::size_t{256} * 128 * 512 * 2;

/// Why an input cannot be read, in words for the user.
class InputError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The whole content of a file, in binary. One that cannot be read, a folder, and one above largestInput are an
/// InputError; of the last one no more is read than it takes to know.
std::string readFile(const std::string& path);

/// The same for what an open stream still holds.
std::string readStream(std::FILE* stream);

/// An InputError where an ordinary file of that name is above largestInput. Tells whether there is such a file.
bool requireReadableSize(const std::string& path);

/// For who reads piece by piece: the InputError for more than `most` bytes.
[[noreturn]] void failAbove(std::size_t most = largestInput);

} // namespace wb::files
