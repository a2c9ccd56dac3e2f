#pragma once

#include <QString>

namespace wb::desktop {

/// What is to be set as a tool tip for a text to be shown as it is. Qt takes a tip for rich text where it finds a tag
/// in it, and only there: an escaped text without one would be shown with its escapes.
QString toolTipOf(const QString& text);

} // namespace wb::desktop
