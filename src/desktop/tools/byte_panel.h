#pragma once

#include <QLabel>
#include <optional>

#include "desktop/windows/frame_addition.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// A text in as much room as is left, cut at its end; the tool tip has the whole of it.
class CutLabel : public QLabel {
public:
    CutLabel();

    void show(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void cut();

    QString whole_;
};

/// The panel of the status bar that tells of the byte whose cell has the focus, or had it last.
class BytePanel : public QObject, public FrameAddition {
public:
    explicit BytePanel(MainView& frame);

    void refresh() override;

private:
    QString words() const;

    MainView& frame_;
    CutLabel* label_;
    std::optional<int> byte_;
};

} // namespace wb::desktop
