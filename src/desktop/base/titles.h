#pragma once

#include <QWidget>
#include <string_view>

namespace wb::desktop {

enum class ChangeMark { Never, WhenModified };

/// Sets the title of a window. A "[*]" in it is no mark for changes but part of the text, such as a file name. The
/// platform's own mark for changes stands behind the title while the window is modified, if it is asked for.
void setTitle(QWidget& window, std::string_view title, ChangeMark mark = ChangeMark::Never);

/// Shows or hides that mark. Qt would paint the title and tell the platform anew though nothing has changed.
void setModified(QWidget& window, bool modified);

} // namespace wb::desktop
