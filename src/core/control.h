#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/failure.h"
#include "core/base/text.h"

namespace wb {

struct Workbench;
class Screen;
class ControlArray;

enum class ControlKind : std::uint8_t { Text, Label, Option, Check, Combo, Frame, Button, Document, Menu };

/// Background of a cell: the window's own, or one of the two highlight colours.
enum class CellColour : std::uint8_t { Window, Group, Field };

/// What happens on the events of a control (all members of an array share it). Empty slots do nothing.
struct Handlers {
    void (*click)(Workbench&, int index) = nullptr;
    void (*dblClick)(Workbench&, int index) = nullptr;
    void (*gotFocus)(Workbench&, int index) = nullptr;
    void (*lostFocus)(Workbench&, int index) = nullptr;
    void (*keyPress)(Workbench&, int index, int& keyAscii) = nullptr; ///< may replace the key, or drop it with 0
    void (*keyUp)(Workbench&, int index, int keyCode) = nullptr;
};

/// A place inside the container, in twips.
struct Bounds {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// A named control of a screen: the model behind whatever a view draws. A property that changes tells the view, if
/// there is one.
class Control {
public:
    static constexpr int noIndex = -1;

    /// `array` is null and `index` is `noIndex` for a control that is in no array. The name must outlive the control.
    Control(Screen& screen, std::string_view name, ControlKind kind, Control* container, Handlers& handlers,
            ControlArray* array, int index);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    std::string_view name() const { return name_; }
    int index() const { return index_; }
    ControlKind kind() const { return kind_; }
    Screen& screen() const { return *screen_; }
    Control* container() const { return container_; }
    const Handlers& handlers() const { return *handlers_; }
    ControlArray* array() const { return array_; }
    /// "frmEDID.txtEdit(8)", or without the brackets for a control that is in no array.
    std::string fullName() const;

    const std::string& text() const { return text_; }
    /// Puts the selection to 0, 0. On a combo the row follows where a row has that text; no event is raised.
    void setText(std::string_view text);
    /// The same with a long text, which is not copied.
    void takeText(std::string text);
    const std::string& caption() const;
    void setCaption(std::string_view caption);
    /// The same with a text that outlives the control. It is copied when it is first asked for: a screen is made with
    /// hundreds of captions, of which few are.
    void lendCaption(std::string_view caption);
    /// The texts one behind the other.
    void setCaption(Texts texts);

    /// Options 0 or -1, checks 0 or 1, combos the row (-1 none).
    int value() const { return value_; }
    bool selected() const { return value_ != 0; }
    /// An option that becomes selected deselects the others of its array and raises Click; a check and a combo raise
    /// Click when their value changes. A combo row that does not exist is an InvalidCall failure.
    void setValue(int value);
    /// The same without any event, for a user's action that raises its own.
    void changeValue(int value);
    /// Runs the Click handler, if there is one.
    void raiseClick();

    /// Shown: its own flag, those of all its containers, and its screen's.
    bool visible() const;
    bool ownVisible() const { return visible_; }
    void setVisible(bool visible);
    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    /// Visible and enabled through all that contains it inside its screen: what a focus move needs.
    bool usable() const;
    bool canTakeFocus() const { return takesFocus() && usable(); }
    /// Of a kind that takes the focus: all but labels, frames and menus.
    bool takesFocus() const;

    /// A locked text takes the focus and its keys, but typing does not change it.
    bool locked() const { return locked_; }
    void setLocked(bool locked);
    CellColour backColor() const { return backColor_; }
    void setBackColor(CellColour colour);
    bool fontBold() const { return fontBold_; }
    void setFontBold(bool bold);
    int maxLength() const { return maxLength_; } ///< 0: no limit; limits typing only
    void setMaxLength(int length);
    /// A number that the program keeps with the control; it has no effect of its own.
    int tag() const { return tag_; }
    void setTag(int tag) {
        tag_ = tag;
        touched_ = true;
    }
    /// The selection in characters of the text; what lies outside the text is cut off.
    int selStart() const { return selStart_; }
    int selLength() const { return selLength_; }
    void setSelection(int start, int length);
    /// The rows of a combo, which outlive it; setting them changes neither value nor text.
    std::span<const std::string_view> rows() const { return rows_; }
    void setRows(std::span<const std::string_view> rows) {
        rows_ = rows;
        touched_ = true;
    }
    /// All 0 where the logic never moves or sizes the control.
    const Bounds& bounds() const { return bounds_; }
    void setBounds(const Bounds& bounds);
    void setTop(int top);
    void setHeight(int height);
    /// For the members of an array that stand in another container than the array's.
    void placeIn(Control& container) { container_ = &container; }

    /// From here on the control counts as unchanged.
    void markAsMade() { touched_ = false; }
    /// Takes every property over from the same control of a screen of the same kind, unless none has changed since the
    /// mark; no view is told.
    void takeBack(const Control& asMade) {
        if (touched_) {
            takeOver(asMade);
        }
    }

private:
    void changed();
    void textChanged();
    void takeOver(const Control& asMade);

    std::string_view name_;
    Screen* screen_;
    Control* container_;
    Handlers* handlers_;
    ControlArray* array_;
    int index_;
    int value_;
    int maxLength_ = 0;
    int tag_ = 0;
    int selStart_ = 0;
    int selLength_ = 0;
    Bounds bounds_;
    ControlKind kind_;
    CellColour backColor_ = CellColour::Window;
    bool visible_ = true;
    bool enabled_ = true;
    bool locked_ = false;
    bool fontBold_ = false;
    bool touched_ = false; ///< a property was set since the mark
    std::string text_;
    mutable std::string caption_;
    mutable std::string_view lentCaption_; ///< in place of the caption, until that is asked for
    std::span<const std::string_view> rows_;
};

/// A control that is in no array.
class SingleControl : public Control {
public:
    SingleControl(Screen& screen, std::string_view name, ControlKind kind, Control* container = nullptr,
                  std::string_view caption = {});

    Handlers on;
};

/// Controls of one name, told apart by an index that need not start at 0. The options of one array are one exclusive
/// group.
class ControlArray {
public:
    ControlArray(Screen& screen, std::string_view name, ControlKind kind, int first, int count,
                 Control* container = nullptr);
    ControlArray(const ControlArray&) = delete;
    ControlArray& operator=(const ControlArray&) = delete;
    ~ControlArray();

    /// The element; an index outside the array is a ControlElementMissing failure.
    Control& operator()(int index) {
        if (index < first_ || index >= first_ + count_) {
            throw Failure(FailureKind::ControlElementMissing);
        }
        return elements_[index - first_];
    }
    std::string_view name() const { return name_; }
    int first() const { return first_; }
    int last() const { return first_ + count_ - 1; }
    /// Index of the first selected element, or `none`; looked for from `from` up to `to`, or among all.
    int firstSelected(int from, int to, int none = -1);
    int firstSelected(int none = -1) { return firstSelected(first(), last(), none); }
    /// Deselects the options or checks one after the other, from the first one up to `to`, or all of them. Each check
    /// that was set raises its Click.
    void deselect(int to);
    void deselect() { deselect(last()); }
    /// Captions of the elements from the first one on; the texts outlive them.
    void setCaptions(std::initializer_list<std::string_view> captions);

    Handlers on;

private:
    std::string_view name_;
    int first_;
    int count_;
    Control* elements_; ///< side by side: a screen has hundreds of them, made and gone through all the time
};

/// Selection start 0, selection length the length of the text.
void SelectAllInControl(Control& control);

} // namespace wb
