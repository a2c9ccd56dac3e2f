#pragma once

#include <QList>
#include <QMdiSubWindow>
#include <QPointer>
#include <QRect>

namespace wb::desktop {

/// The room that the other children give to one that opens and has them arranged beside it. What the user moves in the
/// meantime stays where it was put.
class LentRoom {
public:
    /// Notes how those children stand before it opens.
    void open(const QList<QMdiSubWindow*>& lenders);
    /// Notes how they have been arranged. Only the first time counts.
    void noteArrangement();
    void giveBack();

private:
    struct Loan {
        QPointer<QMdiSubWindow> lender;
        QRect before;
        QRect arranged;
    };

    QList<Loan> loans_;
    bool noted_ = false;
};

} // namespace wb::desktop
