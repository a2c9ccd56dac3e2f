#include "block0/field_decoders.h"

#include "core/base/image_layout.h"
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
    {cells::manufacturer, &report::ConvertManufacturer},
    {cells::productCode, &report::ConvertProductCode},
    {cells::serialNumber, &report::ConvertSerialNumber},
    {oneCell(cells::week), &report::ConvertWeek},
    {oneCell(cells::year), &report::ConvertYear},
    {oneCell(cells::version), &report::ConvertVersion},
    {oneCell(cells::revision), &report::ConvertRevision},
    {oneCell(cells::videoInput), &report::ConvertVideoInput},
    {oneCell(cells::maxHorizontalSize), &report::ConvertMaxHorizontalSize},
    {oneCell(cells::maxVerticalSize), &report::ConvertMaxVerticalSize},
    {oneCell(cells::gamma), &report::ConvertGamma},
    {oneCell(cells::features), &report::ConvertFeatureSupport},
    {cells::chromaticity, &report::ConvertChromaticity},
    {oneCell(cells::establishedTimings1), &report::ConvertEstablishedTiming1},
    {oneCell(cells::establishedTimings2), &report::ConvertEstablishedTiming2},
    {oneCell(cells::reservedTimings), &report::ConvertReservedTiming},
    {cells::standardTimings, &report::ConvertStandardTimings},
    {cells::detailedBlocks, &report::ConvertDetailedTiming},
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
