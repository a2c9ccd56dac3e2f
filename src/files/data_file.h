#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "core/workbench.h"

/// The data file: the report as plain text, from whose dump rows the image is read back.
namespace wb::files {

/// What marks a data file; compared without regard to the letter case.
inline constexpr std::string_view dataFileMarker = "128 BYTES OF EDID CODE:";

/// Reads CurrentFileName into EDIDCells, which is created anew. Gives whether the marker was found; a file without it
/// is told in a box, as is one above largestInput; a failure is shown and gives false.
bool ReadEDIDDataFile(Workbench& workbench);
/// The same with the content of a file that is in memory already.
bool readDataFile(Workbench& workbench, std::string_view content);

/// Calls `take` with each pair of visible characters behind the first bar of a line. A last single one is dropped.
template <class Take>
void forEachPair(std::string_view line, const Take& take) {
    const std::size_t bar = line.find('|');
    std::string pair;
    for (const char c : line.substr(std::min(bar, line.size()))) {
        if (c == '|' || static_cast<unsigned char>(c) <= ' ') {
            continue;
        }
        pair += c;
        if (pair.size() == 2) {
            take(pair);
            pair.clear();
        }
    }
}

/// Takes the pairs of visible characters behind the first bar of a line into EDIDCells from `nextIndex` on and advances
/// it. Pairs past the array are a SubscriptOutOfRange failure, shown here.
void ParseHexRowLine(Workbench& workbench, std::string_view line, int& nextIndex);

/// The lines of a report buffer as a data file holds them: each entry up to the sentinel "END REPORT" without one
/// trailing line end; empty ones are left out.
std::string dataFileText(const TextArray& reportLines);

} // namespace wb::files
