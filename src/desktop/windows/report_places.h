#pragma once

#include <QTextBlock>
#include <optional>

namespace wb::desktop {

/// The byte of the image (0 to 255) whose cell stands in that column of a line of the report; nothing beside the rows
/// of the two dumps and between their cells. A second row with the same number belongs to the extension.
std::optional<int> byteInReport(const QTextBlock& line, int column);

} // namespace wb::desktop
