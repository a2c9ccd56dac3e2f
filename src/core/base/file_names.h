#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// Names of files as texts. On Windows they are in UTF-8, whatever the code page of the system; elsewhere they are the
/// bytes that the system has.
namespace wb {

/// The path of a file name. Of what is no UTF-8, Windows gets U+FFFD for each byte outside ASCII.
std::filesystem::path pathOf(std::string_view name);
/// The name of a path, with the separators of the system.
std::string nameOf(const std::filesystem::path& path);

/// Opens a file as std::fopen does; null after a failure, which errno tells.
std::FILE* openStream(const std::filesystem::path& path, const char* mode);

/// Whether a path names a device in every folder, as NUL does on Windows, so that no other file can stand beside it.
bool namesDevice(const std::filesystem::path& path);

/// Why the file system refused something, in the words of the C library, which no locale of Windows changes.
std::string reasonOf(const std::error_code& error);

} // namespace wb
