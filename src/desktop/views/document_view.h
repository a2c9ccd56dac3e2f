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

/// The text of a report as it is drawn: a line end is one character, and other control characters are drawn as their
/// pictures, so that each place of the text keeps its place.
QString reportLines(std::string_view text);
/// The place in the program's text that a place in the drawn text stands for.
int placeInText(std::string_view text, int drawn);

} // namespace wb::desktop
