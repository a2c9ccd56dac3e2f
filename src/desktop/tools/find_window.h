#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include "desktop/windows/main_view.h"
#include "shell/find_bytes.h"

namespace wb::desktop {

/// Looks for bytes or a text in the cells; stays open beside the work.
class FindWindow : public QDialog {
public:
    explicit FindWindow(MainView& frame);

    /// Comes to the front, ready for typing.
    void open() override;

private:
    void look(shell::Direction direction);

    MainView& frame_;
    QLineEdit* box_;
    QLabel* outcome_;
};

} // namespace wb::desktop
