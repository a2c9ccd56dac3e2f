#include "desktop/windows/lent_room.h"

#include <utility>

namespace wb::desktop {

void LentRoom::open(const QList<QMdiSubWindow*>& lenders) {
    for (QMdiSubWindow* lender : lenders) {
        loans_.append({lender, lender->geometry(), lender->geometry()});
    }
}

void LentRoom::noteArrangement() {
    if (std::exchange(noted_, true)) {
        return;
    }
    for (Loan& loan : loans_) {
        if (!loan.lender.isNull()) {
            loan.arranged = loan.lender->geometry();
        }
    }
}

void LentRoom::giveBack() {
    for (const Loan& loan : std::exchange(loans_, {})) {
        if (!loan.lender.isNull() && loan.lender->geometry() == loan.arranged) {
            loan.lender->setGeometry(loan.before);
        }
    }
}

} // namespace wb::desktop
