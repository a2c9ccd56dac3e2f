#include "desktop/windows/modal_view.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "desktop/base/titles.h"
#include "desktop/views/keys.h"
#include "desktop/windows/screen_page.h"

namespace wb::desktop {

ModalWindow::ModalWindow(ModalView& view, QWidget* owner) : QDialog(owner), view_(view) {
    setWindowModality(Qt::ApplicationModal);
}

void ModalWindow::reject() {
    view_.askToClose();
}

void ModalWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    view_.askToClose();
}

ModalView::ModalView(Screen& screen, UserActions& actions, QWidget* owner)
    : ScreenView(screen, actions), window_(new ModalWindow(*this, owner)) {
    auto* layout = new QVBoxLayout(window_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto* page = new ScreenPage(screen, actions);
    layout->addWidget(page);
    addPage(*page);
}

ModalView::~ModalView() {
    delete window_;
}

void ModalView::refresh() {
    setTitle(*window_, screen()->caption());
    if (window_->isHidden() == screen()->shown()) {
        window_->setVisible(screen()->shown());
        showFocus(*window_); // Return takes the button in focus; Qt begins by hiding which one
    }
}

} // namespace wb::desktop
