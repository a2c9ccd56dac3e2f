#pragma once

#include "core/view.h"

namespace wb::test {

/// A view that does nothing with what it is told; tests derive those that note some of it.
class SilentView : public View {
public:
    void controlChanged(Control& /*control*/) override {}
    void screenChanged(Screen& /*screen*/) override {}
    void screenLoaded(Screen& /*screen*/) override {}
    void screenUnloaded(Screen& /*screen*/) override {}
    void windowsChanged() override {}
    void focusChanged() override {}
    void fileWritten(const WrittenFile& /*file*/) override {}
};

} // namespace wb::test
