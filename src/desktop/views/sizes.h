#pragma once

#include <QLineEdit>

namespace wb::desktop {

/// The width that a box needs to show that many characters of its font.
int widthOfText(const QLineEdit& box, int characters);
int widthOfCharacters(const QWidget& widget, int characters);
/// Keeps room for that many characters, and for all of what the widget shows now.
void keepWidth(QWidget& widget, int characters);

} // namespace wb::desktop
