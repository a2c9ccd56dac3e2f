#pragma once

#include <QMenu>
#include <functional>
#include <memory>

#include "desktop/tools/colour_choice.h"
#include "desktop/tools/dock_places.h"
#include "desktop/tools/fields_dock.h"
#include "desktop/tools/findings_dock.h"
#include "desktop/tools/zoom.h"
#include "desktop/windows/frame_addition.h"

namespace wb::desktop {

/// The View menu, and what it shows and hides.
class ViewMenu : public FrameAddition {
public:
    explicit ViewMenu(MainView& frame);

    void refresh() override;

private:
    void addEntry(const QString& text, const QKeySequence& keys, const std::function<void()>& act);
    /// The entry that opens and closes the dock.
    void addDock(ToolDock& dock, const QString& text, const QKeySequence& keys);

    QMenu& menu_;
    FieldsDock& fields_;
    FindingsDock& findings_;
    DockPlaces places_;
    std::unique_ptr<Zoom> zoom_;
    std::unique_ptr<ColourChoice> colours_;
};

} // namespace wb::desktop
