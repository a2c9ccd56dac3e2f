#include "desktop/tools/tool_dock.h"

#include <QPointer>
#include <QShortcut>
#include <utility>

#include "desktop/base/byte_words.h"
#include "desktop/base/own_focus.h"
#include "shell/go_to_byte.h"

namespace wb::desktop {

namespace {

class Page : public QWidget {
public:
    QSize sizeHint() const override {
        constexpr int characters = 60;
        return {fontMetrics().averageCharWidth() * characters, QWidget::sizeHint().height()};
    }
};

} // namespace

ToolDock::ToolDock(MainView& frame, const char* name, const QString& title)
    : QDockWidget(title, &frame.window()), frame_(frame), note_(new QLabel) {
    setObjectName(name);
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    // One that floats would be a window of its own, which takes the keys from the frame's.
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    markOwnFocus(*this);
    auto* inside = new Page;
    auto* outer = new QVBoxLayout(inside);
    outer->setContentsMargins(0, 0, 0, 0);
    column_ = new QVBoxLayout;
    outer->addLayout(column_, 1);
    outer->addWidget(note_);
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    note_->setMargin(note_->fontMetrics().descent());
    note_->hide();
    setWidget(inside);
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(escape, &QShortcut::activated, this, [this] { frame_.giveFocusBack(); });
    frame.window().addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
    frame.liveReading().listen(*this, [this] {
        stale_ = true;
        refresh();
    });
}

void ToolDock::refresh() {
    if (!isVisible() || frame_.screen() == nullptr) {
        return;
    }
    const LiveReading& live = frame_.liveReading();
    if (std::exchange(stale_, false)) {
        showImage(live);
        tell(live.complaint());
    }
    const auto byte = shell::focusedByte(frame_.screen()->workbench());
    if (refused_ && byte != refusedAt_) {
        refused_ = false;
        tell(live.complaint());
    }
    if (byte) {
        follow(static_cast<std::size_t>(*byte));
    }
}

void ToolDock::tell(const QString& note) {
    if (!note.isEmpty()) {
        note_->setText(note);
        // Notes come and go with each byte that is typed: what is above them is not to move each time.
        QSizePolicy policy = note_->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        note_->setSizePolicy(policy);
    }
    note_->setVisible(!note.isEmpty());
}

void ToolDock::goToByte(std::size_t byte) {
    frame_.act([dock = QPointer(this), byte](Screen& screen) {
        const bool done = shell::goToByte(screen.workbench(), static_cast<int>(byte));
        if (dock != nullptr) {
            dock->refused_ = !done;
            dock->refusedAt_ = shell::focusedByte(screen.workbench());
            dock->tell(done ? dock->frame_.liveReading().complaint() : outOfReach(byte));
            dock->frame_.giveFocusBack();
        }
    });
}

void ToolDock::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    refresh();
}

} // namespace wb::desktop
