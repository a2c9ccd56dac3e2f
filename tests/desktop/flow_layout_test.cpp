#include "desktop/windows/flow_layout.h"

#include <gtest/gtest.h>

namespace wb::desktop {
namespace {

/// Three items of 100 pixels with gaps of 5; the second one is higher.
class Flow : public testing::Test {
protected:
    Flow() {
        flow.setContentsMargins(1, 2, 3, 4);
        flow.setSpacing(5);
        for (const int height : {20, 30, 20}) {
            flow.addItem(new QSpacerItem(100, height));
        }
    }
    QRect place(int index) const { return flow.itemAt(index)->geometry(); }

    FlowLayout flow;
};

TEST_F(Flow, IsAsHighAsItsRowsNeed) {
    // Left and right margins take 4, those above and below 6.
    EXPECT_EQ(flow.heightForWidth(314), 36) << "one row";
    EXPECT_EQ(flow.heightForWidth(313), 61) << "two rows, of 30 and 20";
    EXPECT_EQ(flow.heightForWidth(209), 61) << "two items and a gap just fit";
    EXPECT_EQ(flow.heightForWidth(208), 86) << "three rows";
    EXPECT_EQ(flow.heightForWidth(10), 86) << "an item that is too wide has a row of its own";
}

TEST_F(Flow, PlacesItsItemsInRows) {
    flow.setGeometry(QRect(10, 20, 209, 61));
    EXPECT_EQ(place(0), QRect(11, 22, 100, 20));
    EXPECT_EQ(place(1), QRect(116, 22, 100, 30));
    EXPECT_EQ(place(2), QRect(11, 57, 100, 20));
}

TEST_F(Flow, AsksForItsLargestItem) {
    EXPECT_EQ(flow.minimumSize(), QSize(104, 36));
}

TEST_F(Flow, GivesItsItemsAway) {
    const std::unique_ptr<QLayoutItem> middle(flow.takeAt(1));
    ASSERT_NE(middle, nullptr);
    EXPECT_EQ(middle->sizeHint(), QSize(100, 30));
    EXPECT_EQ(flow.count(), 2);
    EXPECT_EQ(flow.itemAt(2), nullptr);
    EXPECT_EQ(flow.takeAt(-1), nullptr);
}

} // namespace
} // namespace wb::desktop
