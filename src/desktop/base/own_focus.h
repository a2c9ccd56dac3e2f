#pragma once

#include <QWidget>

/// Boxes of the view itself, such as that of a search: no control stands behind them, so that the model knows nothing
/// of their focus.
namespace wb::desktop {

/// Lets the focus stay in the widget, and in what is inside it, until the user or the model moves it on.
void markOwnFocus(QWidget& widget);
/// Whether the widget, which may be null, is such a box or inside one.
bool keepsOwnFocus(const QWidget* widget);

} // namespace wb::desktop
