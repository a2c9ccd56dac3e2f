#include "fields/invariants.h"
#include "fuzz/targets.h"

namespace wb::fuzz {

void inspect(std::string_view input) {
    // Four blocks have every kind of them beside each other; more cost time alone.
    if (const auto image = Image::fromBytes(input.substr(0, 4 * Image::blockSize))) {
        fields::expectInvariants(fields::read(*image));
    }
}

} // namespace wb::fuzz
