#include "desktop/services/settings.h"

#include "desktop/base/text_codec.h"

namespace wb::desktop {

namespace {

constexpr const char* title = "EDID DDC Field Workbench"; // the program's, without what a file name must not hold

QString keyOf(const std::string& name) {
    return "Settings/" + toUnicode(name);
}

} // namespace

QtSettings::QtSettings() : store_(QSettings::NativeFormat, QSettings::UserScope, title) {}

QtSettings::QtSettings(const QString& file) : store_(file, QSettings::IniFormat) {}

std::optional<std::string> QtSettings::read(const std::string& name) const {
    const QVariant value = store_.value(keyOf(name));
    return value.isValid() ? std::optional(fromUnicode(value.toString())) : std::nullopt;
}

void QtSettings::write(const std::string& name, const std::string& value) {
    store_.setValue(keyOf(name), toUnicode(value));
}

} // namespace wb::desktop
