#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QWheelEvent>
#include <optional>

#include "desktop/views/control_view.h"

namespace wb::desktop {

/// A button of any kind: it never changes its own state, tells clicks, and hands its other keys to the model. It does
/// not take the focus on a press, since a box that the focus move causes would swallow the release, and so the click.
template <class Button>
class PassiveButton : public Button {
public:
    explicit PassiveButton(ControlView& view) : view_(view) { this->setFocusPolicy(Qt::TabFocus); }

protected:
    void nextCheckState() override {}
    void keyPressEvent(QKeyEvent* event) override;

    ControlView& view() const { return view_; }

private:
    ControlView& view_;
};

/// A key among others, which may be as narrow as its caption.
class KeyButton : public PassiveButton<QPushButton> {
public:
    explicit KeyButton(ControlView& view);
    QSize minimumSizeHint() const override;
};

class OptionButton : public PassiveButton<QRadioButton> {
public:
    explicit OptionButton(ControlView& view) : PassiveButton(view) {
        // The options of one array exclude each other, whatever widget they stand in, and the model sees to it. To
        // screen readers an option is a radio button only while Qt takes it for an exclusive one; a group that
        // excludes nothing keeps Qt from acting on that.
        auto* group = new QButtonGroup(this);
        group->setExclusive(false);
        group->addButton(this);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void step(int direction);
};

/// A button, an option or a check.
class ButtonView : public ControlView {
public:
    ButtonView(Control& control, const Place& place, UserActions& actions);

    QWidget* widget() const override { return button_; }
    void refresh() override;
    /// The options of an array are one stop of the Tab key: the selected one, or the first within reach. Depends on
    /// what contains them too.
    void refreshTabStop();

private:
    QAbstractButton* make();
    void keepRoom();

    QAbstractButton* button_;
    std::optional<QFont> longestFont_; ///< in which the longest caption has been measured
    int longestWidth_ = 0;             ///< in pixels
};

class RowBox : public QComboBox {
public:
    explicit RowBox(ControlView& view) : view_(view) { setFocusPolicy(Qt::TabFocus); }
    void showPopup() override;
    void hidePopup() override;
    /// A row has been picked from the list.
    void notePick() { listOpen_ = false; }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override;

private:
    void clickUnlessPicked();

    ControlView& view_;
    bool listOpen_ = false;
};

class ComboView : public ControlView {
public:
    ComboView(Control& control, const Place& place, UserActions& actions);

    QWidget* widget() const override { return box_; }
    void refresh() override;

private:
    RowBox* box_;
};

} // namespace wb::desktop
