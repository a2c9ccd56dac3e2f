#include "report/definitions.h"

#include <array>

#include "report/identity.h"

namespace wb::report {

namespace {

using Decoder = void (*)(Workbench&);

constexpr std::array decoders = {
    ConvertManufacturer, ConvertProductCode, ConvertRevision, ConvertSerialNumber,
    ConvertVersion,      ConvertWeek,        ConvertYear,
};

} // namespace

void BuildEDIDDefinations(Workbench& workbench) {
    for (const Decoder decode : decoders) {
        decode(workbench);
    }
}

} // namespace wb::report
