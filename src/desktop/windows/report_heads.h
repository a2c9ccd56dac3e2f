#pragma once

#include <QSyntaxHighlighter>

namespace wb::desktop {

/// Lets the heads of a report stand out, and its rules stand back, on the screen alone: the text, and what is copied
/// and printed of it, stays as it is.
class ReportHeads : public QSyntaxHighlighter {
public:
    /// Lives as long as the document.
    explicit ReportHeads(QTextDocument& report) : QSyntaxHighlighter(&report) {}

    /// Takes the colours for text on that palette.
    void setColours(const QPalette& palette);

protected:
    void highlightBlock(const QString& line) override;

private:
    QTextCharFormat head_;
    QTextCharFormat rule_;
};

} // namespace wb::desktop
