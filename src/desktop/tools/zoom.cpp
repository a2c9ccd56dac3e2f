#include "desktop/tools/zoom.h"

#include <QApplication>
#include <algorithm>
#include <array>

#include "core/base/digits.h"
#include "core/workbench.h"

namespace wb::desktop {

namespace {

constexpr const char* zoomSetting = "MainZoom";
constexpr int normalPercent = 100;
constexpr std::array<int, 12> percents = {50, 67, 75, 80, 90, 100, 110, 125, 150, 175, 200, 250};

QFont scaled(QFont font, double factor) {
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(static_cast<int>(font.pixelSize() * factor));
    }
    return font;
}

} // namespace

Zoom::Zoom(MainView& frame, QMenu& menu)
    : frame_(frame),
      normalIcons_(frame.window().iconSize()),
      in_(menu.addAction("Zoom &In", this, [this] { step(1); })),
      out_(menu.addAction("Zoom &Out", this, [this] { step(-1); })),
      back_(menu.addAction("Zoom to &100 %", this, [this] { choose(normalPercent); })) {
    QList<QKeySequence> larger = QKeySequence::keyBindings(QKeySequence::ZoomIn);
    const QKeySequence withoutShift(Qt::CTRL | Qt::Key_Equal);
    if (!larger.contains(withoutShift)) {
        larger.append(withoutShift);
    }
    in_->setShortcuts(larger);
    out_->setShortcuts(QKeySequence::ZoomOut);
    back_->setShortcut(Qt::CTRL | Qt::Key_0);
    const auto stored = frame.screen()->workbench().platform.settings.read(zoomSetting);
    percent_ = stored ? wholeNumber<int>(*stored).value_or(normalPercent) : normalPercent;
    if (std::find(percents.begin(), percents.end(), percent_) == percents.end()) {
        percent_ = normalPercent;
    }
    if (percent_ != normalPercent) {
        normal_ = QApplication::font();
        apply();
    }
    refreshEntries();
}

Zoom::~Zoom() {
    if (percent_ != normalPercent) {
        QApplication::setFont(normal_);
    }
}

void Zoom::step(int by) {
    const auto now = std::find(percents.begin(), percents.end(), percent_);
    if (by > 0 ? now + 1 != percents.end() : now != percents.begin()) {
        choose(*(now + by));
    }
}

void Zoom::choose(int percent) {
    if (percent == percent_ || frame_.screen() == nullptr) {
        return;
    }
    if (percent_ == normalPercent) { // the system may have changed it
        normal_ = QApplication::font();
    }
    percent_ = percent;
    apply();
    refreshEntries();
    frame_.screen()->workbench().platform.settings.write(zoomSetting, std::to_string(percent_));
}

void Zoom::apply() {
    const double factor = percent_ / static_cast<double>(normalPercent);
    QApplication::setFont(percent_ == normalPercent ? normal_ : scaled(normal_, factor));
    frame_.window().setIconSize((normalIcons_.toSizeF() * factor).toSize());
    frame_.fitChildren();
}

void Zoom::refreshEntries() {
    in_->setEnabled(percent_ != percents.back());
    out_->setEnabled(percent_ != percents.front());
    back_->setEnabled(percent_ != normalPercent);
}

} // namespace wb::desktop
