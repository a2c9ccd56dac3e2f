#include "desktop/windows/panel_picture.h"

#include <QEvent>
#include <QLayout>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "core/input.h"
#include "desktop/pictures/sketch.h"

namespace wb::desktop {

namespace {

/// The room that the shown controls of a panel take.
QRect takenRoom(const QWidget& panel, const QWidget* picture) {
    QRect taken;
    for (const QWidget* child : panel.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child != picture && !child->isHidden()) {
            taken |= child->geometry();
        }
    }
    return taken;
}

double heightIn(const QRect& room, double ratio) {
    return std::min<double>(room.height(), room.width() / ratio);
}

/// Of the room below the controls and that to their right the one in which the picture is larger.
QRect freeRoom(const QWidget& panel, const QWidget* picture, double ratio) {
    const QRect all = panel.layout()->contentsRect();
    const QRect taken = takenRoom(panel, picture);
    const int gap = panel.fontMetrics().height() / 2;
    QRect below = all;
    below.setTop(std::max(all.top(), taken.bottom() + gap));
    QRect beside = all;
    beside.setLeft(std::max(all.left(), taken.right() + 2 * gap));
    return heightIn(beside, ratio) > heightIn(below, ratio) ? beside : below;
}

std::size_t cellOf(const ControlView& view) {
    return static_cast<std::size_t>(view.control()->index());
}

/// In place of a picture of an image that a cell keeps from being read.
Picture complaint(const QString& words, const QSizeF& size) {
    Shape shape{.kind = Shape::Kind::Words,
                .points = QPolygonF(QRectF(QPointF(0, 0), size)),
                .line = Ink::Text,
                .words = words,
                .name = "complaint"};
    return {.name = "Picture", .description = words, .shapes = {std::move(shape)}};
}

} // namespace

PanelPicture::PanelPicture(const BlockScreen& screen, const Views& views, UserActions& actions)
    : firstByte_(screen.id() == ScreenId::Edid ? 0 : BlockScreen::cellCount),
      views_(views),
      actions_(actions),
      widget_(new PictureWidget) {
    widget_->hide();
    widget_->canPick = [this](const Pick& pick) {
        const ControlView* view = viewOf(pick);
        return view != nullptr && input::reachable(*view->control());
    };
    widget_->pick = [this](const Pick& pick) { viewOf(pick)->act([](Control& control) { input::click(control); }); };
    actions.liveReading().listen(*this, [this] {
        drawn_.reset();
        refreshSoon();
    });
    for (const auto& view : views_) {
        if (view->control()->name() == "Hints") {
            view->widget()->installEventFilter(this);
        }
    }
}

PanelPicture::~PanelPicture() {
    delete widget_;
}

void PanelPicture::refreshSoon() {
    if (!std::exchange(willRefresh_, true)) {
        QTimer::singleShot(0, this, [this] { refresh(); });
    }
}

bool PanelPicture::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::LayoutRequest:
        case QEvent::FontChange:
            refreshSoon();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void PanelPicture::refresh() {
    willRefresh_ = false;
    const ControlView* panel = shownPanel();
    const std::optional<Subject> wanted = panel != nullptr ? subject() : std::nullopt;
    if (wanted) {
        drawIn(*panel->widget(), *wanted);
    } else {
        widget_->hide();
        drawn_.reset();
    }
}

ControlView* PanelPicture::shownPanel() const {
    const auto found = std::find_if(views_.begin(), views_.end(), [](const auto& view) {
        const Control* control = view->control();
        return control != nullptr && control->name() == "Hints" && control->ownVisible();
    });
    return found == views_.end() ? nullptr : found->get();
}

std::optional<Subject> PanelPicture::subject() const {
    const fields::Reading* reading = actions_.liveReading().readingBesides();
    if (reading == nullptr) {
        return {};
    }
    const auto found = std::find_if(views_.begin(), views_.end(), [](const auto& view) {
        const Control* control = view->control();
        return control != nullptr && control->name() == "txtEdit" && control->backColor() == CellColour::Field;
    });
    return found == views_.end() ? std::nullopt : subjectAt(*reading, firstByte_ + cellOf(**found));
}

void PanelPicture::drawIn(QWidget& panel, const Subject& subject) {
    panel.layout()->activate(); // controls that have just been shown take their room
    const QRect room = freeRoom(panel, widget_, subject.painter->ratio);
    const Frame wanted{&panel, subject, room, panel.font()};
    if (drawn_ == wanted) {
        return;
    }
    drawn_ = wanted;
    const double line = panel.fontMetrics().height();
    const bool hasRoom = room.isValid() && heightIn(room, subject.painter->ratio) >= subject.painter->least * line;
    Picture drawn = hasRoom ? picture(subject, room.size()) : Picture();
    if (drawn.shapes.empty()) {
        widget_->hide();
        return;
    }
    moveTo(panel, room);
    widget_->setPicture(std::move(drawn));
}

Picture PanelPicture::picture(const Subject& subject, const QSizeF& size) const {
    const LiveReading& live = actions_.liveReading();
    if (live.reading() == nullptr) {
        return complaint(live.complaint(), size);
    }
    return draw(subject, *live.reading(), {size, QFontMetricsF(widget_->font())});
}

void PanelPicture::moveTo(QWidget& panel, const QRect& place) {
    if (widget_->parentWidget() != &panel) {
        widget_->setParent(&panel);
    }
    widget_->setGeometry(place);
    widget_->setVisible(true);
}

ControlView* PanelPicture::viewOf(const Pick& pick) const {
    const auto found = std::find_if(views_.begin(), views_.end(), [&](const auto& view) {
        const Control* control = view->control();
        return control != nullptr && control->name() == pick.control && control->index() == pick.index;
    });
    return found == views_.end() ? nullptr : found->get();
}

} // namespace wb::desktop
