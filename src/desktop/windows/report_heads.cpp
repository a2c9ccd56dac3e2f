#include "desktop/windows/report_heads.h"

#include <QPalette>
#include <QRegularExpression>

#include "desktop/drawing/colours.h"

namespace wb::desktop {

namespace {

/// Where a line stands to the pairs of rules around a title.
enum Place { Text = -1, BehindRule, InTitle, BehindTitle };

bool isRule(const QString& line) {
    return !line.isEmpty() && line.trimmed().count('_') == line.trimmed().size() && !line.trimmed().isEmpty();
}

Place placeBehindRule(int before) {
    switch (before) {
        case BehindRule:
            return InTitle;
        case InTitle:
            return BehindTitle;
        case BehindTitle:
            return Text;
        default:
            return BehindRule;
    }
}

/// The head of a section, of a block, of a data block or of a timing.
bool isHead(const QString& line) {
    static const QRegularExpression head(
        "^(?:"
        ".*:\\s*"
        "|EDID Block \\d, Bytes .*"
        "|Block Type: .*"
        "|\\(\\d+\\)\\w.*Number of Data Byte to Follow.*"
        "|\\s+\\d+x\\d+[ip]?\\s+Pixel Clock: .*"
        ")$");
    return head.match(line).hasMatch();
}

} // namespace

void ReportHeads::setColours(const QPalette& palette) {
    head_.setForeground(cellColours(CellColour::Window, palette).text);
    head_.setFontWeight(QFont::Bold);
    rule_.setForeground(palette.color(QPalette::PlaceholderText));
    rehighlight();
}

void ReportHeads::highlightBlock(const QString& line) {
    const auto length = static_cast<int>(line.size());
    if (isRule(line)) {
        setFormat(0, length, rule_);
        const bool short_ = line.startsWith(' '); // below the numbers of the columns
        setCurrentBlockState(short_ ? Text : placeBehindRule(previousBlockState()));
        return;
    }
    const bool titled = previousBlockState() == InTitle;
    setCurrentBlockState(titled ? InTitle : Text);
    if (titled || isHead(line)) {
        setFormat(0, length, head_);
    }
}

} // namespace wb::desktop
