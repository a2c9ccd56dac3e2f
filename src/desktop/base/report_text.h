#pragma once

#include <QString>
#include <string>
#include <string_view>

/// The text of a report as screens and printers draw it.
namespace wb::desktop {

/// The text in lines: a line end is one character, and other control characters are drawn as their pictures, so that
/// each place of the text keeps its place.
QString reportLines(std::string_view text);
/// The title of the report of the image in that file; the name may be empty.
QString reportTitle(const std::string& fileName);
/// The place in the program's text that a place in the drawn text stands for.
int placeInText(std::string_view text, int drawn);

} // namespace wb::desktop
