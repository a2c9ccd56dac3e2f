#include "desktop/tools/file_entries.h"

#include <QFileInfo>

#include "desktop/base/text_codec.h"
#include "desktop/base/tool_tip.h"
#include "desktop/tools/import_ways.h"
#include "forms/writers.h"
#include "shell/export_image.h"

namespace wb::desktop {

namespace {

constexpr qsizetype mostNames = 8;

std::string settingOf(qsizetype place) {
    return "RecentFile" + std::to_string(place + 1);
}

} // namespace

FileEntries::FileEntries(MainView& frame)
    : frame_(frame),
      workbench_(frame.frame().workbench()),
      export_(new QMenu("Export I&mage", &frame.window())),
      recent_(new QMenu("&Recent Files", &frame.window())) {
    QMenu& file = frame.menu(frame.frame().mnuFile);
    QAction& exit = frame.entry(frame.frame().mnuFileExit);
    auto* import = new QAction("&Import...", &frame.window());
    import->setObjectName("fileImport");
    import->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    QObject::connect(import, &QAction::triggered, &frame, [this] { this->import(); });
    file.insertAction(&exit, import);
    file.insertMenu(&exit, export_);
    file.insertMenu(&exit, recent_);
    file.insertSeparator(&exit);
    recent_->setObjectName("fileRecent");
    makeExport();
    readRecent();
    QObject::connect(recent_, &QMenu::aboutToShow, &frame, [this] { listRecent(); });
}

/// Not before the end: what a session looks at among the settings is what the program itself has put there.
FileEntries::~FileEntries() {
    platform::Settings& settings = workbench_.platform.settings;
    for (qsizetype i = 0; i < mostNames; ++i) {
        const std::string name = fileNameBytes(names_.value(i));
        if (settings.read(settingOf(i)).value_or("") != name) {
            settings.write(settingOf(i), name);
        }
    }
}

void FileEntries::readRecent() {
    for (qsizetype i = 0; i < mostNames; ++i) {
        const auto name = workbench_.platform.settings.read(settingOf(i));
        if (name && !name->empty()) {
            names_.append(fromFileNameBytes(*name));
        }
    }
}

void FileEntries::makeExport() {
    for (const forms::WrittenForm& form : forms::writtenForms()) {
        QString words = toUnicode(form.words);
        words.front() = words.front().toUpper();
        QAction* entry = export_->addAction(words + "...");
        entry->setObjectName("fileExport." + toUnicode(form.name));
        QObject::connect(entry, &QAction::triggered, &frame_, [this, &form] {
            frame_.act([&form](Screen& screen) { shell::exportImage(screen.workbench(), form); });
        });
    }
}

void FileEntries::import() {
    frame_.act([this](Screen& screen) {
        const std::string name = shell::importImage(screen.workbench(), importWays(frame_));
        if (!name.empty()) {
            note(fromFileNameBytes(name));
        }
    });
}

bool FileEntries::openNamed(const QString& name) {
    frame_.act([this, &name](Screen& screen) {
        if (shell::importFile(screen.workbench(), fileNameBytes(name), importWays(frame_))) {
            note(name);
        }
    });
    return true;
}

void FileEntries::refresh() {
    export_->setEnabled(workbench_.EDIDLoaded != flagFalse);
    recent_->setEnabled(!names_.empty());
    if (workbench_.EDIDLoaded != flagFalse && workbench_.CurrentFileName != openName_) {
        openName_ = workbench_.CurrentFileName;
        if (const QString name = fromFileNameBytes(openName_); QFileInfo(name).isFile()) {
            note(name);
        }
    }
}

void FileEntries::note(const QString& name) {
    const QString whole = QFileInfo(name).absoluteFilePath();
    names_.removeAll(whole);
    names_.prepend(whole);
    names_ = names_.mid(0, mostNames);
}

void FileEntries::listRecent() {
    recent_->clear();
    int number = 0;
    for (const QString& name : names_) {
        const QString title = QFileInfo(name).fileName().replace('&', QLatin1String("&&"));
        QAction* entry = recent_->addAction(QString("&%1 %2").arg(++number).arg(title));
        entry->setToolTip(toolTipOf(name));
        QObject::connect(entry, &QAction::triggered, &frame_, [this, name] { reopen(name); });
    }
    recent_->setToolTipsVisible(true);
}

void FileEntries::reopen(const QString& name) {
    frame_.act([this, name](Screen& screen) {
        if (shell::reopenFile(screen.workbench(), fileNameBytes(name), importWays(frame_))) {
            note(name);
        } else if (!QFileInfo(name).isFile()) {
            names_.removeAll(name);
        }
    });
}

} // namespace wb::desktop
