#pragma once

#include <QString>
#include <QTextDocument>

namespace wb::test {

/// What a user reads of a tool tip: Qt takes it for rich text where it finds a tag in it.
inline std::string shownTip(const QString& tip) {
    if (!Qt::mightBeRichText(tip)) {
        return tip.toStdString();
    }
    QTextDocument document;
    document.setHtml(tip);
    return document.toPlainText().toStdString();
}

} // namespace wb::test
