#pragma once

#include "desktop/base/model_gate.h"
#include "platform/services.h"

namespace wb::desktop {

class QtMessageBoxes : public platform::MessageBoxes {
public:
    explicit QtMessageBoxes(ModelGate& gate) : gate_(gate) {}

    platform::Answer show(const platform::MessageBox& box) override;

private:
    ModelGate& gate_;
};

} // namespace wb::desktop
