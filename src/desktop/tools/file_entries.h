#pragma once

#include <QAction>
#include <QMenu>
#include <QStringList>

#include "desktop/windows/frame_addition.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The entries of the File menu behind the given ones, before Exit: images in every form, in and out, and the files
/// that were open last, which the settings keep from one start to the next.
class FileEntries : public FrameAddition {
public:
    explicit FileEntries(MainView& frame);
    ~FileEntries() override;

    void refresh() override;
    bool openNamed(const QString& name) override;

private:
    void makeExport();
    void import();
    void listRecent();
    void reopen(const QString& name);
    void note(const QString& name);
    void readRecent();

    MainView& frame_;
    Workbench& workbench_;
    QMenu* export_;
    QMenu* recent_;
    QStringList names_;    ///< the latest first
    std::string openName_; ///< the last one that was noted
};

} // namespace wb::desktop
