#include "report/definitions.h"

#include <array>

#include "core/edid_image.h"
#include "core/step.h"
#include "report/basic_display.h"
#include "report/checksum.h"
#include "report/chromaticity.h"
#include "report/detailed_timing.h"
#include "report/established_timings.h"
#include "report/identity.h"
#include "report/standard_timings.h"

namespace wb::report {

namespace {

void convertDetailedTimings(Workbench& workbench) {
    FrmEdid& screen = workbench.frmEDID();
    for (int block = 0; block < detailedBlockCount; ++block) {
        screen.CurrentBlockBase = static_cast<std::int16_t>(detailedBlockBase(block));
        screen.CurrentBlockNumber = static_cast<std::int16_t>(block);
        ConvertDetailedTiming(workbench);
    }
}

using Decoder = void (*)(Workbench&);

// The order counts. ConvertVersion shows the brand of the name that ConvertManufacturer leaves. The decoders of product
// code, serial number, week and year each build the complete serial number anew, from what the others have left so far.
constexpr std::array<Decoder, 19> decoders = {
    ConvertChromaticity,
    convertDetailedTimings,
    ConvertFeatureSupport,
    ConvertGamma,
    ConvertMaxHorizontalSize,
    ConvertManufacturer,
    ConvertProductCode,
    ConvertRevision,
    ConvertSerialNumber,
    ConvertStandardTimings,
    ConvertEstablishedTiming1,
    ConvertEstablishedTiming2,
    ConvertReservedTiming,
    ConvertVersion,
    ConvertMaxVerticalSize,
    ConvertVideoInput,
    ConvertWeek,
    ConvertYear,
    ConvertExtCheckSum,
};

} // namespace

void BuildEDIDDefinations(Workbench& workbench) {
    const Step step(workbench, "decoding block 0");
    for (const Decoder decode : decoders) {
        decode(workbench);
    }
}

} // namespace wb::report
