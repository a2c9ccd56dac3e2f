#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desktop/binder/desktop_view.h"
#include "platform/headless/headless_platform.h"

namespace wb::test {

/// A wired program with the desktop view, on the headless platform: real widgets, and boxes and dialogs that are
/// answered from queues.
class DesktopProgram {
public:
    explicit DesktopProgram(bool start = true);

    /// Start-up, with splash and frame.
    void start();
    /// Lets Qt deliver what is pending, queued focus moves included.
    static void settle();
    /// Brings the view in line after changes of the model that no widget has caused.
    void sync();
    /// Runs something as a user's action would.
    void act(const std::function<void()>& action);

    QWidget* widget(const Control& control) const;
    template <class Widget>
    Widget& widgetAs(const Control& control) const {
        return dynamic_cast<Widget&>(*widget(control));
    }
    QWidget& window(const Screen& screen) const { return view.viewOf(screen)->window(); }
    desktop::MainView& frame() const { return *view.mainView(); }

    /// A new image, with the extension if wanted.
    void newImage(bool extension = false);
    /// Loads a raw image of the repository's samples.
    void openSample(const std::string& name);

    platform::headless::HeadlessPlatform platform;
    std::vector<std::string> boxes; ///< texts of the message boxes
    Workbench workbench;
    desktop::ModelGate gate;
    desktop::DesktopView view;
};

} // namespace wb::test
