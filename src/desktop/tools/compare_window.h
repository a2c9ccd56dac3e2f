#pragma once

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <optional>

#include "desktop/tools/compare_model.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The open image beside that of a file, field by field. Follows the cells, and leads to them; no control stands behind
/// it, so that the program's focus passes it by.
class CompareWindow : public QDialog {
public:
    explicit CompareWindow(MainView& frame);

    /// Compares with the images of a file, one or more, of which the user picks one.
    void show(std::vector<Image> images);

private:
    void makeHead(QBoxLayout& column);
    void makeTable();
    void makeFoot(QBoxLayout& column);
    void sizeColumns();
    void takeImage();
    void refresh();
    void refreshGo();
    void goToCell();
    QString outcome() const;

    MainView& frame_;
    std::vector<Image> images_;
    std::optional<fields::Reading> theirs_;
    CompareModel model_;
    QLabel* file_;
    QComboBox* choice_;
    QCheckBox* only_;
    QTreeView* table_;
    QLabel* outcome_;
    QPushButton* go_;
};

} // namespace wb::desktop
