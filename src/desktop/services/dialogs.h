#pragma once

#include "desktop/base/model_gate.h"
#include "desktop/services/printing.h"
#include "platform/services.h"

class QString;

namespace wb::desktop {

/// The platform's own dialogs.
class QtDialogs : public platform::Dialogs {
public:
    QtDialogs(ModelGate& gate, QtPrinter& printer) : gate_(gate), printer_(printer) {}

    std::string openFile(const platform::FileDialogRequest& request) override;
    std::string saveFile(const platform::FileDialogRequest& request) override;
    bool print(const std::string& title, int flags) override;
    bool pageSetup(const std::string& title) override;

private:
    ModelGate& gate_;
    QtPrinter& printer_;
};

/// A filter "words|pattern" as Qt's dialogs write it: "words (pattern)".
QString dialogFilter(const std::string& filter);

} // namespace wb::desktop
