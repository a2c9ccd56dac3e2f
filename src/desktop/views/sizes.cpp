#include "desktop/views/sizes.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionFrame>

namespace wb::desktop {

int widthOfCharacters(const QWidget& widget, int characters) {
    return QFontMetrics(widget.font()).averageCharWidth() * characters;
}

int widthOfText(const QLineEdit& box, int characters) {
    constexpr int innerMargin = 2; // what a line edit keeps free on either side of its text
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
    const QSize content(widthOfCharacters(box, characters) + 2 * innerMargin, QFontMetrics(box.font()).height());
    return box.style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, &box).width();
}

void keepWidth(QWidget& widget, int characters) {
    if (characters > 0) {
        widget.setMinimumWidth(qMax(widthOfCharacters(widget, characters), widget.sizeHint().width()));
    }
}

} // namespace wb::desktop
