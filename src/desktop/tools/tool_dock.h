#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QVBoxLayout>
#include <cstddef>
#include <optional>

#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// A dock of the frame, hidden until it is asked for. The model knows nothing of it: what is inside takes Qt's focus
/// where the user puts it there, without any event, and Escape gives it back to the control that has it in the model.
class ToolDock : public QDockWidget {
public:
    /// The name is also that under which the place of the dock is remembered.
    ToolDock(MainView& frame, const char* name, const QString& title);

    /// The image or the focus may be another one. Costs nothing while the dock is hidden.
    void refresh();

protected:
    MainView& frame() const { return frame_; }
    /// Room for what the dock shows.
    QVBoxLayout& column() const { return *column_; }
    /// Shows what the image says now; only called while the dock is on view.
    virtual void showImage(const LiveReading& live) = 0;
    /// Follows the byte whose cell has the focus; called after that.
    virtual void follow(std::size_t /*byte*/) {}
    /// Moves the focus to a byte of the image, as a user does who picks its cell, and Qt's focus with it. Says so in
    /// the dock where no screen shows the byte.
    void goToByte(std::size_t byte);
    void showEvent(QShowEvent* event) override;

private:
    void tell(const QString& note);

    MainView& frame_;
    QVBoxLayout* column_;
    QLabel* note_;
    bool stale_ = true;    ///< the image has been read anew since it was shown
    bool refused_ = false; ///< the note is a refusal, which goes when the focus leaves this byte
    std::optional<int> refusedAt_;
};

} // namespace wb::desktop
