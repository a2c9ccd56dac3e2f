#pragma once

#include <string>

#include "core/workbench.h"

/// Identity fields of block 0, cells 8 to 19 (VESA E-EDID Standard, Release A, sections 3.4 and
/// 3.5). Each decoder shows its field on frmEDID and leaves the words of the report in the shared variables. A
/// failure is shown and ends the decoder, or gives an empty text.
namespace wb::report {

/// The three letters of the manufacturer, packed in five bits each into cells 8 and 9: 1 to 26 are A to Z, 0 gives "@",
/// 27 to 31 the characters after "Z".
std::string GetManufacturer(Workbench& workbench);
void ConvertManufacturer(Workbench& workbench);

/// Four hexadecimal digits, cell 11 then cell 10 as they stand, and in brackets the characters of both cells as far as
/// they lie above the blank.
std::string GetProductCode(Workbench& workbench);
void ConvertProductCode(Workbench& workbench);

/// Cells 12 to 15, least significant first. 0 and 01010101 hexadecimal mean that the number is not used.
void ConvertSerialNumber(Workbench& workbench);
void ConvertWeek(Workbench& workbench); ///< cell 16, no range test
void ConvertYear(Workbench& workbench); ///< cell 17, counted from 1990

/// Joins what the decoders above left: product code, last digit of the year, week, serial number.
void CompleteSerialNumber(Workbench& workbench);

/// Cell 18; also shows the brand that belongs to the manufacturer.
void ConvertVersion(Workbench& workbench);
void ConvertRevision(Workbench& workbench); ///< cell 19
/// Joins version and revision.
void ShowCompleteVersion(Workbench& workbench);

} // namespace wb::report
