#pragma once

#include <QLineEdit>
#include <optional>

#include "desktop/drawing/colours.h"
#include "desktop/views/control_view.h"

namespace wb::desktop {

class TextView;

/// The line edit of a text control. Characters and Enter go to the model, which edits the text; all other editing is
/// the widget's own and is told afterwards.
class TextBox : public QLineEdit {
public:
    explicit TextBox(TextView& view) : view_(view) {}

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Whether the key takes back, or makes again, what was typed here and not entered yet. In a cell each key changes
    /// the image, so that it never does there.
    bool undoesTyping(const QKeyEvent& event) const;

    TextView& view_;
    QPointF pressed_;
};

class TextView : public ControlView {
public:
    TextView(Control& control, const Place& place, UserActions& actions);

    QWidget* widget() const override { return box_; }
    void refresh() override;
    /// A line edit drops or makes a selection of its own when it loses or gets the focus.
    void focusShown() override { refreshSelection(); }
    /// Another tool tip than the name that its place gives it, in plain text.
    void setTip(const QString& tip);
    void refreshColours();

private:
    friend class TextBox;

    void shape();
    void refreshText();
    /// A text that is longer than the box is told whole by its tool tip.
    void refreshTip();
    void refreshSelection();
    void type(const QKeyEvent& event, char character);
    void enter(const QKeyEvent& event);
    /// Runs what the widget does by itself, and tells the outcome with that key code (0: no key).
    template <class Editing>
    void editByWidget(Editing&& editing, int code, bool alwaysTell);
    void tellSelection();
    bool sameAsModel() const;
    /// Moves to the cell that the key leads to; false where the key is the box's own.
    bool stepToCell(const QKeyEvent& event);

    TextBox* box_;
    QString tip_;                        ///< that of the place, or what is told instead of it
    bool editing_ = false;               ///< the widget is editing and its signals need not be told
    bool keepHistory_ = false;           ///< a typed key is being worked: undo takes back what it makes of the text
    std::optional<CellColours> colours_; ///< that the box has
};

} // namespace wb::desktop
