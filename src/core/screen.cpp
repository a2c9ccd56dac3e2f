#include "core/screen.h"

#include <array>

#include "core/view.h"
#include "core/workbench.h"

namespace wb {

std::string_view screenName(ScreenId id) {
    static constexpr std::array<std::string_view, screenCount> names = {"frmMain",    "frmSplash",   "frmEDID",
                                                                        "frmCEA_EXT", "frmDocument", "frmHexCalculator",
                                                                        "frmHelp",    "frmEDIDREG",  "frmAbout"};
    return names[static_cast<std::size_t>(id)];
}

Screen::Screen(Workbench& workbench, ScreenId id, std::string_view caption, std::size_t roughly)
    : workbench_(&workbench), id_(id), caption_(caption) {
    controls_.reserve(roughly);
}

void Screen::setCaption(std::string caption) {
    caption_ = std::move(caption);
    if (workbench_->view != nullptr) {
        workbench_->view->screenChanged(*this);
    }
}

bool Screen::isChild() const {
    return id_ == ScreenId::Edid || id_ == ScreenId::CeaExt || id_ == ScreenId::Document ||
           id_ == ScreenId::HexCalculator;
}

void Screen::setShown(bool shown) {
    if (shown_ != shown) {
        shown_ = shown;
        if (workbench_->view != nullptr) {
            workbench_->view->screenChanged(*this);
        }
    }
}

Control* Screen::find(std::string_view name, int index) const {
    for (Control* control : controls_) {
        if (control->index() == index && control->name() == name) {
            return control;
        }
    }
    return nullptr;
}

Control* Screen::focusTarget() const {
    if (lastFocus_ != nullptr && lastFocus_->canTakeFocus()) {
        return lastFocus_;
    }
    if (firstInTabOrder_ != nullptr && firstInTabOrder_->canTakeFocus()) {
        return firstInTabOrder_;
    }
    for (Control* control : controls_) {
        if (control->canTakeFocus()) {
            return control;
        }
    }
    return nullptr;
}

void Screen::markAsMade() {
    for (Control* control : controls_) {
        control->markAsMade();
    }
}

void Screen::takeBack(const Screen& asMade) {
    shown_ = false;
    caption_ = asMade.caption_;
    lastFocus_ = nullptr;
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        controls_[i]->takeBack(*asMade.controls_[i]);
    }
    resetFields();
}

void Screen::controlChanged(Control& control) {
    if (workbench_->view != nullptr) {
        workbench_->view->controlChanged(control);
    }
}

} // namespace wb
