#pragma once

#include <string>

#include "support/temporary_folder.h"

namespace wb::test {

/// The bytes of a sample.
inline std::string sample(const std::string& name) {
    return TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/" + name);
}

} // namespace wb::test
