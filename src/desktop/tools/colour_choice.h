#pragma once

#include <QActionGroup>
#include <QMenu>

#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// Whether the program is light, dark, or as the system says, with its entries of the View menu; remembered from one
/// session to the next.
class ColourChoice : public QObject {
public:
    /// Takes the colours of the last session.
    ColourChoice(MainView& frame, QMenu& menu);
    ~ColourChoice() override;

private:
    void choose(const QString& name);
    void apply(const QString& name);

    MainView& frame_;
    QActionGroup entries_;
    QString chosen_;
};

} // namespace wb::desktop
