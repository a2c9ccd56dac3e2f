#include "desktop/tools/edit_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <array>
#include <string_view>
#include <utility>

#include "core/workbench.h"
#include "desktop/base/counted.h"
#include "desktop/base/text_codec.h"
#include "desktop/tools/import_ways.h"
#include "shell/export_image.h"
#include "shell/go_to_byte.h"
#include "shell/paste_bytes.h"

namespace wb::desktop {

namespace {

struct Copy {
    std::string_view form;
    const char* words;
};

constexpr std::array<Copy, 3> copies = {{{"hex", "&Hexadecimal"}, {"c", "&C Array"}, {"base64", "&Base64"}}};

QString stepText(const QString& command, const std::string& name) {
    return name.empty() ? command : command + ' ' + QString::fromStdString(name).replace('&', QLatin1String("&&"));
}

void copyText(const QString& text) {
    if (!text.isEmpty()) {
        QApplication::clipboard()->setText(text);
    }
}

std::string clipboardText() {
    return QApplication::clipboard()->text().toStdString();
}

} // namespace

EditMenu::EditMenu(MainView& frame) : frame_(frame), menu_(new QMenu("&Edit", &frame.window())) {
    frame.window().menuBar()->insertMenu(&frame.entry(frame.frame().mnuWindow), menu_);
    undo_ = &add(*menu_, "editUndo", "&Undo", {Qt::CTRL | Qt::Key_Z},
                 [](Workbench& workbench) { workbench.history->undo(); });
    redo_ = &add(*menu_, "editRedo", "&Redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
                 [](Workbench& workbench) { workbench.history->redo(); });
    menu_->addSeparator();
    makeCopies();
    copyField_ = &add(*menu_, "editCopyField", "Copy &Field", {Qt::CTRL | Qt::SHIFT | Qt::Key_C},
                      [](Workbench& workbench) { copyText(QString::fromStdString(shell::fieldText(workbench))); });
    paste_ = &add(*menu_, "editPaste", "&Paste Bytes", {Qt::CTRL | Qt::SHIFT | Qt::Key_V},
                  [this](Workbench& workbench) { paste(workbench); });
    add(*menu_, "editPasteImage", "Paste &Image as New", {},
        [this](Workbench& workbench) { shell::importText(workbench, clipboardText(), importWays(frame_)); });
    menu_->addSeparator();
    find_ = menu_->addAction("Fi&nd Byte or Text...");
    find_->setObjectName("editFind");
    find_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_B);
    QObject::connect(find_, &QAction::triggered, &frame, [this] { find(); });
    // Naming a step costs a reading of the image, and nobody sees the name before.
    QObject::connect(menu_, &QMenu::aboutToShow, &frame, [this] { nameSteps(); });
}

QAction& EditMenu::add(QMenu& menu, const QString& name, const QString& text, const QList<QKeySequence>& keys,
                       Act act) {
    QAction* action = menu.addAction(text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    QObject::connect(action, &QAction::triggered, &frame_,
                     [this, act = std::move(act)] { frame_.act([act](Screen& screen) { act(screen.workbench()); }); });
    return *action;
}

void EditMenu::makeCopies() {
    copies_ = menu_->addMenu("&Copy Image as");
    for (const Copy& copy : copies) {
        const forms::WrittenForm* form = forms::writtenForm(copy.form);
        add(*copies_, "editCopy." + toUnicode(copy.form), copy.words, {},
            [form](Workbench& workbench) { copyText(toUnicode(shell::imageText(workbench, *form)).trimmed()); });
    }
}

void EditMenu::refresh() {
    const Workbench& workbench = frame_.frame().workbench();
    const bool image = workbench.EDIDLoaded != flagFalse;
    const bool cell = image && shell::focusedByte(workbench).has_value();
    undo_->setEnabled(workbench.history->canUndo());
    redo_->setEnabled(workbench.history->canRedo());
    copies_->setEnabled(image);
    copyField_->setEnabled(cell);
    paste_->setEnabled(cell && workbench.ModifyEDIDOn != flagFalse);
    find_->setEnabled(image);
}

void EditMenu::nameSteps() {
    if (frame_.screen() != nullptr) {
        const ChangeHistory& history = *frame_.frame().workbench().history;
        undo_->setText(stepText("&Undo", history.undoName()));
        redo_->setText(stepText("&Redo", history.redoName()));
    }
}

void EditMenu::paste(Workbench& workbench) {
    const shell::Pasted pasted = shell::pasteBytes(workbench, clipboardText());
    const QString bytes = counted(static_cast<qsizetype>(pasted.pairs), "byte");
    frame_.tell("Pasted " + bytes + (pasted.all ? "" : ", the rest is left"));
}

void EditMenu::find() {
    if (findWindow_.isNull()) {
        findWindow_ = new FindWindow(frame_);
    }
    findWindow_->open();
}

} // namespace wb::desktop
