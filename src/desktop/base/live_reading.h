#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/workbench.h"
#include "fields/reading.h"

namespace wb::desktop {

/// The plain reading of the image as its cells have it now, for what explains the image beside the panels. Made at most
/// once for each return to the event loop, and only where the cells hold something else by then.
///
/// Block 0 counts as soon as its screen exists, the extension where byte 126 announces one and its screen exists.
class LiveReading : public QObject {
public:
    /// The program must outlive the reading.
    explicit LiveReading(const Workbench& workbench) : workbench_(workbench) {}

    /// What the image says. Null while there is none, and while a cell holds no byte.
    const fields::Reading* reading() const { return hasBadCell() ? nullptr : readingBesides(); }
    /// The same with 0 for each cell that holds no byte, which does for the names of its neighbours. Null while there
    /// is no image.
    const fields::Reading* readingBesides() const { return reading_ ? &*reading_ : nullptr; }
    /// One sentence that names the first cell that holds no byte, that is, anything but two hexadecimal digits; else
    /// empty.
    const QString& complaint() const { return complaint_; }

    /// Whether the cell of a byte of the image, or a field that it is part of, says something else than when the
    /// listeners were told before.
    bool changed(std::size_t byte) const { return byte >= changed_.size() || changed_[byte]; }

    /// Calls the listener whenever the reading has changed, as long as `context` exists.
    void listen(QObject& context, std::function<void()> listener);

    /// A call into the model has returned: the cells are looked at when the program is back in the event loop.
    void noteCall();
    /// There are views of cells that have not been told yet: the next look tells all listeners.
    void forget() { cells_.clear(); }

private:
    struct Listener {
        QPointer<QObject> context;
        std::function<void()> call;
    };

    bool hasBadCell() const { return !complaint_.isEmpty(); }
    void update();
    void read(const std::vector<std::string>& cells);
    void compare(const std::vector<std::string>& cells, const std::optional<fields::Reading>& before);

    const Workbench& workbench_;
    std::vector<std::string> cells_; ///< texts that the reading was made from
    std::optional<fields::Reading> reading_;
    std::vector<bool> changed_; ///< for each byte; all have that are not in it
    QString complaint_;
    std::vector<Listener> listeners_;
    bool willUpdate_ = false;
};

} // namespace wb::desktop
