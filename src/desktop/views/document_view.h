#pragma once

#include <QPlainTextEdit>

#include "desktop/views/control_view.h"

namespace wb::desktop {

class DocumentView;

class ReportBox : public QPlainTextEdit {
public:
    explicit ReportBox(DocumentView& view) : view_(view) {}

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    DocumentView& view_;
};

/// The report: in a fixed-pitch face, placed where the model's bounds say.
class DocumentView : public ControlView {
public:
    DocumentView(Control& control, const Place& place, UserActions& actions);

    QWidget* widget() const override { return box_; }
    void refresh() override;

private:
    void tellSelection();

    ReportBox* box_;
    std::string shown_;
};

} // namespace wb::desktop
