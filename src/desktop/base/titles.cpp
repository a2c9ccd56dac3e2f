#include "desktop/base/titles.h"

#include "desktop/base/text_codec.h"

namespace wb::desktop {

void setTitle(QWidget& window, std::string_view title, ChangeMark mark) {
    QString text = titleText(title).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    if (mark == ChangeMark::WhenModified) {
        text += QLatin1String("[*]");
    }
    if (window.windowTitle() != text) {
        window.setWindowTitle(text);
    }
}

void setModified(QWidget& window, bool modified) {
    if (window.isWindowModified() != modified) {
        window.setWindowModified(modified);
    }
}

} // namespace wb::desktop
