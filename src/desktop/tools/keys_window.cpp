#include "desktop/tools/keys_window.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFontMetrics>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/base/own_focus.h"

namespace wb::desktop {

KeysWindow::KeysWindow(QWidget& owner) : QDialog(&owner) {
    constexpr int columns = 84;
    constexpr int lines = 32;
    markOwnFocus(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("Keys");
    auto* page = new QTextBrowser;
    page->setAccessibleName("Keys of the program");
    QFile file(":/docs/keyboard.md");
    if (file.open(QIODevice::ReadOnly)) {
        page->setMarkdown(QString::fromUtf8(file.readAll()));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(page);
    column->addWidget(buttons);
    const QFontMetrics metrics(font());
    const QSize wanted(metrics.averageCharWidth() * columns, metrics.lineSpacing() * lines);
    resize(wanted.boundedTo(owner.screen()->availableSize() * 0.9));
}

} // namespace wb::desktop
