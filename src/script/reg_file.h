#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/services.h"

/// Registry exports: text files with the extension ".reg", version 4 or 5.
namespace wb::script {

struct RegistryKey {
    std::string path; ///< below HKEY_LOCAL_MACHINE, empty for that root itself
    std::vector<platform::RegistryValue> values;
};

/// The keys of an export in their order, those below HKEY_LOCAL_MACHINE only; deleted keys and values are left out.
/// Texts come with the NUL that ends them in a registry. A file that is no export or breaks the format is a ScriptError
/// with the line of the file.
std::vector<RegistryKey> parseRegistryExport(std::string_view bytes);

} // namespace wb::script
