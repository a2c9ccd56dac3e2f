#include "desktop/views/sizes.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionFrame>

namespace wb::desktop {

int widthOfCharacters(const QWidget& widget, int characters) {
    return QFontMetrics(widget.font()).averageCharWidth() * characters;
}

namespace {

constexpr int innerMargin = 2; // what a line edit keeps free on either side of its text

QStyleOptionFrame frameOf(const QLineEdit& box) {
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
    return option;
}

} // namespace

int widthOfText(const QLineEdit& box, int characters, Measure measure) {
    const int text = measure == Measure::Capital
                         ? QFontMetrics(box.font()).horizontalAdvance(QString(characters, QLatin1Char('W')))
                         : widthOfCharacters(box, characters);
    const QStyleOptionFrame option = frameOf(box);
    const QSize content(text + 2 * innerMargin, QFontMetrics(box.font()).height());
    return box.style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, &box).width();
}

int innerWidth(const QLineEdit& box) {
    const QStyleOptionFrame option = frameOf(box);
    return box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box).width() - 2 * innerMargin;
}

void keepWidth(QWidget& widget, int characters) {
    if (characters > 0) {
        widget.setMinimumWidth(qMax(widthOfCharacters(widget, characters), widget.sizeHint().width()));
    }
}

} // namespace wb::desktop
