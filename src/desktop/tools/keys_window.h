#pragma once

#include <QDialog>

namespace wb::desktop {

/// The list of the program's keys, from its own documents; stays open beside the work.
class KeysWindow : public QDialog {
public:
    explicit KeysWindow(QWidget& owner);
};

} // namespace wb::desktop
