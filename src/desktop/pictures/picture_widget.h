#pragma once

#include <QWidget>
#include <functional>

#include "desktop/pictures/shape.h"

namespace wb::desktop {

/// Paints a picture in the colours of the palette, sharp at any resolution, and tells what is picked in it.
class PictureWidget : public QWidget {
public:
    PictureWidget();

    void setPicture(Picture picture);
    const Picture& picture() const { return picture_; }

    /// Whether a click can pick that now.
    std::function<bool(const Pick&)> canPick;
    std::function<void(const Pick&)> pick;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    const Shape* pickableAt(const QPointF& point) const;

    Picture picture_;
};

} // namespace wb::desktop
