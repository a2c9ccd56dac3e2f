#include "fuzz/targets.h"

#include <array>

namespace wb::fuzz {

std::span<const Target> targets() {
    static constexpr std::array<Target, 7> all = {{{"raw_image", &rawImage},
                                                   {"data_file", &dataFile},
                                                   {"recogniser", &recogniser},
                                                   {"registry_export", &registryExport},
                                                   {"script", &script},
                                                   {"numbers", &numbers},
                                                   {"inspect", &inspect}}};
    return all;
}

} // namespace wb::fuzz
