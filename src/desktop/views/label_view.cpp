#include "desktop/views/label_view.h"

#include <QMouseEvent>

#include "core/input.h"
#include "core/screen.h"
#include "desktop/base/text_codec.h"
#include "desktop/drawing/pictures.h"
#include "desktop/views/sizes.h"

namespace wb::desktop {

namespace {

QString linesOf(const Control& control) {
    return toUnicode(control.caption()).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

Qt::Alignment alignmentOf(Look look) {
    if (look == Look::Heading) {
        return Qt::AlignCenter;
    }
    if (look == Look::RowName) {
        return Qt::AlignRight | Qt::AlignVCenter;
    }
    return Qt::AlignLeft | (look == Look::Prose ? Qt::AlignTop : Qt::AlignVCenter);
}

} // namespace

LabelView::LabelView(Control& control, const Place& place, UserActions& actions)
    : ControlView(control, place, actions), label_(new CaptionLabel(*this)) {
    label_->setTextFormat(Qt::PlainText);
    label_->setAlignment(alignmentOf(place.look));
    label_->setWordWrap(place.look == Look::Prose);
    if (place.look == Look::RowName) {
        label_->setContentsMargins(0, 0, widthOfCharacters(*label_, 1), 0);
    }
    if (clickable()) {
        label_->setCursor(Qt::PointingHandCursor);
        label_->setFrameStyle(QFrame::Panel | QFrame::Raised);
    }
    if (place.look == Look::Picture) {
        label_->setPixmap(programIcon().pixmap(pictureSize(*label_)));
    }
    adopt(*label_);
}

bool LabelView::clickable() const {
    return control() != nullptr && control()->handlers().click != nullptr;
}

void LabelView::refresh() {
    ControlView::refresh();
    const Control& model = *control();
    if (label_->font().bold() != model.fontBold()) {
        QFont font;
        font.setBold(model.fontBold());
        label_->setFont(font);
    }
    if (place().look != Look::Picture) {
        label_->setText(linesOf(model));
    }
    fitSize();
}

void LabelView::fitSize() {
    if (place().look != Look::Prose) {
        keepWidth(*label_, place().characters);
        return;
    }
    const int width = widthOfCharacters(*label_, place().characters);
    label_->setMinimumWidth(width);
    label_->setMinimumHeight(qMax(0, label_->heightForWidth(width))); // an empty label has none
}

void CaptionLabel::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(static_cast<LabelView&>(view_).clickable() && event->button() == Qt::LeftButton);
}

void CaptionLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (view_.control() != nullptr && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        view_.act([](Control& c) { input::click(c); });
    }
}

void CaptionLabel::mouseDoubleClickEvent(QMouseEvent*) {
    if (view_.control() != nullptr) {
        view_.act([](Control& c) { input::doubleClick(c); });
    }
}

void CaptionLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        static_cast<LabelView&>(view_).fitSize();
    }
}

FrameView::FrameView(Control& control, const Place& place, UserActions& actions)
    : ControlView(control, place, actions), box_(new PanelBox(*this)) {
    adopt(*box_);
}

void FrameView::refresh() {
    ControlView::refresh();
    box_->setTitle(toUnicode(control()->caption()));
}

void PanelBox::mouseDoubleClickEvent(QMouseEvent*) {
    if (view_.control() != nullptr) {
        view_.act([](Control& c) { input::doubleClick(c); });
    }
}

} // namespace wb::desktop
