#pragma once

#include <QListWidget>
#include <QToolButton>
#include <vector>

#include "desktop/tools/tool_dock.h"

namespace wb::desktop {

/// The findings of an image as they are told: the gravest first, else in the order of their bytes.
std::vector<fields::Finding> gravestFirst(const std::vector<fields::Finding>& findings);
/// How many errors and warnings there are; without any of them, how many notes: "2 errors, 1 warning".
QString countText(const std::vector<fields::Finding>& findings);

/// What is wrong with the image, and how much of it in the status bar: a click there opens the dock, one on a finding
/// leads to its byte.
class FindingsDock : public ToolDock {
public:
    explicit FindingsDock(MainView& frame);

    /// Goes on to the next finding after the cell in focus, or to the previous one before it, and from the last byte on
    /// to the first.
    void step(int by);

protected:
    void showImage(const LiveReading& live) override;

private:
    void makeList();
    void makeCount();
    void showCount();

    QListWidget* list_;
    QToolButton* count_;
};

} // namespace wb::desktop
