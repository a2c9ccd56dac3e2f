#pragma once

#include <QLineEdit>
#include <QTreeView>
#include <optional>

#include "desktop/tools/field_filter.h"
#include "desktop/tools/field_model.h"
#include "desktop/tools/tool_dock.h"

namespace wb::desktop {

/// The tree of all fields of the image, with a search. It follows the cell in focus; a click on a field leads to its
/// cell.
class FieldsDock : public ToolDock {
public:
    explicit FieldsDock(MainView& frame);

    /// Shows the dock, with its search ready for typing.
    void find();

protected:
    void showImage(const LiveReading& live) override;
    void follow(std::size_t byte) override;
    void changeEvent(QEvent* event) override;

private:
    void makeTree();
    void sizeColumns();
    void look();
    void goTo(const QModelIndex& index);
    void goToFound();
    void openBlocks();

    FieldModel fields_;
    FieldFilter found_;
    QLineEdit* words_;
    QTreeView* tree_;
    std::optional<std::size_t> followed_; ///< the byte in focus that the tree has been turned to
    bool opened_ = false;                 ///< the blocks of an image
};

} // namespace wb::desktop
