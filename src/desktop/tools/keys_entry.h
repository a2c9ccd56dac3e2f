#pragma once

#include <QDialog>
#include <QPointer>

#include "desktop/windows/frame_addition.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The entry of the Help menu that lists the keys of the program.
class KeysEntry : public FrameAddition {
public:
    explicit KeysEntry(MainView& frame);

private:
    void show(QWidget& owner);

    QPointer<QDialog> window_;
};

} // namespace wb::desktop
