#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services.h"

/// Registry exports: text files with the extension ".reg", version 4 or 5.
namespace wb::platform::headless {

/// A file that is no registry export or breaks its format.
class RegistryExportError : public std::runtime_error {
public:
    RegistryExportError(const std::string& message, int line) : std::runtime_error(message), line_(line) {}

    /// The line of the export, from 1.
    int line() const { return line_; }

private:
    int line_;
};

struct RegistryKey {
    std::string path; ///< below HKEY_LOCAL_MACHINE, empty for that root itself
    std::vector<RegistryValue> values;
};

/// The keys of an export in their order, those below HKEY_LOCAL_MACHINE only; deleted keys and values are left out.
/// Texts come with the NUL that ends them in a registry. A file that is no export or breaks the format is a
/// RegistryExportError.
std::vector<RegistryKey> parseRegistryExport(std::string_view bytes);

} // namespace wb::platform::headless
