#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/binder/desktop_view.h"
#include "desktop/services/window_arranger.h"
#include "platform/headless/headless_platform.h"

namespace wb::test {

/// A wired program with the desktop view: real widgets, really arranged, and boxes and dialogs that are answered from
/// the queues of the headless platform.
class DesktopProgram {
public:
    enum class Boxes { FromQueue, Real };

    explicit DesktopProgram(bool start = true, Boxes boxes = Boxes::FromQueue);

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

    /// A new image, with the extension if wanted. Its question is no box that a test has to expect.
    void newImage(bool extension = false);
    /// Loads a raw image of the repository's samples.
    void openSample(const std::string& name);

    platform::headless::HeadlessPlatform platform;
    std::vector<std::string> boxes; ///< texts of the message boxes that were answered from the queue
    desktop::ModelGate gate;

private:
    std::unique_ptr<platform::MessageBoxes> realBoxes_;
    desktop::MdiArranger arranger_{gate};
    platform::Services services_;

public:
    Workbench workbench;
    desktop::DesktopView view;
};

} // namespace wb::test
