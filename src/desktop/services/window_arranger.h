#pragma once

#include <functional>

#include "desktop/base/model_gate.h"
#include "platform/services.h"

class QMdiArea;

namespace wb::desktop {

/// Arranges the child windows in the area of the frame.
class MdiArranger : public platform::WindowArranger {
public:
    explicit MdiArranger(ModelGate& gate) : gate_(gate) {}

    /// The area, or null while there is none.
    std::function<QMdiArea*()> area;
    void arrange(platform::Arrangement mode) override;

private:
    ModelGate& gate_;
};

} // namespace wb::desktop
