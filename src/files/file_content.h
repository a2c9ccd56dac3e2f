#pragma once

#include <cstdio>
#include <string>

namespace wb::files {

/// The whole content of a file, in binary. One that cannot be read, a folder, and one above 1 GiB are a
/// std::system_error.
std::string readFile(const std::string& path);

/// The same for what an open stream still holds.
std::string readStream(std::FILE* stream);

} // namespace wb::files
