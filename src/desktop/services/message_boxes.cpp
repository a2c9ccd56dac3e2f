#include "desktop/services/message_boxes.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include "desktop/base/text_codec.h"
#include "desktop/base/titles.h"
#include "desktop/services/owner.h"

namespace wb::desktop {

namespace {

/// A question with Yes and No has no way around: Escape must not pick the answer that loses changes.
class Question : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!event->matches(QKeySequence::Cancel)) {
            QMessageBox::keyPressEvent(event);
        }
    }
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

QMessageBox::Icon iconOf(platform::Icon icon) {
    switch (icon) {
        case platform::Icon::Question:
            return QMessageBox::Question;
        case platform::Icon::Information:
            return QMessageBox::Information;
        case platform::Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

int run(QMessageBox& window, const platform::MessageBox& box, QMessageBox::StandardButtons buttons) {
    window.setTextFormat(Qt::PlainText);
    window.setText(titleText(box.text));
    window.setIcon(iconOf(box.icon));
    window.setStandardButtons(buttons);
    setTitle(window, box.title);
    return window.exec();
}

} // namespace

platform::Answer QtMessageBoxes::show(const platform::MessageBox& box) {
    gate_.announceEventLoop();
    if (box.buttons == platform::Buttons::Ok) {
        QMessageBox window(dialogOwner());
        run(window, box, QMessageBox::Ok);
        return platform::Answer::Ok;
    }
    Question window(dialogOwner());
    const int answer = run(window, box, QMessageBox::Yes | QMessageBox::No);
    return answer == QMessageBox::Yes ? platform::Answer::Yes : platform::Answer::No;
}

} // namespace wb::desktop
