#pragma once

#include <QSettings>

#include "platform/services.h"

namespace wb::desktop {

/// Per-user settings where the system keeps them, in the section "Settings".
class QtSettings : public platform::Settings {
public:
    QtSettings();
    /// In that file instead.
    explicit QtSettings(const QString& file);

    std::optional<std::string> read(const std::string& name) const override;
    void write(const std::string& name, const std::string& value) override;

private:
    QSettings store_;
};

} // namespace wb::desktop
