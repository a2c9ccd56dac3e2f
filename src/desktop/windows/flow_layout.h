#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace wb::desktop {

/// Items side by side, in as many rows as the width asks for.
class FlowLayout : public QLayout {
public:
    using QLayout::QLayout;

    void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    int arrange(const QRect& rect, bool apply) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace wb::desktop
