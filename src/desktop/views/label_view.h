#pragma once

#include <QGroupBox>
#include <QLabel>

#include "desktop/views/control_view.h"

namespace wb::desktop {

/// A label tells clicks where the model listens to them; otherwise they go through to what is behind it. A double click
/// is its own in any case: it is none on the panel behind it.
class CaptionLabel : public QLabel {
public:
    explicit CaptionLabel(ControlView& view) : view_(view) {}

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    ControlView& view_;
};

class LabelView : public ControlView {
public:
    LabelView(Control& control, const Place& place, UserActions& actions);

    QWidget* widget() const override { return label_; }
    void refresh() override;
    /// Gives a label the width of its place, and one of several lines the height that it needs in that.
    void fitSize();
    bool clickable() const;

private:
    CaptionLabel* label_;
};

class PanelBox : public QGroupBox {
public:
    explicit PanelBox(ControlView& view) : view_(view) {}

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    ControlView& view_;
};

class FrameView : public ControlView {
public:
    FrameView(Control& control, const Place& place, UserActions& actions);

    QWidget* widget() const override { return box_; }
    void refresh() override;

private:
    PanelBox* box_;
};

} // namespace wb::desktop
