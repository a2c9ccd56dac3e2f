#include "desktop/windows/report_places.h"

#include <QRegularExpression>
#include <QStringList>

#include "core/base/image_layout.h"

namespace wb::desktop {

namespace {

constexpr int headWidth = 6; ///< the number of the first cell of a row, and the bar
constexpr int cellWidth = 4;
constexpr int cellsOfRow = 10;

/// The head of a dump row, such as "120  |"; empty where the line is none.
QString rowHead(const QString& line) {
    static const QRegularExpression row("^(?:\\d0 |0  |1[0-2]0)  \\|");
    return row.match(line).captured();
}

/// A text of more than four characters pushes the rest of its row to the right; then the blanks tell the cells apart.
int cellOfPushedRow(const QString& cells, int column, int count) {
    static const QRegularExpression blanks("\\s+");
    if (cells.split(blanks, Qt::SkipEmptyParts).size() != count) {
        return -1;
    }
    return static_cast<int>(cells.left(column + 1).split(blanks, Qt::SkipEmptyParts).size()) - 1;
}

} // namespace

std::optional<int> byteInReport(const QTextBlock& line, int column) {
    const QString text = line.text();
    const QString head = rowHead(text);
    if (head.isEmpty() || column < headWidth || column >= text.size() || text[column].isSpace()) {
        return std::nullopt;
    }
    const int first = head.left(head.indexOf(' ')).toInt();
    const int count = std::min(cellsOfRow, blockSize - first);
    const int inRow = column - headWidth;
    const bool regular = text.size() == headWidth + cellWidth * count;
    const int cell = regular ? inRow / cellWidth : cellOfPushedRow(text.mid(headWidth), inRow, count);
    if (cell < 0) {
        return std::nullopt;
    }
    int block = 0;
    for (QTextBlock above = line.previous(); above.isValid(); above = above.previous()) {
        block += rowHead(above.text()) == head ? 1 : 0;
    }
    return block * blockSize < imageSize ? std::optional(block * blockSize + first + cell) : std::nullopt;
}

} // namespace wb::desktop
