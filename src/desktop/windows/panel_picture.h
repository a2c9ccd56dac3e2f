#pragma once

#include <QFont>
#include <QPointer>
#include <QRect>
#include <memory>
#include <optional>
#include <vector>

#include "core/screens/block_screen.h"
#include "desktop/pictures/picture_widget.h"
#include "desktop/pictures/subjects.h"
#include "desktop/views/control_view.h"

namespace wb::desktop {

/// The picture in the empty part of the panel that a block screen shows. It is about the field whose cell has the field
/// colour, takes what room the controls of the panel leave, and hides where that is too little. Made anew at most once
/// for each return to the event loop.
class PanelPicture : public QObject {
public:
    using Views = std::vector<std::unique_ptr<ControlView>>;

    /// Views of the controls of the screen; all of them must outlive the picture.
    PanelPicture(const BlockScreen& screen, const Views& views, UserActions& actions);
    ~PanelPicture() override;

    /// The cells, the field or the room may be others.
    void refreshSoon();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// All that a picture depends on besides the image.
    struct Frame {
        const QWidget* panel;
        Subject subject;
        QRect room;
        QFont font;

        bool operator==(const Frame& other) const = default;
    };

    void refresh();
    ControlView* shownPanel() const;
    std::optional<Subject> subject() const;
    void drawIn(QWidget& panel, const Subject& subject);
    Picture picture(const Subject& subject, const QSizeF& size) const;
    void moveTo(QWidget& panel, const QRect& place);
    ControlView* viewOf(const Pick& pick) const;

    std::size_t firstByte_; ///< number in the image of the byte in cell 0
    const Views& views_;
    UserActions& actions_;
    QPointer<PictureWidget> widget_; ///< belongs to a panel
    std::optional<Frame> drawn_;     ///< what the widget has been made for, since the image was read
    bool willRefresh_ = false;
};

} // namespace wb::desktop
