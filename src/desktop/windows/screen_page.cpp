#include "desktop/windows/screen_page.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <stdexcept>
#include <string>

#include "core/screens/block_screen.h"
#include "desktop/drawing/colours.h"
#include "desktop/views/choice_views.h"
#include "desktop/views/document_view.h"
#include "desktop/views/label_view.h"
#include "desktop/views/text_view.h"
#include "desktop/windows/panel_picture.h"

namespace wb::desktop {

namespace {

bool isInside(const Control* control, const Control& container) {
    while (control != nullptr && control != &container) {
        control = control->container();
    }
    return control != nullptr;
}

void space(QGridLayout& grid, Spacing spacing, int line) {
    switch (spacing) {
        case Spacing::Normal:
            grid.setHorizontalSpacing(line / 2);
            grid.setVerticalSpacing(line / 5);
            grid.setContentsMargins(line / 2, line / 3, line / 2, line / 3);
            break;
        case Spacing::None:
            grid.setSpacing(0);
            break;
        case Spacing::Paragraphs:
            grid.setSpacing(line / 2);
            grid.setContentsMargins(line, line, line, line);
            break;
    }
}

Qt::Alignment alignmentIn(const Place& place) {
    return place.atRight ? Qt::AlignRight | Qt::AlignVCenter : Qt::Alignment();
}

/// A black field that takes the room of a cell.
QWidget* makeFiller() {
    auto* filler = new QWidget;
    filler->setAutoFillBackground(true);
    QPalette black;
    black.setColor(QPalette::Window, Qt::black);
    filler->setPalette(black);
    return filler;
}

} // namespace

std::unique_ptr<ControlView> makeView(Control& control, const Place& place, UserActions& actions) {
    switch (control.kind()) {
        case ControlKind::Text:
            return std::make_unique<TextView>(control, place, actions);
        case ControlKind::Label:
            return std::make_unique<LabelView>(control, place, actions);
        case ControlKind::Combo:
            return std::make_unique<ComboView>(control, place, actions);
        case ControlKind::Frame:
            return std::make_unique<FrameView>(control, place, actions);
        case ControlKind::Document:
            return std::make_unique<DocumentView>(control, place, actions);
        default:
            return std::make_unique<ButtonView>(control, place, actions);
    }
}

Control& controlAt(const Screen& screen, std::string_view name, int index) {
    Control* control = screen.find(name, index);
    if (control == nullptr) {
        const std::string member = index == Control::noIndex ? "" : '(' + std::to_string(index) + ')';
        throw std::logic_error(std::string(screen.name()) + " has no " + std::string(name) + member);
    }
    return *control;
}

ScreenPage::ScreenPage(Screen& screen, UserActions& actions)
    : screen_(screen),
      layout_(layoutOf(screen.id())),
      actions_(actions),
      isExtension_(screen.id() == ScreenId::CeaExt) {
    refreshPalette();
    if (const Area* area = layout_.find("")) {
        fill(*this, *area);
    }
    setTabOrder();
    for (const auto& view : views_) {
        view->refresh();
    }
    refreshTabStops();
    if (auto* block = dynamic_cast<BlockScreen*>(&screen)) {
        picture_ = std::make_unique<PanelPicture>(*block, views_, actions);
    }
}

ScreenPage::~ScreenPage() = default;

void ScreenPage::refreshPicture() {
    if (picture_ != nullptr) {
        picture_->refreshSoon();
    }
}

void ScreenPage::refreshTabStops() {
    for (const auto& view : views_) {
        if (view->control() != nullptr && view->control()->kind() == ControlKind::Option) {
            static_cast<ButtonView&>(*view).refreshTabStop();
        }
    }
}

void ScreenPage::fill(QWidget& parent, const Area& area) {
    auto* grid = new QGridLayout(&parent);
    space(*grid, area.spacing, fontMetrics().height());
    for (const Place& place : area.places) {
        placeControls(parent, *grid, place);
    }
    const auto panels = std::find_if(area.places.begin(), area.places.end(), [](const Place& p) { return p.together; });
    const bool hasPanels = panels != area.places.end();
    // What is left over belongs to the panels, or stays below and to the right of the controls.
    grid->setRowStretch(hasPanels ? panels->row : grid->rowCount(), 1);
    grid->setColumnStretch(hasPanels ? panels->column : grid->columnCount(), 1);
}

void ScreenPage::placeControls(QWidget& parent, QGridLayout& grid, const Place& place) {
    if (place.look == Look::Group || place.look == Look::Filler || place.look == Look::Words) {
        grid.addWidget(makeGroup(parent, place), place.row, place.column, place.rowSpan, place.columnSpan,
                       alignmentIn(place));
        return;
    }
    for (int index = place.first; index <= place.last; ++index) {
        Control& control = controlAt(screen_, place.name, index);
        if (control.kind() == ControlKind::Document) {
            makeControl(parent, control, place); // stands where its bounds say
            continue;
        }
        const int step = place.together ? 0 : index - place.first;
        grid.addWidget(makeControl(parent, control, place), place.row + step / place.across * place.rowSpan,
                       place.column + step % place.across * place.columnSpan, place.rowSpan, place.columnSpan,
                       alignmentIn(place));
    }
}

QWidget* ScreenPage::makeGroup(QWidget& parent, const Place& place) {
    if (place.look == Look::Filler) {
        return makeFiller();
    }
    if (place.look == Look::Words) {
        return new QLabel(QString::fromLatin1(place.spoken.data(), static_cast<qsizetype>(place.spoken.size())));
    }
    auto* inside = new QWidget(&parent);
    fill(*inside, layout_.at(place.name));
    inside->layout()->setContentsMargins(0, 0, 0, 0);
    return inside;
}

QWidget* ScreenPage::makeControl(QWidget& parent, Control& control, const Place& place) {
    views_.push_back(makeView(control, place, actions_));
    QWidget* widget = views_.back()->widget();
    widget->setParent(&parent);
    if (place.keepsRoom) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    if (control.kind() == ControlKind::Frame) {
        if (const Area* area = layout_.find(control.name(), control.index())) {
            fill(*widget, *area);
        }
    }
    return widget;
}

void ScreenPage::setTabOrder() {
    QWidget* before = nullptr;
    for (const Control* control : screen_.controls()) {
        for (const auto& view : views_) {
            if (view->control() == control && control->takesFocus()) {
                if (before != nullptr) {
                    QWidget::setTabOrder(before, view->widget());
                }
                before = view->widget();
            }
        }
    }
}

bool ScreenPage::isTabStop(const Control& control) const {
    return std::any_of(views_.begin(), views_.end(), [&](const auto& view) {
        return view->control() == &control && (view->widget()->focusPolicy() & Qt::TabFocus) != 0;
    });
}

Control* ScreenPage::otherSide(const Control* from) const {
    const Control* panel = nullptr;
    Control* field = nullptr;
    for (Control* control : screen_.controls()) {
        if (control->name() == "Hints" && control->usable()) {
            panel = control;
        } else if (field == nullptr && control->backColor() == CellColour::Field) {
            field = control;
        }
    }
    if (panel == nullptr || isInside(from, *panel)) {
        return field;
    }
    for (Control* control : screen_.controls()) {
        if (isInside(control, *panel) && control->canTakeFocus() && isTabStop(*control)) {
            return control;
        }
    }
    return nullptr;
}

// A panel of block 0 leaves room for a picture below a timing, as another one is much higher; one of the extension
// would not.
QSize ScreenPage::sizeHint() const {
    constexpr int pictureLines = 11;
    return minimumSizeHint() + QSize(0, isExtension_ ? pictureLines * fontMetrics().height() : 0);
}

QSize ScreenPage::minimumSizeHint() const {
    largest_ = largest_.expandedTo(QWidget::minimumSizeHint());
    return largest_;
}

void ScreenPage::refreshPalette() {
    const QPalette now = QApplication::palette();
    if (followed_ != now) {
        followed_ = now;
        setPalette(disabledTextsOf(withReadableDisabledText(now)));
        for (const auto& view : views_) {
            view->refreshPalette();
        }
    }
}

void ScreenPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        refreshPalette();
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        largest_ = {};
        updateGeometry();
    }
}

} // namespace wb::desktop
