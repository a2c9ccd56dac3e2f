#include "block0/field_decoders.h"

#include "block0/grid.h"
#include "report/basic_display.h"
#include "report/chromaticity.h"
#include "report/detailed_timing.h"
#include "report/established_timings.h"
#include "report/identity.h"
#include "report/standard_timings.h"

namespace wb::block0 {

namespace {

struct FieldDecoder {
    CellRange cells;
    void (*decode)(Workbench&);
};

constexpr FieldDecoder decoders[] = {
    {{8, 9}, &report::ConvertManufacturer},
    {{10, 11}, &report::ConvertProductCode},
    {{12, 15}, &report::ConvertSerialNumber},
    {{16, 16}, &report::ConvertWeek},
    {{17, 17}, &report::ConvertYear},
    {{18, 18}, &report::ConvertVersion},
    {{19, 19}, &report::ConvertRevision},
    {{20, 20}, &report::ConvertVideoInput},
    {{21, 21}, &report::ConvertMaxHorizontalSize},
    {{22, 22}, &report::ConvertMaxVerticalSize},
    {{23, 23}, &report::ConvertGamma},
    {{24, 24}, &report::ConvertFeatureSupport},
    {{25, 34}, &report::ConvertChromaticity},
    {{35, 35}, &report::ConvertEstablishedTiming1},
    {{36, 36}, &report::ConvertEstablishedTiming2},
    {{37, 37}, &report::ConvertReservedTiming},
    {{38, 53}, &report::ConvertStandardTimings},
    {{54, 125}, &report::ConvertDetailedTiming},
};

} // namespace

void decodeFieldOf(Workbench& workbench, int cell) {
    for (const FieldDecoder& field : decoders) {
        if (field.cells.contains(cell)) {
            field.decode(workbench);
            return;
        }
    }
}

} // namespace wb::block0
