#pragma once

#include <QString>

namespace wb::desktop {

/// "1 byte", "2 bytes" of what is named in the singular.
inline QString counted(qsizetype count, const QString& what) {
    return QString("%1 %2").arg(count).arg(count == 1 ? what : what + 's');
}

} // namespace wb::desktop
