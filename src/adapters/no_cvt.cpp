#include <string>

#include "adapters/cvt.h"

namespace wb::adapters {

std::string_view missingCvtLibrary() {
    return "libxcvt";
}

fields::Modeline cvtModeline(const CvtMode&) {
    throw fields::ModelineError("this program was built without " + std::string(missingCvtLibrary()) +
                                ", which computes CVT timings");
}

} // namespace wb::adapters
