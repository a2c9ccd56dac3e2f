#include "desktop/base/tool_tip.h"

#include <QTextDocument>

namespace wb::desktop {

QString toolTipOf(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace wb::desktop
