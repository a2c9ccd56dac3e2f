#include "desktop/tools/import_ways.h"

#include <QInputDialog>

#include "adapters/gzip.h"
#include "desktop/base/text_codec.h"
#include "desktop/services/owner.h"

namespace wb::desktop {

namespace {

std::optional<std::size_t> choose(MainView& frame, const std::vector<std::string>& outputs) {
    QStringList rows; // numbered, as two may have one name
    for (const std::string& output : outputs) {
        rows.append(QString("%1. %2").arg(rows.size() + 1).arg(titleText(output)));
    }
    frame.gate().announceEventLoop();
    bool chosen = false;
    const QString row = QInputDialog::getItem(dialogOwner(), "Import", "There are several images. Load that of:", rows,
                                              0, false, &chosen);
    return chosen ? std::optional(static_cast<std::size_t>(rows.indexOf(row))) : std::nullopt;
}

} // namespace

shell::ImportWays importWays(MainView& frame) {
    return {.inflate = [](std::string_view bytes) { return adapters::uncompressGzip(bytes); },
            .choose = [&frame](const std::vector<std::string>& outputs) { return choose(frame, outputs); }};
}

} // namespace wb::desktop
