#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/control.h"

namespace wb {

enum class ScreenId : std::uint8_t {
    Main,
    Splash,
    Edid,
    CeaExt,
    Document,
    HexCalculator,
    Help,
    EdidReg,
    About,
};
inline constexpr int screenCount = 9;

/// The name of a screen, such as "frmEDID".
std::string_view screenName(ScreenId id);

/// A screen is a set of named controls. Screens other than the frame come into being at first touch and run their load
/// step then; unloading one discards it.
class Screen {
public:
    /// `roughly` tells how many controls there will be.
    Screen(Workbench& workbench, ScreenId id, std::string_view caption, std::size_t roughly = 0);
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    Workbench& workbench() const { return *workbench_; }
    ScreenId id() const { return id_; }
    std::string_view name() const { return screenName(id_); }
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);

    /// Hosted by the frame as a child window; the others are the frame, the splash and the modal screens.
    bool isChild() const;

    /// Whether the screen is on view.
    bool shown() const { return shown_; }

    /// All controls in order of creation, which is the tab order.
    const std::vector<Control*>& controls() const { return controls_; }
    /// The control of that name and index, or null.
    Control* find(std::string_view name, int index = Control::noIndex) const;

    /// Notes the control that has got the focus here; null forgets it.
    void setLastFocus(Control* control) { lastFocus_ = control; }
    /// Where the focus goes when the screen gets it: where it last was, else the first in tab order that can take it,
    /// or null.
    Control* focusTarget() const;

    /// Called after the key-up event of any control of the screen, and for bare key codes.
    void (*keyUp)(Workbench&, int keyCode) = nullptr;

    /// What a control tells its screen: that it exists, and that one of its properties has changed.
    void add(Control& control) { controls_.push_back(&control); }
    void controlChanged(Control& control);

    /// The screen is made and connected: what follows counts as a change of its controls.
    void markAsMade();
    /// Puts the screen back to how it was made, which another one of its kind still is. Nobody may draw it.
    void takeBack(const Screen& asMade);

protected:
    /// Gives the fields of the form the values with which they were made.
    virtual void resetFields() {}
    void setFirstInTabOrder(Control& control) { firstInTabOrder_ = &control; }

private:
    friend class Windows; // which alone puts screens on view and takes them off

    void setShown(bool shown);

    Workbench* workbench_;
    ScreenId id_;
    bool shown_ = false;
    std::string caption_;
    std::vector<Control*> controls_;
    Control* lastFocus_ = nullptr;
    Control* firstInTabOrder_ = nullptr;
};

} // namespace wb
