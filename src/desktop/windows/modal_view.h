#pragma once

#include <QDialog>
#include <QPointer>

#include "desktop/windows/screen_view.h"

namespace wb::desktop {

class ModalView;

/// The window of a modal screen: everything else is out of reach while it is up. Escape and its close button ask the
/// model.
class ModalWindow : public QDialog {
public:
    ModalWindow(ModalView& view, QWidget* owner);

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    ModalView& view_;
};

class ModalView : public ScreenView {
public:
    ModalView(Screen& screen, UserActions& actions, QWidget* owner);
    ~ModalView() override;

    QWidget& window() override { return *window_; }
    void refresh() override;

private:
    QPointer<ModalWindow> window_; ///< belongs to its owner too
};

} // namespace wb::desktop
