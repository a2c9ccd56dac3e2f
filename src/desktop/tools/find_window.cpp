#include "desktop/tools/find_window.h"

#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/base/own_focus.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

FindWindow::FindWindow(MainView& frame)
    : QDialog(&frame.window()), frame_(frame), box_(new QLineEdit), outcome_(new QLabel) {
    markOwnFocus(*this);
    setObjectName("findCells");
    setWindowTitle("Find Byte or Text");
    auto* words = new QLabel("&Bytes in hexadecimal, or a text:");
    words->setBuddy(box_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* next = buttons->addButton("&Next", QDialogButtonBox::ActionRole);
    auto* previous = buttons->addButton("&Previous", QDialogButtonBox::ActionRole);
    for (QAbstractButton* button : buttons->buttons()) {
        static_cast<QPushButton*>(button)->setAutoDefault(false); // Enter is the box's
    }
    QObject::connect(box_, &QLineEdit::returnPressed, this, [this] { look(shell::Direction::Forward); });
    QObject::connect(next, &QPushButton::clicked, this, [this] { look(shell::Direction::Forward); });
    QObject::connect(previous, &QPushButton::clicked, this, [this] { look(shell::Direction::Backward); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(words), static_cast<QWidget*>(box_), static_cast<QWidget*>(outcome_),
                            static_cast<QWidget*>(buttons)}) {
        column->addWidget(widget);
    }
}

void FindWindow::open() {
    show();
    raise();
    activateWindow();
    box_->setFocus(Qt::ShortcutFocusReason);
    box_->selectAll();
}

void FindWindow::look(shell::Direction direction) {
    frame_.act([text = fromUnicode(box_->text()), direction, window = QPointer<FindWindow>(this)](Screen& screen) {
        const bool found = shell::findBytes(screen.workbench(), text, direction);
        if (window != nullptr) {
            window->outcome_->setText(found ? QString() : QString("Not found"));
        }
    });
}

} // namespace wb::desktop
