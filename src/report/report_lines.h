#pragma once

#include <string>
#include <string_view>

#include "core/base/text.h"
#include "core/workbench.h"

/// What the reports of both blocks share: the buffer's size and end mark, the pieces of the layout, and how a buffer is
/// read.
namespace wb::report {

inline constexpr int reportWidth = 70;    ///< columns
inline constexpr int reportIndent = 9;    ///< blanks before the words of a field
inline constexpr int reportEntries = 301; ///< of a report buffer, index 0 to 300
inline constexpr std::string_view endOfReport = "END REPORT";

inline constexpr int placeWidth = 7; ///< of the column of places

/// A line of underscores over the whole width.
const std::string& ruleLine();
/// Puts the texts and a line end into an entry, which lends its room.
void putLine(std::string& entry, Texts texts);
/// Adds the texts and a line end.
void addLine(std::string& lines, Texts texts);
/// The blanks before a text of that many characters that stands centred, or noIndent for one that fills the width and
/// is lost.
inline constexpr int noIndent = -1;
int centredIndent(std::size_t length);
/// Puts the text and a line end, centred, into an entry, which is empty where the text is lost.
void putCentred(std::string& entry, std::string_view text);
/// The place of a field in the block, such as "(126)", right-justified in its column of seven.
std::string placeTag(int cell);
/// "FIRST-LAST" in decimal.
std::string placeRange(int first, int last);

/// Nine entries from `first` on: empty lines, time and date of the platform's clock, rules, the company.
void putHead(Workbench& workbench, TextArray& lines, int first);
/// Fifteen entries from `first` on: the head of the columns and the 13 rows of the hex dump, straight from the cells.
void putDump(BlockScreen& screen, TextArray& lines, int first);

/// Adds the entries of a buffer, which has at most `reportEntries`, up to the end mark, or to the end of a buffer that
/// has none.
void addEntries(std::string& text, const TextArray& lines);

} // namespace wb::report
