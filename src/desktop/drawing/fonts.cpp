#include "desktop/drawing/fonts.h"

#include <QFontDatabase>

namespace wb::desktop {

QFont fixedPitchFont() {
    QFont font;
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

} // namespace wb::desktop
