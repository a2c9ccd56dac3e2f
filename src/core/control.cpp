#include "core/control.h"

#include <algorithm>
#include <memory>

#include "core/screen.h"

namespace wb {

namespace {

/// Most controls were made with the text that they have: telling so is cheaper than writing it.
void takeOverText(std::string& text, const std::string& asMade) {
    if (asMade.empty()) {
        text.clear();
    } else if (text != asMade) {
        text = asMade;
    }
}

} // namespace

Control::Control(Screen& screen, std::string_view name, ControlKind kind, Control* container, Handlers& handlers,
                 ControlArray* array, int index)
    : name_(name),
      screen_(&screen),
      container_(container),
      handlers_(&handlers),
      array_(array),
      index_(index),
      value_(kind == ControlKind::Combo ? -1 : 0),
      kind_(kind) {
    screen.add(*this);
}

std::string Control::fullName() const {
    std::string result(screen_->name());
    result += '.';
    result += name_;
    if (index_ != noIndex) {
        result += '(' + std::to_string(index_) + ')';
    }
    return result;
}

void Control::setText(std::string_view text) {
    if (text.size() == 2) { // a cell's, written hundreds of times for an image
        const char first = text[0];
        const char second = text[1];
        if (text_.size() != 2) {
            text_ = "00";
        }
        text_[0] = first;
        text_[1] = second;
    } else {
        text_ = text;
    }
    textChanged();
}

void Control::takeText(std::string text) {
    text_ = std::move(text);
    textChanged();
}

void Control::textChanged() {
    selStart_ = 0;
    selLength_ = 0;
    if (kind_ == ControlKind::Combo) {
        const auto row = std::find(rows_.begin(), rows_.end(), text_);
        value_ = row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
    }
    changed();
}

const std::string& Control::caption() const {
    if (!lentCaption_.empty()) {
        caption_ = lentCaption_;
        lentCaption_ = {};
    }
    return caption_;
}

void Control::setCaption(std::string_view caption) {
    caption_ = caption;
    lentCaption_ = {};
    changed();
}

void Control::setCaption(Texts texts) {
    join(caption_, texts);
    lentCaption_ = {};
    changed();
}

void Control::lendCaption(std::string_view caption) {
    caption_.clear();
    lentCaption_ = caption;
    changed();
}

void Control::changeValue(int value) {
    switch (kind_) {
        case ControlKind::Option:
            if (value != 0 && array_ != nullptr) {
                for (int i = array_->first(); i <= array_->last(); ++i) {
                    Control& other = (*array_)(i);
                    if (&other != this && other.value_ != 0) {
                        other.value_ = 0;
                        other.changed();
                    }
                }
            }
            value_ = value != 0 ? -1 : 0;
            break;
        case ControlKind::Combo:
            if (value < -1 || value >= static_cast<int>(rows_.size())) {
                throw Failure(FailureKind::InvalidCall);
            }
            value_ = value;
            text_ = value < 0 ? std::string_view() : rows_[static_cast<std::size_t>(value)];
            break;
        default:
            value_ = value;
            break;
    }
    changed();
}

void Control::setValue(int value) {
    const int before = value_;
    if (kind_ == ControlKind::Option) {
        const bool becomesSelected = value != 0 && before == 0;
        if ((value != 0) == (before != 0)) {
            return;
        }
        changeValue(value);
        if (becomesSelected) {
            raiseClick();
        }
        return;
    }
    if (value == before) {
        return;
    }
    changeValue(value);
    raiseClick();
}

void Control::raiseClick() {
    if (handlers_->click != nullptr) {
        handlers_->click(screen_->workbench(), index_);
    }
}

bool Control::visible() const {
    if (!screen_->shown()) {
        return false;
    }
    for (const Control* control = this; control != nullptr; control = control->container_) {
        if (!control->visible_) {
            return false;
        }
    }
    return true;
}

void Control::setVisible(bool visible) {
    if (visible_ != visible) {
        visible_ = visible;
        changed();
    }
}

void Control::setEnabled(bool enabled) {
    if (enabled_ != enabled) {
        enabled_ = enabled;
        changed();
    }
}

bool Control::usable() const {
    for (const Control* control = this; control != nullptr; control = control->container_) {
        if (!control->visible_ || !control->enabled_) {
            return false;
        }
    }
    return true;
}

bool Control::takesFocus() const {
    return kind_ != ControlKind::Label && kind_ != ControlKind::Frame && kind_ != ControlKind::Menu;
}

void Control::setLocked(bool locked) {
    if (locked_ != locked) {
        locked_ = locked;
        changed();
    }
}

void Control::setBackColor(CellColour colour) {
    if (backColor_ != colour) {
        backColor_ = colour;
        changed();
    }
}

void Control::setFontBold(bool bold) {
    if (fontBold_ != bold) {
        fontBold_ = bold;
        changed();
    }
}

void Control::setMaxLength(int length) {
    if (maxLength_ != length) {
        maxLength_ = length;
        changed();
    }
}

void Control::setSelection(int start, int length) {
    const int size = static_cast<int>(text_.size());
    selStart_ = std::clamp(start, 0, size);
    selLength_ = std::clamp(length, 0, size - selStart_);
    changed();
}

void Control::setBounds(const Bounds& bounds) {
    bounds_ = bounds;
    changed();
}

void Control::setTop(int top) {
    bounds_.top = top;
    changed();
}

void Control::setHeight(int height) {
    bounds_.height = height;
    changed();
}

void Control::takeOver(const Control& asMade) {
    value_ = asMade.value_;
    maxLength_ = asMade.maxLength_;
    tag_ = asMade.tag_;
    selStart_ = asMade.selStart_;
    selLength_ = asMade.selLength_;
    bounds_ = asMade.bounds_;
    backColor_ = asMade.backColor_;
    visible_ = asMade.visible_;
    enabled_ = asMade.enabled_;
    locked_ = asMade.locked_;
    fontBold_ = asMade.fontBold_;
    takeOverText(text_, asMade.text_);
    takeOverText(caption_, asMade.caption_);
    lentCaption_ = asMade.lentCaption_;
    rows_ = asMade.rows_;
    markAsMade();
}

void Control::changed() {
    touched_ = true;
    screen_->controlChanged(*this);
}

SingleControl::SingleControl(Screen& screen, std::string_view name, ControlKind kind, Control* container,
                             std::string_view caption)
    : Control(screen, name, kind, container, on, nullptr, noIndex) {
    if (!caption.empty()) {
        lendCaption(caption);
    }
}

ControlArray::ControlArray(Screen& screen, std::string_view name, ControlKind kind, int first, int count,
                           Control* container)
    : name_(name),
      first_(first),
      count_(count),
      elements_(std::allocator<Control>().allocate(static_cast<std::size_t>(count))) {
    for (int i = 0; i < count; ++i) {
        std::construct_at(elements_ + i, screen, name, kind, container, on, this, first + i);
    }
}

ControlArray::~ControlArray() {
    std::destroy_n(elements_, count_);
    std::allocator<Control>().deallocate(elements_, static_cast<std::size_t>(count_));
}

int ControlArray::firstSelected(int from, int to, int none) {
    for (int i = from; i <= to; ++i) {
        if ((*this)(i).selected()) {
            return i;
        }
    }
    return none;
}

void ControlArray::deselect(int to) {
    for (int i = first_; i <= to; ++i) {
        (*this)(i).setValue(0);
    }
}

void ControlArray::setCaptions(std::initializer_list<std::string_view> captions) {
    int index = first_;
    for (const std::string_view caption : captions) {
        (*this)(index++).lendCaption(caption);
    }
}

void SelectAllInControl(Control& control) {
    control.setSelection(0, static_cast<int>(control.text().size()));
}

} // namespace wb
