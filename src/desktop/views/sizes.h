#pragma once

#include <QLineEdit>

namespace wb::desktop {

enum class Measure { Average, Capital };

/// The width that a box needs to show that many characters of its font: usual ones, or capitals as wide as any.
int widthOfText(const QLineEdit& box, int characters, Measure measure = Measure::Average);
/// What a box has for its text.
int innerWidth(const QLineEdit& box);
int widthOfCharacters(const QWidget& widget, int characters);
/// Keeps room for that many characters, and for all of what the widget shows now.
void keepWidth(QWidget& widget, int characters);

} // namespace wb::desktop
