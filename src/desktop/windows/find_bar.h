#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QWidget>

class QCheckBox;

namespace wb::desktop {

/// The search in a text: all places are marked, the current one is selected. Hidden until it is opened.
class FindBar : public QWidget {
public:
    explicit FindBar(QPlainTextEdit& text);

    /// Shows the bar, with its box ready for typing.
    void open();
    void next() { step(1); }
    void previous() { step(-1); }

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void collect();
    void look();
    void step(int by);
    void select(int place);
    void mark();
    void close();

    QPlainTextEdit& text_;
    QLineEdit* box_;
    QCheckBox* case_;
    QLabel* outcome_;
    QList<QTextCursor> places_;
};

} // namespace wb::desktop
