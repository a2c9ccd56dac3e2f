#pragma once

#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/layouts/layout.h"
#include "desktop/views/control_view.h"

class QGridLayout;

namespace wb::desktop {

class PanelPicture;

/// The inside of a window: the widgets of one screen, placed by its layout table. It never asks for less room than it
/// once did, so that panels that come and go do not shake the window.
class ScreenPage : public QWidget {
public:
    ScreenPage(Screen& screen, UserActions& actions);
    ~ScreenPage() override;

    const std::vector<std::unique_ptr<ControlView>>& views() const { return views_; }
    void refreshTabStops();
    /// A call into the model has returned.
    void refreshPicture();
    /// The first control of the shown panel in tab order or, from inside the panel, the cell of the field shown: where
    /// the focus goes to change between the two. Null where there is none.
    Control* otherSide(const Control* from) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Whether the Tab key stops at the widget of the control.
    bool isTabStop(const Control& control) const;
    void fill(QWidget& parent, const Area& area);
    void placeControls(QWidget& parent, QGridLayout& grid, const Place& place);
    QWidget* makeGroup(QWidget& parent, const Place& place);
    QWidget* makeControl(QWidget& parent, Control& control, const Place& place);
    void setTabOrder();
    void refreshPalette();

    Screen& screen_;
    const ScreenLayout& layout_;
    UserActions& actions_;
    std::vector<std::unique_ptr<ControlView>> views_;
    std::unique_ptr<PanelPicture> picture_; ///< of a block screen
    bool isExtension_; ///< known still when the toolkit asks for the size of a window whose screen has gone
    std::optional<QPalette> followed_; ///< of the program, whose colours the page has
    mutable QSize largest_;
};

/// The view of a control of that kind.
std::unique_ptr<ControlView> makeView(Control& control, const Place& place, UserActions& actions);
/// The control that a layout table means. One that is missing is a mistake in the table: a std::logic_error that names
/// it.
Control& controlAt(const Screen& screen, std::string_view name, int index);

} // namespace wb::desktop
