#include "desktop/services/dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>

#include "desktop/base/text_codec.h"
#include "desktop/services/owner.h"

namespace wb::desktop {

namespace {

QString offeredPath(const platform::FileDialogRequest& request) {
    const QDir folder(fromFileNameBytes(request.folder));
    return request.name.empty() ? folder.path() : folder.filePath(fromFileNameBytes(request.name));
}

} // namespace

QString dialogFilter(const std::string& filter) {
    const QStringList parts = toUnicode(filter).split('|');
    if (parts.size() < 2) {
        return toUnicode(filter);
    }
    QString words = parts[0];
    words.remove('(' + parts[1] + ')');
    const bool isAny = parts[1] == "*.*"; // which Qt takes at its word, though many files have no ending
    return words.trimmed() + " (" + (isAny ? "*" : QString(parts[1]).replace(';', ' ')) + ')';
}

std::string QtDialogs::openFile(const platform::FileDialogRequest& request) {
    gate_.announceEventLoop();
    return fileNameBytes(QFileDialog::getOpenFileName(dialogOwner(), toUnicode(request.title), offeredPath(request),
                                                      dialogFilter(request.filter)));
}

std::string QtDialogs::saveFile(const platform::FileDialogRequest& request) {
    gate_.announceEventLoop();
    // The program itself asks whether to replace a file.
    return fileNameBytes(QFileDialog::getSaveFileName(dialogOwner(), toUnicode(request.title), offeredPath(request),
                                                      dialogFilter(request.filter), nullptr,
                                                      QFileDialog::DontConfirmOverwrite));
}

bool QtDialogs::print(const std::string& title, int flags) {
    gate_.announceEventLoop();
    QPrintDialog dialog(&printer_.device(), dialogOwner());
    dialog.setWindowTitle(toUnicode(title));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, (flags & platform::printNoPageNumbers) == 0);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, (flags & platform::printSelection) != 0);
    if ((flags & platform::printSelection) != 0) {
        dialog.setPrintRange(QAbstractPrintDialog::Selection);
    }
    return dialog.exec() == QDialog::Accepted;
}

bool QtDialogs::pageSetup(const std::string& title) {
    gate_.announceEventLoop();
    QPageSetupDialog dialog(&printer_.device(), dialogOwner());
    dialog.setWindowTitle(toUnicode(title));
    return dialog.exec() == QDialog::Accepted;
}

} // namespace wb::desktop
